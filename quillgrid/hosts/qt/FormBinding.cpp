#include "quillgrid/hosts/qt/FormBinding.h"

#include "quillgrid/base/Text.h"
#include "quillgrid/hosts/qt/CellDesign.h"
#include "quillgrid/hosts/qt/Conversions.h"
#include "quillgrid/hosts/qt/FieldConversion.h"
#include "quillgrid/hosts/qt/FormBindingParts.h"
#include "quillgrid/hosts/qt/QuillgridWidget.h"

#include <algorithm>
#include <utility>

namespace quillgrid::qt {

FormBinding::FormBinding(QuillgridWidget* form, QObject* parent)
    : QObject(parent), parts_(std::make_unique<Parts>()) {
    parts_->Form = form;
    if (!form) return;
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
    return qobject_cast<QuillgridWidget*>(parts_->Form.data()); // null too for one that is on its way out
}
FormBinding::SubmitPolicy FormBinding::submitPolicy() const {
    return parts_->Policy;
}
void FormBinding::setSubmitPolicy(SubmitPolicy policy) {
    parts_->Policy = policy;
}

bool FormBinding::addField(const QString& cell, const FieldAddress& address) {
    if (cell.isEmpty()) return false;
    const QPointer<FormBinding> self(this);
    removeMapping(cell);
    if (!self) return false;
    const auto field = std::make_shared<BoundField>(BoundField{FromQString(cell), address});
    parts_->Fields.push_back(field);
    show(field);
    return true;
}

void FormBinding::addCell(const CellDesign& design) {
    if (form()) AddCell(*form(), design);
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
    return form() ? form()->grid().Cells().Find(field.Key) : nullptr;
}

bool FormBinding::differs(const BoundField& field) const {
    const auto cell = cellOf(field);
    return cell && field.ShownIn.lock() == cell && !IsSameValue(CellValue(*cell), field.Shown);
}

bool FormBinding::isTypedInto(const BoundField& field) const {
    return form() && form()->holdsTypedText() && form()->grid().Cell() == cellOf(field).get();
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
    if (!form()) return false;
    const QPointer<FormBinding> self(this);
    bool isRefused = false;
    const auto listening = connect(this, &FormBinding::refused, this, [&isRefused](Cell*, Refusal reason) {
        isRefused = isRefused || reason != NotShown;
    });
    const bool taken = form()->commitEdit();
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
    if (!form()) return true;
    return commitPending() && self && !isDirty();
}

bool FormBinding::writeAll() {
    const QPointer<FormBinding> self(this);
    const std::size_t lostBefore = parts_->Lost;
    bool all = true;
    for (const Field& field : std::vector(parts_->Fields)) {
        if (!field->IsRemoved) all = write(field) && all;
        if (!self) return false;
    }
    all = all && parts_->Lost == lostBefore; // a filter may have taken the row away after its first field
    const bool finished = all && finishSubmit();
    if (!self) return false;
    if (all && !finished && !tell(nullptr, NotTaken, {})) return false;
    tellDirty();
    return self && finished;
}

} // namespace quillgrid::qt
