#include "apps/record_editor/EditorWindow.h"

#include "apps/record_editor/ToolIcons.h"

#include "quillgrid/grid/CellRules.h"
#include "quillgrid/hosts/qt/QtLocale.h"
#include "quillgrid/hosts/qt/ReadyDropDowns.h"

#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QLabel>
#include <QMessageBox>
#include <QShowEvent>
#include <QStatusBar>
#include <QToolBar>
#include <QVBoxLayout>

#include <array>

namespace quillgrid::editor {
namespace {

constexpr qsizetype LongestMessage = 500;
constexpr int LeastCharacters = 48; ///< across the window, so that a caption has its value beside it
constexpr int LeastLines = 16;
constexpr int LongestTableName = 24; ///< in the chooser, characters

EditorWindow::Answer AskInABox(QWidget* parent) {
    const auto button = QMessageBox::question(parent, QStringLiteral("Unsaved changes"),
                                              QStringLiteral("This record was changed. Save the changes?"),
                                              QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel,
                                              QMessageBox::Save);
    if (button == QMessageBox::Save) return EditorWindow::Answer::Save;
    return button == QMessageBox::Discard ? EditorWindow::Answer::Discard : EditorWindow::Answer::Cancel;
}

FormSettings SettingsFor(const QLocale& locale) {
    struct Row {
        QLocale::Language Qt;
        LanguageConstants Quillgrid;
    };
    static constexpr std::array<Row, 4> languages{{{QLocale::German, qglgGerman},
                                                   {QLocale::French, qglgFrench},
                                                   {QLocale::Italian, qglgItalian},
                                                   {QLocale::Spanish, qglgSpanish}}};
    FormSettings settings{quillgrid::qt::LocaleFromQt(locale), qglgEnglish,
                          locale.name().section(u'_', 0, 0)};
    for (const Row& row : languages) {
        if (row.Qt == locale.language()) settings.Language = row.Quillgrid;
    }
    return settings;
}

/// What a label says must not decide how wide the window is: names and messages come from the database.
void KeepNarrow(QLabel* label) {
    QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    policy.setHeightForWidth(label->wordWrap());
    label->setSizePolicy(policy);
}

QString Shortened(const QString& text) {
    return text.size() > LongestMessage ? QString(text.left(LongestMessage) + u'…') : text;
}

QLabel* MakeLine(QWidget* parent) {
    auto* line = new QLabel(parent);
    line->setWordWrap(true);
    KeepNarrow(line);
    line->setTextFormat(Qt::PlainText);
    line->setTextInteractionFlags(Qt::TextSelectableByMouse);
    line->setMargin(6);
    line->setAutoFillBackground(true);
    line->hide();
    return line;
}

/// A tint of the window's own background, readable on light and dark desktops.
void Tint(QLabel* line, const QColor& tint) {
    QPalette palette = line->parentWidget()->palette();
    const QColor window = palette.color(QPalette::Window);
    const auto mix = [](int a, int b) { return (3 * a + b) / 4; };
    palette.setColor(QPalette::Window,
                     QColor(mix(window.red(), tint.red()), mix(window.green(), tint.green()),
                            mix(window.blue(), tint.blue())));
    line->setPalette(palette);
}

const QColor NoticeTint(230, 170, 0);
const QColor ErrorTint(220, 50, 40);
const QColor HintTint(60, 130, 210);

} // namespace

EditorWindow::EditorWindow(std::unique_ptr<Database> database, QList<TableName> tables)
    : database_(std::move(database)),
      tables_(std::move(tables)),
      settings_(SettingsFor(locale())),
      question_(AskInABox) {
    widget_ = new quillgrid::qt::QuillgridWidget(this);
    quillgrid::qt::openAddresses(*widget_);
    makeTools();
    makeTableChooser();
    makeLines();
    connectGrid();
    showState();
    setMinimumSize(LeastCharacters * fontMetrics().averageCharWidth(), LeastLines * fontMetrics().height());
    resize(560, 700);
}

EditorWindow::~EditorWindow() {
    // The widget takes leave of its cells while the form still knows them.
    delete widget_;
}

void EditorWindow::makeTools() {
    auto* bar = addToolBar(QStringLiteral("Records"));
    bar->setMovable(false);
    bar->setContextMenuPolicy(Qt::PreventContextMenu);
    using Window = EditorWindow;
    addTool(ToolIcon::First, QStringLiteral("First record"),
            {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_PageUp)}, &Window::goFirst);
    addTool(ToolIcon::Previous, QStringLiteral("Previous record"),
            {QKeySequence(Qt::CTRL | Qt::Key_PageUp), QKeySequence(Qt::ALT | Qt::Key_PageUp)},
            &Window::goPrevious);
    addTool(ToolIcon::Next, QStringLiteral("Next record"),
            {QKeySequence(Qt::CTRL | Qt::Key_PageDown), QKeySequence(Qt::ALT | Qt::Key_PageDown)},
            &Window::goNext);
    addTool(ToolIcon::Last, QStringLiteral("Last record"),
            {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_PageDown)}, &Window::goLast);
    addTool(ToolIcon::New, QStringLiteral("New record"), {QKeySequence(Qt::CTRL | Qt::Key_N)},
            &Window::newRecord);
    addTool(ToolIcon::Save, QStringLiteral("Save"), {QKeySequence(Qt::CTRL | Qt::Key_S)}, &Window::save);
    addTool(ToolIcon::Revert, QStringLiteral("Revert to the saved record"),
            {QKeySequence(Qt::CTRL | Qt::Key_R)}, &Window::revertRecord);
    for (const Tool& tool : tools_) {
        if (tool.Icon == ToolIcon::New) bar->addSeparator();
        bar->addAction(tool.Action);
    }
    auto* clear = new QAction(QStringLiteral("Clear value"), this);
    // Not with Backspace or Delete: together with Ctrl these take away a word.
    clear->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_0));
    connect(clear, &QAction::triggered, this, &EditorWindow::clearValue);
    addAction(clear);
    drawIcons();
}

QAction* EditorWindow::addTool(ToolIcon icon, const QString& text, const QList<QKeySequence>& keys,
                               void (EditorWindow::*slot)()) {
    auto* action = new QAction(text, this);
    action->setShortcuts(keys);
    action->setToolTip(QStringLiteral("%1 (%2)").arg(text, keys.first().toString(QKeySequence::NativeText)));
    connect(action, &QAction::triggered, this, slot);
    tools_ << Tool{action, icon};
    return action;
}

void EditorWindow::drawIcons() {
    for (const Tool& tool : tools_)
        tool.Action->setIcon(MakeToolIcon(tool.Icon, palette()));
}

void EditorWindow::makeTableChooser() {
    if (tables_.size() < 2) return;
    tableChooser_ = new QComboBox(this);
    tableChooser_->setToolTip(QStringLiteral("Table"));
    tableChooser_->setAccessibleName(QStringLiteral("Table"));
    tableChooser_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    tableChooser_->setMaximumWidth(LongestTableName * fontMetrics().averageCharWidth());
    for (const TableName& table : tables_)
        tableChooser_->addItem(table.Shown);
    connect(tableChooser_, &QComboBox::activated, this, &EditorWindow::chooseTable);
    auto* bar = findChild<QToolBar*>();
    auto* gap = new QWidget(bar);
    gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar->addWidget(gap);
    bar->addWidget(tableChooser_);
}

void EditorWindow::makeLines() {
    auto* centre = new QWidget(this);
    auto* column = new QVBoxLayout(centre);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    notice_ = MakeLine(centre);
    message_ = MakeLine(centre);
    Tint(notice_, NoticeTint);
    column->addWidget(notice_);
    column->addWidget(widget_, 1);
    column->addWidget(message_);
    setCentralWidget(centre);
    status_ = new QLabel(this);
    status_->setTextFormat(Qt::PlainText);
    KeepNarrow(status_);
    status_->setIndent(4);
    statusBar()->addWidget(status_, 1);
}

void EditorWindow::connectGrid() {
    using Widget = quillgrid::qt::QuillgridWidget;
    connect(widget_, &Widget::validateCellError, this,
            [](quillgrid::Cell*, quillgrid::ValidationErrConstants, bool* cancel) { *cancel = true; });
    connect(widget_, &Widget::validateCell, this, &EditorWindow::checkTyped);
    connect(widget_, &Widget::selChange, this, &EditorWindow::showHint);
    connect(widget_, &Widget::change, this, [this] { showState(); });
    connect(widget_, &Widget::typingChanged, this, [this] { showState(); });
}

void EditorWindow::checkTyped(quillgrid::Cell* cell, bool* cancel) {
    const FieldBinding* binding = form_ && cell ? form_->BindingOf(*cell) : nullptr;
    showState();
    if (!binding || binding->Fits() || !binding->IsChanged()) return;
    const auto value = binding->ToDatabase();
    if (value) return;
    *cancel = true;
    widget_->showMessage(value.Message());
}

void EditorWindow::showHint(quillgrid::Cell* cell) {
    const FieldBinding* binding = form_ && cell ? form_->BindingOf(*cell) : nullptr;
    showMessage(binding ? binding->Hint() : QString(), false);
}

bool EditorWindow::openTable(const TableName& table) {
    if (form_ && !mayLeave()) return false;
    auto opened = RecordForm::Open(widget_->grid(), *database_, table, settings_);
    if (!opened) {
        showMessage(QStringLiteral("The table “%1” cannot be read: %2").arg(table.Shown, opened.Message()));
        return false;
    }
    form_ = std::move(*opened);
    notice_->setText(form_->Notice());
    notice_->setVisible(!form_->Notice().isEmpty());
    setSelectedTable(table.Shown);
    showMessage({});
    if (form_->Count() > 0) {
        showMessage(form_->Show(0).Message());
    } else {
        form_->ShowNew();
    }
    if (isVisible()) selectFirstEditableRow();
    showState();
    return true;
}

void EditorWindow::selectFirstEditableRow() {
    auto& grid = widget_->grid();
    for (std::int32_t row = 1; row <= grid.RowCount(); ++row) {
        quillgrid::Cell* cell = grid.RowCell(row);
        if (quillgrid::IsHeading(*cell) || !quillgrid::IsEditable(*cell, grid.UserLevel())) continue;
        cell->SetFocus();
        return;
    }
}

void EditorWindow::setSelectedTable(const QString& shown) {
    if (tableChooser_) tableChooser_->setCurrentText(shown);
}

void EditorWindow::chooseTable(int index) {
    if (index < 0 || index >= tables_.size() || (form_ && tables_[index].Shown == form_->TableTitle()))
        return;
    if (!openTable(tables_[index]) && form_) setSelectedTable(form_->TableTitle());
}

void EditorWindow::goFirst() {
    walk(0, 1);
}

void EditorWindow::goPrevious() {
    if (!form_) return;
    walk(form_->IsNew() ? form_->Count() - 1 : form_->Position() - 1, -1);
}

void EditorWindow::goNext() {
    if (form_ && !form_->IsNew()) walk(form_->Position() + 1, 1);
}

void EditorWindow::goLast() {
    if (form_) walk(form_->Count() - 1, -1);
}

void EditorWindow::goTo(qsizetype position) {
    walk(position, 0);
}

/// Records that were deleted meanwhile are passed over, or nobody would get beyond them.
void EditorWindow::walk(qsizetype position, qsizetype step) {
    const auto isThere = [this](qsizetype one) { return one >= 0 && one < form_->Count(); };
    if (!form_ || !isThere(position) || !mayLeave()) return;
    auto shown = form_->Show(position);
    while (step != 0 && shown.Message() == RecordStore::GoneMessage() && isThere(position += step))
        shown = form_->Show(position);
    showResult(shown);
    showState();
}

void EditorWindow::newRecord() {
    if (!form_ || !form_->CanWrite() || !mayLeave()) return;
    form_->ShowNew();
    showMessage({});
    showState();
}

void EditorWindow::save() {
    saveRecord();
}

bool EditorWindow::saveRecord() {
    if (!form_ || !widget_->commitEdit()) return false;
    if (!form_->IsNew() && !form_->IsModified()) {
        showState();
        return true;
    }
    const auto saved = form_->Save();
    if (saved && saved->isEmpty())
        showHint(widget_->grid().Cell());
    else
        showMessage(saved ? *saved : QString(u"Not saved: " + saved.Message()));
    showState();
    return static_cast<bool>(saved);
}

void EditorWindow::revertRecord() {
    if (!form_) return;
    // What is being typed goes with the rest: the cells are filled again whatever the edit box holds.
    showResult(form_->Revert());
    showState();
}

void EditorWindow::clearValue() {
    quillgrid::Cell* cell = widget_->grid().Cell();
    FieldBinding* binding = form_ && cell ? form_->BindingOf(*cell) : nullptr;
    if (!binding || !widget_->commitEdit()) return;
    binding->SetNull();
    widget_->grid().Refresh();
    showState();
}

bool EditorWindow::mayLeave() {
    if (!widget_->commitEdit()) return false;
    return !form_->IsModified() || offerToSave();
}

bool EditorWindow::offerToSave() {
    switch (question_(this)) {
    case Answer::Save: return saveRecord();
    case Answer::Discard: return true;
    case Answer::Cancel: break;
    }
    return false;
}

void EditorWindow::closeEvent(QCloseEvent* event) {
    event->setAccepted(!form_ || mayLeave());
}

// A form that has no size yet would scroll down to the row that is selected.
void EditorWindow::showEvent(QShowEvent* event) {
    QMainWindow::showEvent(event);
    if (!event->spontaneous()) selectFirstEditableRow();
}

void EditorWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() != QEvent::PaletteChange || !notice_) return;
    drawIcons();
    Tint(notice_, NoticeTint);
}

QString EditorWindow::message() const {
    return message_->text();
}

QString EditorWindow::statusText() const {
    return status_->text();
}

void EditorWindow::showResult(const Outcome<Done>& result, const QString& introduction) {
    if (result)
        showHint(widget_->grid().Cell());
    else
        showMessage(introduction + result.Message());
}

void EditorWindow::showMessage(const QString& text, bool isError) {
    message_->setText(Shortened(text));
    Tint(message_, isError ? ErrorTint : HintTint);
    message_->setVisible(!text.isEmpty());
}

void EditorWindow::showState() {
    const bool hasForm = form_ != nullptr;
    const bool canWrite = hasForm && form_->CanWrite();
    const bool modified = hasForm && (form_->IsModified() || (canWrite && widget_->holdsTypedText()));
    const bool isNew = hasForm && form_->IsNew();
    const qsizetype position = hasForm ? form_->Position() : -1;
    const qsizetype count = hasForm ? form_->Count() : 0;
    const std::array<bool, 7> enabled{isNew ? count > 0 : position > 0,
                                      isNew ? count > 0 : position > 0,
                                      !isNew && position + 1 < count,
                                      isNew ? count > 0 : position + 1 < count,
                                      canWrite,
                                      canWrite,
                                      canWrite};
    for (const Tool& tool : tools_)
        tool.Action->setEnabled(enabled[static_cast<std::size_t>(tool.Icon)]);
    const QString place = isNew ? QStringLiteral("New record")
                                : QStringLiteral("Record %L1 of %L2").arg(position + 1).arg(count);
    const QString table = hasForm ? form_->TableTitle() : QString();
    status_->setText(
        QStringLiteral("%1 · %2%3").arg(place, table, modified ? QStringLiteral(" · modified") : QString()));
    QString title = table + u" – " + database_->Description();
    title.replace(QLatin1String("[*]"), QLatin1String("[*][*]")); // doubled, it is not the mark of a change
    setWindowTitle(title + u"[*]");
    setWindowModified(modified);
}

} // namespace quillgrid::editor
