#include "quillgrid/hosts/qt/FormBinding.h"

#include "quillgrid/base/Text.h"
#include "quillgrid/hosts/qt/BoundField.h"
#include "quillgrid/hosts/qt/CellDesign.h"
#include "quillgrid/hosts/qt/Conversions.h"
#include "quillgrid/hosts/qt/FieldConversion.h"
#include "quillgrid/hosts/qt/GridLineEdit.h"
#include "quillgrid/hosts/qt/QtLocale.h"
#include "quillgrid/hosts/qt/QuillgridWidget.h"

#include <QPointer>

#include <algorithm>
#include <utility>
#include <vector>

namespace quillgrid::qt {

namespace {

QString TypedText(const QuillgridWidget& form) {
    const auto* box = form.findChild<GridLineEdit*>();
    return box ? box->text() : QString();
}

} // namespace

struct FormBinding::Parts {
    QPointer<QuillgridWidget> Form;
    Locale UserLocale;
    std::vector<Field> Fields;
    SubmitPolicy Policy = AutoSubmit;
    bool ToldDirty = false;
    Connection KeyReleased;
};

FormBinding::FormBinding(QuillgridWidget* form, QObject* parent)
    : QObject(parent), parts_(std::make_unique<Parts>()) {
    parts_->Form = form;
    if (!form) return;
    parts_->UserLocale = LocaleFromQt(form->locale());
    connect(form, &QuillgridWidget::change, this, &FormBinding::cellChanged);
    connect(form, &QuillgridWidget::typingChanged, this, &FormBinding::settle);
    connect(form, &QuillgridWidget::selChange, this, &FormBinding::writeSelections);
    // Escape takes a choice back without a word.
    parts_->KeyReleased = form->grid().KeyWentUp.Connect(
        [this](Cell&, const std::int16_t&, const std::int16_t&) { writeSelections(); });
}

FormBinding::~FormBinding() {
    for (const Field& field : parts_->Fields)
        unlock(*field);
}

QuillgridWidget* FormBinding::form() const {
    return parts_->Form;
}
FormBinding::SubmitPolicy FormBinding::submitPolicy() const {
    return parts_->Policy;
}
void FormBinding::setSubmitPolicy(SubmitPolicy policy) {
    parts_->Policy = policy;
}

bool FormBinding::addField(const QString& cell, const FieldAddress& address) {
    if (cell.isEmpty()) return false;
    removeMapping(cell);
    const auto field = std::make_shared<BoundField>(BoundField{FromQString(cell), address});
    parts_->Fields.push_back(field);
    show(field);
    return true;
}

void FormBinding::addCell(const CellDesign& design) {
    if (parts_->Form) AddCell(*parts_->Form, design);
}

QStringList FormBinding::mappedCells() const {
    QStringList keys;
    for (const Field& field : parts_->Fields)
        keys << ToQString(field->Key);
    return keys;
}

void FormBinding::removeMapping(const QString& cell) {
    const std::string key = FromQString(cell);
    std::erase_if(parts_->Fields, [this, &key](const Field& field) {
        if (!EqualIgnoreCase(field->Key, key)) return false;
        field->IsRemoved = true;
        unlock(*field);
        return true;
    });
    tellDirty();
}

void FormBinding::clearMapping() {
    const QPointer<FormBinding> self(this);
    for (const QString& key : mappedCells()) {
        if (self) removeMapping(key);
    }
}

FormBinding::Field FormBinding::fieldOf(const Cell& cell) const {
    const auto found =
        std::find_if(parts_->Fields.begin(), parts_->Fields.end(),
                     [&cell](const Field& field) { return EqualIgnoreCase(field->Key, cell.Key()); });
    return found == parts_->Fields.end() ? nullptr : *found;
}

std::shared_ptr<Cell> FormBinding::cellOf(const BoundField& field) const {
    return parts_->Form ? parts_->Form->grid().Cells().Find(field.Key) : nullptr;
}

bool FormBinding::differs(const BoundField& field) const {
    const auto cell = cellOf(field);
    return cell && field.ShownIn.lock() == cell && !IsSameValue(CellValue(*cell), field.Shown);
}

bool FormBinding::isTypedInto(const BoundField& field) const {
    const auto& form = parts_->Form;
    return form && form->holdsTypedText() && form->grid().Cell() == cellOf(field).get();
}

bool FormBinding::isDirty() const {
    return std::any_of(parts_->Fields.begin(), parts_->Fields.end(),
                       [this](const Field& field) { return holdsInput(*field); });
}

bool FormBinding::isDirty(const QString& cell) const {
    const std::string key = FromQString(cell);
    return std::any_of(parts_->Fields.begin(), parts_->Fields.end(), [&](const Field& field) {
        return EqualIgnoreCase(field->Key, key) && holdsInput(*field);
    });
}

void FormBinding::tellDirty() {
    const bool dirty = isDirty();
    if (std::exchange(parts_->ToldDirty, dirty) != dirty) Q_EMIT dirtyChanged(dirty);
}

// From the form.

void FormBinding::cellChanged(Cell* cell) {
    const Field field = fieldOf(*cell);
    if (!field) return;
    const QPointer<FormBinding> self(this);
    if (parts_->Policy == AutoSubmit) write(field);
    if (self) settle();
}

/// Where input ended without being written, what came meanwhile is shown; in cells that came meanwhile too.
void FormBinding::settle() {
    const QPointer<FormBinding> self(this);
    for (const Field& field : std::vector(parts_->Fields)) {
        if (field->IsRemoved || holdsInput(*field)) continue;
        if ((field->IsWaiting || field->ShownIn.lock() != cellOf(*field)) && !show(field)) return;
    }
    if (self) tellDirty();
}

/// Choices in lists change without being typed, and may be taken back.
void FormBinding::writeSelections() {
    const QPointer<FormBinding> self(this);
    for (const Field& field : std::vector(parts_->Fields)) {
        const auto cell = parts_->Policy == AutoSubmit && !field->IsRemoved ? cellOf(*field) : nullptr;
        if (cell && (cell->Style() == qgcsList || cell->ValidationRule() == qgvrBoolean)) write(field);
        if (!self) return;
    }
    settle();
}

/// False too when the field refused what was taken over.
bool FormBinding::takeTyped() {
    if (!parts_->Form) return false;
    const QPointer<FormBinding> self(this);
    bool isRefused = false;
    const auto listening = connect(this, &FormBinding::refused, this, [&isRefused](Cell*, Refusal reason) {
        isRefused = isRefused || reason != NotShown;
    });
    const bool taken = parts_->Form->commitEdit();
    if (!self) return false;
    disconnect(listening);
    return taken && !isRefused;
}

bool FormBinding::submit() {
    return takeTyped() && writeAll();
}

bool FormBinding::commitPending() {
    const QPointer<FormBinding> self(this);
    if (!takeTyped()) return false;
    if (parts_->Policy == AutoSubmit) return writeAll();
    tellDirty();
    return self;
}

bool FormBinding::mayLeave() {
    const QPointer<FormBinding> self(this);
    if (!parts_->Form) return true;
    return commitPending() && self && !isDirty();
}

bool FormBinding::writeAll() {
    const QPointer<FormBinding> self(this);
    bool all = true;
    for (const Field& field : std::vector(parts_->Fields)) {
        if (!field->IsRemoved) all = write(field) && all;
        if (!self) return false;
    }
    const bool finished = all && finishSubmit();
    if (!self) return false;
    if (all && !finished && !tell(nullptr, NotTaken, {})) return false;
    tellDirty();
    return self && finished;
}

// To the field. False too when the binding is gone.

bool FormBinding::write(const Field& field) {
    if (field->IsWriting || !differs(*field)) return true;
    const auto cell = cellOf(*field);
    const QString text = ToQString(cell->Text());
    if (!isWritable(field->Address)) return refuse(field, ReadOnly, text);
    const auto value = FromCell(*cell, fieldType(field->Address), field->Source, parts_->UserLocale);
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
    const auto held = FromCell(*cell, type, now, parts_->UserLocale);
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
    const auto held = FromCell(*cell, fieldType(field->Address), now, parts_->UserLocale);
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
    const bool exact = ShowInCell(*cell, field->Source, fieldType(field->Address), parts_->UserLocale);
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
        if (!holdsInput(*field)) continue;
        const auto cell = cellOf(*field);
        lost.push_back({cell, isTypedInto(*field) ? TypedText(*parts_->Form) : ToQString(cell->Text())});
    }
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
    if (!parts_->Form || !parts_->Form->holdsTypedText()) return;
    Cell* const cell = parts_->Form->grid().Cell();
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
