#pragma once

#include "apps/record_editor/Database.h"
#include "apps/record_editor/RecordForm.h"

#include "quillgrid/hosts/qt/QuillgridWidget.h"

#include <QMainWindow>

#include <functional>
#include <memory>

class QAction;
class QComboBox;
class QLabel;

namespace quillgrid::editor {

enum class ToolIcon;

/// The window: one record at a time in a form, tools to walk through the table, what went wrong in a line
/// below.
class EditorWindow : public QMainWindow {
    Q_OBJECT

public:
    enum class Answer { Save, Discard, Cancel };
    /// Asks what to do about unsaved changes.
    using Question = std::function<Answer(QWidget* parent)>;

    /// `tables` are offered for choice; the database lives as long as the window.
    EditorWindow(std::unique_ptr<Database> database, QList<TableName> tables);
    ~EditorWindow() override;

    /// A box with three buttons by default.
    void setQuestion(Question question) { question_ = std::move(question); }

    /// Leaves the shown table, unless the user wants to stay or the other one cannot be read.
    bool openTable(const TableName& table);
    RecordForm* form() { return form_.get(); }
    quillgrid::qt::QuillgridWidget& widget() { return *widget_; }
    /// What the line below the form says.
    QString message() const;
    QString statusText() const;

public Q_SLOTS:
    void goFirst();
    void goPrevious();
    void goNext();
    void goLast();
    void goTo(qsizetype position);
    void newRecord();
    void save();
    /// False when the database or a cell refused; the input stays.
    bool saveRecord();
    void revertRecord();
    /// Empties the current cell so that NULL is saved.
    void clearValue();

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void makeTools();
    void makeTableChooser();
    void makeLines();
    QAction* addTool(ToolIcon icon, const QString& text, const QList<QKeySequence>& keys,
                     void (EditorWindow::*slot)());
    void connectGrid();
    void checkTyped(quillgrid::Cell* cell, bool* cancel);
    void showHint(quillgrid::Cell* cell);
    void walk(qsizetype position, qsizetype step);
    bool mayLeave();
    bool offerToSave();
    void chooseTable(int index);
    void showMessage(const QString& text, bool isError = true);
    /// An error, or else what there is to say about the current cell.
    void showResult(const Outcome<Done>& result, const QString& introduction = {});
    void showState();
    void drawIcons();
    void selectFirstEditableRow();
    void setSelectedTable(const QString& shown);

    std::unique_ptr<Database> database_;
    QList<TableName> tables_;
    std::unique_ptr<RecordForm> form_;
    FormSettings settings_;
    Question question_;
    quillgrid::qt::QuillgridWidget* widget_ = nullptr;
    QComboBox* tableChooser_ = nullptr;
    QLabel* notice_ = nullptr;
    QLabel* message_ = nullptr;
    QLabel* status_ = nullptr;
    struct Tool {
        QAction* Action;
        ToolIcon Icon;
    };
    QList<Tool> tools_;
};

} // namespace quillgrid::editor
