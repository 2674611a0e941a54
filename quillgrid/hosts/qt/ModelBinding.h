#pragma once

#include "quillgrid/hosts/qt/FormBinding.h"

#include <QPersistentModelIndex>
#include <QPointer>

class QAbstractItemModel;

namespace quillgrid::qt {

/// Ties cells of a form to the columns of a model's current row. The row is followed where it goes: when rows
/// above are added or removed, when the model is sorted. When it is removed, the row in its place becomes the
/// current one.
class QUILLGRID_EXPORT ModelBinding : public FormBinding {
    Q_OBJECT
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex NOTIFY currentIndexChanged)

public:
    explicit ModelBinding(QuillgridWidget* form, QObject* parent = nullptr);

    QAbstractItemModel* model() const;
    /// Begins without a current row, the cells empty and locked. False, and nothing changes, when
    /// `commitPending()` is false or input is unsubmitted.
    bool setModel(QAbstractItemModel* model);
    /// The parent of the rows. As `setModel`.
    bool setRootIndex(const QModelIndex& index);
    QModelIndex rootIndex() const;

    /// Lets a cell show a column. A cell of this key may come later. False for an empty key.
    bool addMapping(const QString& cell, int section, int role = Qt::EditRole);
    /// Adds a cell for each column, where the form has none of that key, and binds it. Key and caption are
    /// the column's header; what it holds is told by the current row or the first. Refresh the grid
    /// afterwards.
    void addCells();

    /// -1 when there is none.
    int currentIndex() const;

public Q_SLOTS:
    /// Shows another row; a row that does not exist changes nothing. False when the form stays where it is,
    /// because a handler keeps the user in the cell, or because input is refused or, under ManualSubmit, is
    /// not submitted.
    bool setCurrentIndex(int row);
    /// The row of an index below the root.
    bool setCurrentModelIndex(const QModelIndex& index);
    bool toFirst();
    bool toLast();
    bool toNext();
    bool toPrevious();

Q_SIGNALS:
    /// Another row is current, which may have taken the place of one that was removed, or the same one stands
    /// elsewhere.
    void currentIndexChanged(int row);

protected:
    FieldType fieldType(const FieldAddress& field) const override;
    bool isWritable(const FieldAddress& field) const override;
    QVariant readField(const FieldAddress& field) const override;
    bool writeField(const FieldAddress& field, const QVariant& value) override;
    bool finishSubmit() override;
    void dropSubmitted() override;

private:
    QModelIndex indexOf(const FieldAddress& field) const;
    int rowCount() const;
    void listen();
    void dataChanged(const QModelIndex& topLeft, const QModelIndex& bottomRight);
    void followRow();
    void begin(int row);
    void showRow(int row);
    void tellRow();

    QPointer<QAbstractItemModel> model_;
    QPersistentModelIndex root_;
    QPersistentModelIndex row_; ///< its first column
    bool hasRoot_ = false;
    int place_ = -1; ///< where the row was when it was last looked for
    int toldPlace_ = -1;
};

} // namespace quillgrid::qt
