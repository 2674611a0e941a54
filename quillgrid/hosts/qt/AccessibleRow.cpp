#include "quillgrid/hosts/qt/AccessibleRow.h"

#include "quillgrid/grid/CellRules.h"
#include "quillgrid/grid/Keys.h"
#include "quillgrid/hosts/qt/AccessibilityNotices.h"
#include "quillgrid/hosts/qt/AccessiblePad.h"
#include "quillgrid/hosts/qt/Conversions.h"
#include "quillgrid/hosts/qt/QtLocale.h"
#include "quillgrid/hosts/qt/QuillgridWidget.h"
#include "quillgrid/locale/Coercion.h"

#include <algorithm>

namespace quillgrid::qt {

namespace {

bool IsBoolean(const Cell& cell) {
    return cell.ValidationRule() == qgvrBoolean;
}

bool CanDrop(const Cell& cell) {
    return cell.Button() != qgbtNone && cell.Button() != qgbtSpin && !IsBoolean(cell);
}

/// The states that follow from what kind of cell it is.
void DescribeKind(const Cell& cell, QAccessible::State& state) {
    const bool typed = IsTyped(cell);
    state.editable = typed && !state.readOnly;
    state.passwordEdit = cell.Template() == qgctPassword;
    state.hasPopup = CanDrop(cell);
    state.checkable = IsBoolean(cell);
}

void DescribeCheck(const Cell& cell, QAccessible::State& state) {
    constexpr std::int32_t yes = 1; // the first of its two entries
    state.checked = cell.ListIndex() == yes;
    state.checkStateMixed = cell.ListIndex() < yes;
}

} // namespace

AccessibleRow::AccessibleRow(QuillgridWidget& widget, std::weak_ptr<Cell> cell)
    : widget_(&widget), cell_(std::move(cell)) {}

AccessibilityNotices* AccessibleRow::Notices() const {
    return widget_ ? AccessibilityNotices::Of(*widget_) : nullptr;
}

Quillgrid* AccessibleRow::Grid() const {
    AccessibilityNotices* notices = Notices();
    return notices ? &notices->Grid() : nullptr;
}

std::int32_t AccessibleRow::Row() const {
    const auto cell = cell_.lock();
    const Quillgrid* grid = cell ? Grid() : nullptr;
    return grid ? AccessibilityNotices::RowOf(*grid, *cell) : 0;
}

std::shared_ptr<Cell> AccessibleRow::ShownCell() const {
    return isValid() ? cell_.lock() : nullptr;
}

QAccessibleInterface* AccessibleRow::parent() const {
    return widget_ ? QAccessible::queryAccessibleInterface(widget_) : nullptr;
}

QAccessibleInterface* AccessibleRow::OpenPad() const {
    const auto cell = ShownCell();
    const bool current = cell && Grid()->Cell() == cell.get();
    PadWidget* pad = current ? Notices()->OpenPad() : nullptr;
    return pad ? AccessiblePad::Of(*pad) : nullptr;
}

// Never null, as a pad may close between the count and the question.
QAccessibleInterface* AccessibleRow::child(int index) const {
    QAccessibleInterface* pad = index == 0 ? OpenPad() : nullptr;
    QAccessibleInterface* grid = parent();
    return pad ? pad : grid ? grid->child(-1) : nullptr;
}

int AccessibleRow::indexOfChild(const QAccessibleInterface* child) const {
    return child && child == OpenPad() ? 0 : -1;
}

QString AccessibleRow::Shown() const {
    const auto cell = ShownCell();
    if (!cell || IsHeading(*cell) || !IsDataVisible(*cell, Grid()->UserLevel())) return {};
    GridSettings masking;
    masking.PasswordChar = Grid()->PasswordChar();
    return ToQString(ShownText(*cell, masking));
}

bool AccessibleRow::IsRefused(const Cell& cell) const {
    return cell.ErrorCode() != qgErrNone || Notices()->IsRefused(cell);
}

QString AccessibleRow::Description(const Cell& cell) const {
    if (Notices()->IsRefused(cell)) return widget_->shownMessage();
    QString said = ToQString(cell.TooltipText());
    if (cell.AllowEmpty() || IsHeading(cell)) return said;
    const QString required = Notices()->RequiredText(); // there is no state for it
    return said.isEmpty() ? required : said + QStringLiteral(". ") + required;
}

QString AccessibleRow::text(QAccessible::Text which) const {
    const auto cell = ShownCell();
    if (!cell) return {};
    switch (which) {
    case QAccessible::Name: return ToQString(cell->Caption()).remove(u'&');
    case QAccessible::Value: return Shown();
    case QAccessible::Description: return Description(*cell);
    case QAccessible::Accelerator: return Notices()->AccessKeyOf(*cell);
    default: return {};
    }
}

QRect AccessibleRow::rect() const {
    const auto cell = ShownCell();
    if (!cell) return {};
    const QRect value = widget_->onWidget(Grid()->ValueArea(*cell));
    if (value.isEmpty()) return {};
    const QRect row(0, value.top(), widget_->width(), value.height()); // the label belongs to it
    return row.translated(widget_->mapToGlobal(QPoint()));
}

QAccessible::Role AccessibleRow::role() const {
    const auto cell = cell_.lock();
    if (!cell) return QAccessible::EditableText;
    if (IsHeading(*cell)) return QAccessible::Heading;
    if (IsBoolean(*cell)) return QAccessible::CheckBox;
    if (cell->Style() == qgcsList || cell->Template() == qgctCombo) return QAccessible::ComboBox;
    return cell->Button() == qgbtSpin ? QAccessible::SpinBox : QAccessible::EditableText;
}

QAccessible::State AccessibleRow::state() const {
    QAccessible::State state;
    const auto cell = ShownCell();
    if (!cell) {
        state.invalid = state.invisible = true;
        return state;
    }
    const std::int32_t level = Grid()->UserLevel();
    const bool current = Grid()->Cell() == cell.get();
    state.disabled = !widget_->isEnabled() || !cell->Enabled() || level < cell->UserLevelEnabled();
    state.readOnly = !IsHeading(*cell) && !IsEditable(*cell, level);
    state.invisible = !widget_->isVisible();
    state.offscreen = Grid()->ValueArea(*cell).IsEmpty();
    state.focusable = state.selectable = true;
    state.selected = current;
    state.focused = current && Notices()->HasFocus();
    state.invalid = IsRefused(*cell);
    if (!IsHeading(*cell)) {
        DescribeKind(*cell, state);
        if (IsBoolean(*cell) && IsDataVisible(*cell, level)) DescribeCheck(*cell, state);
        if (!state.hasPopup) return state;
        state.expandable = true;
        state.expanded = OpenPad() != nullptr;
        state.collapsed = !state.expanded;
        return state;
    }
    state.expandable = true;
    state.expanded = IsExpanded(*cell);
    state.collapsed = !state.expanded;
    return state;
}

bool AccessibleRow::IsExpanded(const Cell& heading) const {
    const auto group = Grid()->Groups().Find(heading.Group());
    return group && group->Expanded();
}

// Towards the rows, which stand at the left where the labels are at the right.
std::int32_t AccessibleRow::FoldingKey(const Cell& heading) const {
    return IsExpanded(heading) == (Grid()->Alignment() == qgalLeftJustify) ? KeyLeft : KeyRight;
}

void* AccessibleRow::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::ActionInterface) return static_cast<QAccessibleActionInterface*>(this);
    const QAccessible::Role kind = role();
    const bool reads = kind != QAccessible::Heading && kind != QAccessible::CheckBox;
    if (type == QAccessible::TextInterface && reads) return static_cast<QAccessibleTextInterface*>(this);
    if (type == QAccessible::ValueInterface && kind == QAccessible::SpinBox)
        return static_cast<QAccessibleValueInterface*>(this);
    return nullptr;
}

QVariant AccessibleRow::NumberOf(const Variant& value) const {
    const auto number = ToDouble(value, LocaleFromQt(widget_->locale()));
    return number ? QVariant(*number) : QVariant();
}

QVariant AccessibleRow::currentValue() const {
    const auto cell = ShownCell();
    return cell && IsDataVisible(*cell, Grid()->UserLevel()) ? NumberOf(cell->Value()) : QVariant();
}

QVariant AccessibleRow::maximumValue() const {
    const auto cell = ShownCell();
    return cell ? NumberOf(cell->Max()) : QVariant();
}

QVariant AccessibleRow::minimumValue() const {
    const auto cell = ShownCell();
    return cell ? NumberOf(cell->Min()) : QVariant();
}

QVariant AccessibleRow::minimumStepSize() const {
    const auto cell = ShownCell();
    return cell ? NumberOf(Variant(cell->Increment())) : QVariant();
}

QString AccessibleRow::text(int start, int end) const {
    const QString shown = Shown();
    const auto length = static_cast<int>(shown.size());
    const int from = std::clamp(start, 0, length);
    const int to = end < 0 ? length : std::clamp(end, from, length);
    return shown.mid(from, to - from);
}

QString AccessibleRow::attributes(int, int* start, int* end) const {
    *start = 0;
    *end = characterCount();
    return {};
}

QStringList AccessibleRow::actionNames() const {
    const auto cell = ShownCell();
    if (!cell) return {};
    QStringList names{setFocusAction()};
    if (IsHeading(*cell)) return Grid()->ShowGroupBox() ? names << pressAction() : names;
    if (!IsEditable(*cell, Grid()->UserLevel())) return names;
    if (IsBoolean(*cell)) return names << toggleAction() << pressAction();
    if (cell->Button() == qgbtSpin) return names << increaseAction() << decreaseAction();
    return CanDrop(*cell) ? names << showMenuAction() << pressAction() : names;
}

QStringList AccessibleRow::keyBindingsForAction(const QString& name) const {
    const auto cell = ShownCell();
    if (!cell || !actionNames().contains(name)) return {};
    if (name == setFocusAction()) return {Notices()->AccessKeyOf(*cell)};
    if (name == increaseAction()) return {QStringLiteral("Shift+Up")};
    if (name == decreaseAction()) return {QStringLiteral("Shift+Down")};
    return IsHeading(*cell) ? QStringList() : QStringList{QStringLiteral("F4")};
}

void AccessibleRow::doAction(const QString& name) {
    const auto cell = ShownCell();
    if (cell && widget_->isEnabled() && actionNames().contains(name)) Act(cell, name);
}

// As the keyboard does it, so that the program's handlers hear of it as they do of a key. They may close the
// window, and with it the row.
void AccessibleRow::Act(const std::shared_ptr<Cell>& cell, const QString& name) {
    const QPointer<QuillgridWidget> widget = widget_;
    Quillgrid& grid = *Grid();
    const bool steps = name == increaseAction() || name == decreaseAction();
    const std::int32_t opener = IsHeading(*cell) ? FoldingKey(*cell) : static_cast<std::int32_t>(KeyF4);
    const std::int32_t stepper = name == increaseAction() ? KeyUp : KeyDown;
    widget->setFocus(Qt::OtherFocusReason);
    if (!widget) return;
    cell->SetFocus();
    if (!widget || grid.Cell() != cell.get()) return; // a handler keeps the user where he is
    if (name == setFocusAction()) return;
    grid.KeyDown(steps ? stepper : opener, steps ? ShiftShift : ShiftNone);
}

} // namespace quillgrid::qt
