// How a binding writes its fields and shows them.
#include "quillgrid/hosts/qt/Conversions.h"
#include "quillgrid/hosts/qt/FieldConversion.h"
#include "quillgrid/hosts/qt/FormBindingParts.h"
#include "quillgrid/hosts/qt/GridLineEdit.h"
#include "quillgrid/hosts/qt/QuillgridWidget.h"

#include <utility>

namespace quillgrid::qt {

namespace {

QString TypedText(const QuillgridWidget& form) {
    const auto* box = form.findChild<GridLineEdit*>();
    return box ? box->text() : QString();
}

/// A field that is read or written may end the form.
const Locale& LocaleOf(const QuillgridWidget* form) {
    static const Locale none;
    return form ? form->grid().UserLocale() : none;
}

} // namespace

// To the field. False too when the binding is gone.

bool FormBinding::write(const Field& field) {
    if (field->IsWriting || !differs(*field)) return true;
    const auto cell = cellOf(*field);
    const QString text = ToQString(cell->Text());
    if (!isWritable(field->Address)) return refuse(field, ReadOnly, text);
    const auto value = FromCell(*cell, fieldType(field->Address), field->Source, LocaleOf(form()));
    return value ? writeInto(field, *value, text) : refuse(field, NotConverted, text);
}

bool FormBinding::writeInto(const Field& field, const QVariant& value, const QString& text) {
    const QPointer<FormBinding> self(this);
    const QVariant before = field->Source;
    field->IsWriting = true;
    const bool taken = writeField(field->Address, value);
    field->IsWriting = false;
    if (!self || field->IsRemoved) return false;
    return taken ? confirm(field, before, text) : refuse(field, NotTaken, text);
}

/// The field may have made something else of the value, or have ignored it.
bool FormBinding::confirm(const Field& field, const QVariant& before, const QString& text) {
    const auto cell = cellOf(*field);
    if (!cell) return true;
    const FieldType type = fieldType(field->Address);
    const QVariant now = readField(field->Address);
    const auto held = FromCell(*cell, type, now, LocaleOf(form()));
    if (!held || !IsSameSource(*held, now)) {
        if (IsSameSource(now, before)) return refuse(field, NotTaken, text);
        return show(field);
    }
    field->Source = now;
    field->Shown = CellValue(*cell);
    field->IsWaiting = false;
    return true;
}

bool FormBinding::refuse(const Field& field, Refusal reason, const QString& text) {
    const QPointer<FormBinding> self(this);
    const auto cell = cellOf(*field);
    if (parts_->Policy == AutoSubmit && !show(field)) return false;
    tell(cell, reason, text);
    return false;
}

/// False when the binding is gone.
bool FormBinding::tell(const std::shared_ptr<Cell>& cell, Refusal reason, const QString& text) {
    const QPointer<FormBinding> self(this);
    Q_EMIT refused(cell.get(), reason, text);
    return self;
}

// From the field.

void FormBinding::fieldsChanged(const std::function<bool(const FieldAddress&)>& concerned) {
    const QPointer<FormBinding> self(this);
    for (const Field& field : std::vector(parts_->Fields)) {
        if (field->IsWriting || field->IsRemoved || (concerned && !concerned(field->Address))) continue;
        follow(field);
        if (!self) return;
    }
    tellDirty();
}

void FormBinding::follow(const Field& field) {
    const auto cell = cellOf(*field);
    if (!cell) return;
    lockAsField(*field, *cell);
    const QVariant now = readField(field->Address);
    if (IsSameSource(now, field->Source) && field->ShownIn.lock() == cell) return;
    if (!holdsInput(*field)) {
        show(field);
        return;
    }
    field->Source = now;
    field->IsWaiting = true;
    const auto held = FromCell(*cell, fieldType(field->Address), now, LocaleOf(form()));
    if (!isTypedInto(*field) && held && IsSameSource(*held, now)) {
        field->Shown = CellValue(*cell);
        return;
    }
    Q_EMIT conflict(cell.get());
}

/// False when the binding is gone.
bool FormBinding::show(const Field& field) {
    const auto cell = cellOf(*field);
    if (!cell) return true;
    lockAsField(*field, *cell);
    field->Source = readField(field->Address);
    field->IsWaiting = false;
    const bool exact = ShowInCell(*cell, field->Source, fieldType(field->Address), LocaleOf(form()));
    field->ShownIn = cell;
    field->Shown = CellValue(*cell);
    return exact || tell(cell, NotShown, ToQString(cell->Text()));
}

bool FormBinding::showAll() {
    const QPointer<FormBinding> self(this);
    for (const Field& field : std::vector(parts_->Fields)) {
        if (!field->IsRemoved && !show(field)) return false;
    }
    dropTyped();
    return self;
}

void FormBinding::showSource() {
    struct Lost {
        std::shared_ptr<Cell> Held;
        QString Text;
    };
    std::vector<Lost> lost;
    for (const Field& field : parts_->Fields) {
        if (field->IsWriting || !holdsInput(*field)) continue; // what is written got there
        const auto cell = cellOf(*field);
        lost.push_back({cell, isTypedInto(*field) ? TypedText(*form()) : ToQString(cell->Text())});
    }
    parts_->Lost += lost.size();
    if (!showAll()) return;
    for (const Lost& input : lost) {
        if (!tell(input.Held, SourceGone, input.Text)) return;
    }
    tellDirty();
}

void FormBinding::revert() {
    const QPointer<FormBinding> self(this);
    dropSubmitted();
    if (self && showAll()) tellDirty();
}

/// The edit box shows the value of its cell again.
void FormBinding::dropTyped() {
    if (!form() || !form()->holdsTypedText()) return;
    Cell* const cell = form()->grid().Cell();
    if (cell && fieldOf(*cell)) cell->Undo();
}

void FormBinding::unlock(BoundField& field) {
    const auto cell = std::exchange(field.IsLockedHere, false) ? cellOf(field) : nullptr;
    if (cell) cell->SetLocked(false);
}

void FormBinding::lockAsField(BoundField& field, Cell& cell) {
    const bool locked = !isWritable(field.Address);
    if (locked == field.IsLockedHere || (locked && cell.Locked())) return;
    field.IsLockedHere = locked;
    cell.SetLocked(locked);
    cell.Refresh();
}

} // namespace quillgrid::qt
