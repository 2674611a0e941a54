#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/hosts/qt/FieldAddress.h"
#include "quillgrid/hosts/qt/FieldType.h"

#include <QObject>
#include <QStringList>
#include <QVariant>

#include <functional>
#include <memory>

namespace quillgrid {
class Cell;
}

namespace quillgrid::qt {

class QuillgridWidget;
struct BoundField;
struct CellDesign;

/// Ties cells of a form to the fields of something: what all bindings have in common. What the user changes
/// goes to the fields, what changes there shows in the cells. A field that changes while its cell holds input
/// of the user's leaves the input as it is and says so by `conflict`.
///
/// Form, binding and what is bound may end in any order, also within the signals.
class QUILLGRID_EXPORT FormBinding : public QObject {
    Q_OBJECT
    Q_PROPERTY(SubmitPolicy submitPolicy READ submitPolicy WRITE setSubmitPolicy)
    Q_PROPERTY(bool dirty READ isDirty NOTIFY dirtyChanged)

public:
    /// Input is written when its cell has taken it, or all of it by `submit()`.
    enum SubmitPolicy : int { AutoSubmit, ManualSubmit };
    Q_ENUM(SubmitPolicy)

    enum Refusal {
        ReadOnly,     ///< the field may not be written
        NotConverted, ///< the input is no value of the field's type
        NotTaken,     ///< the field kept its value
        NotShown,     ///< the cell cannot show the field's value, or not all of it; the field keeps it
        SourceGone    ///< what was bound went while the cell held input
    };
    Q_ENUM(Refusal)

    ~FormBinding() override;

    /// Null when it is gone.
    QuillgridWidget* form() const;

    /// AutoSubmit by default.
    SubmitPolicy submitPolicy() const;
    void setSubmitPolicy(SubmitPolicy policy);

    /// Whether a cell holds input that its field does not have, text that is still being typed included.
    bool isDirty() const;
    bool isDirty(const QString& cell) const;

    /// Keys of the bound cells.
    QStringList mappedCells() const;
    void removeMapping(const QString& cell);
    void clearMapping();

public Q_SLOTS:
    /// Takes over what is being typed and writes all changed cells. False when a handler keeps the user in
    /// the cell or a field refuses: under ManualSubmit the refused input stays in its cell. False too when
    /// what is bound goes on the way, as a row does that a filter no longer lets through.
    bool submit();
    /// Takes over what is being typed; under AutoSubmit it is written too. Call it before closing or saving,
    /// then look at `isDirty`. False as `submit`.
    bool commitPending();
    /// Shows what the fields hold; input is dropped.
    void revert();

Q_SIGNALS:
    void dirtyChanged(bool dirty);
    /// A value did not get through. `text` is what the cell showed; `cell` is null where a row was refused as
    /// a whole. Under AutoSubmit the cell shows the field's value again.
    void refused(quillgrid::Cell* cell, quillgrid::qt::FormBinding::Refusal reason, const QString& text);
    /// The field of a cell changed while the cell held input. The input stays; to write it overwrites the
    /// change, `revert()` shows the change.
    void conflict(quillgrid::Cell* cell);

protected:
    FormBinding(QuillgridWidget* form, QObject* parent);

    // What a kind of binding answers. All may be asked while there is nothing bound.

    virtual FieldType fieldType(const FieldAddress& field) const = 0;
    virtual bool isWritable(const FieldAddress& field) const = 0;
    virtual QVariant readField(const FieldAddress& field) const = 0;
    /// False when the field did not take the value.
    virtual bool writeField(const FieldAddress& field, const QVariant& value) = 0;
    /// All fields are written; false when they were refused together.
    virtual bool finishSubmit() { return true; }
    /// Input is about to be dropped.
    virtual void dropSubmitted() {}

    // What a kind of binding does.

    /// Binds a cell, instead of what it was bound to. False for an empty key.
    bool addField(const QString& cell, const FieldAddress& field);
    /// Adds a cell to the form unless there is one of this key.
    void addCell(const CellDesign& design);
    /// Fields for which `concerned` answers true (all without it) may have changed.
    void fieldsChanged(const std::function<bool(const FieldAddress&)>& concerned = {});
    /// Something else is bound now: shows it. Input that is still held is lost, and told by `refused`.
    void showSource();
    /// Before something else is bound: whether no input would be lost.
    bool mayLeave();

private:
    using Field = std::shared_ptr<BoundField>;
    struct Parts;

    Field fieldOf(const Cell& cell) const;
    std::shared_ptr<Cell> cellOf(const BoundField& field) const;
    bool differs(const BoundField& field) const;
    bool isTypedInto(const BoundField& field) const;
    bool holdsInput(const BoundField& field) const { return differs(field) || isTypedInto(field); }
    void cellChanged(Cell* cell);
    void settle();
    void writeSelections();
    bool takeTyped();
    bool writeAll();
    bool write(const Field& field);
    bool writeInto(const Field& field, const QVariant& value, const QString& text);
    bool confirm(const Field& field, const QVariant& before, const QString& text);
    bool refuse(const Field& field, Refusal reason, const QString& text);
    bool tell(const std::shared_ptr<Cell>& cell, Refusal reason, const QString& text);
    void follow(const Field& field);
    bool show(const Field& field);
    bool showAll();
    void lockAsField(BoundField& field, Cell& cell);
    void unlock(BoundField& field);
    void dropTyped();
    void tellDirty();

    std::unique_ptr<Parts> parts_;
};

} // namespace quillgrid::qt
