#include "quillgrid/hosts/qt/AccessibilityNotices.h"

#include "quillgrid/cells/LanguageTexts.h"
#include "quillgrid/hosts/qt/AccessibleGrid.h"
#include "quillgrid/hosts/qt/Conversions.h"
#include "quillgrid/hosts/qt/QtPads.h"
#include "quillgrid/hosts/qt/QuillgridWidget.h"

#include <QApplication>
#include <QEvent>

#include <algorithm>
#include <iterator>
#include <utility>

namespace quillgrid::qt {

namespace {

constexpr std::int32_t EnglishMessages = 1000; ///< this much further on than the German ones

/// More new rows than these are told of as a whole. Only of few rows it can be said that they stand in
/// another order: the bus of a desktop is then sent a signal for each of them.
constexpr std::ptrdiff_t FewNews = 16;
constexpr std::size_t FewRows = 200;

void Tell(QAccessibleInterface& of, QAccessible::Event kind) {
    QAccessibleEvent event(&of, kind);
    QAccessible::updateAccessibility(&event);
}

} // namespace

AccessibilityNotices::AccessibilityNotices(Quillgrid& grid, QuillgridWidget& widget, QWidget& bubble,
                                           const QtPads& pads)
    : QObject(&widget), grid_(grid), widget_(widget), bubble_(bubble), pads_(pads) {
    bubble_.installEventFilter(this);
    grid_.Change.Listen([this](Cell& cell) { TellValue(cell); });
    grid_.SelChange.Listen([this](Cell& cell) { TellFocus(cell); });
    grid_.ValidateCellError.Listen([this](Cell& cell, ValidationErrConstants&, bool&) { Refused(cell); });
}

AccessibilityNotices* AccessibilityNotices::Of(const QWidget& widget) {
    return widget.findChild<AccessibilityNotices*>({}, Qt::FindDirectChildrenOnly);
}

// After a sort a cell knows its row; before it, and for one of another control, the rows know better.
std::int32_t AccessibilityNotices::RowOf(const Quillgrid& grid, const Cell& cell) {
    if (grid.RowCell(cell.Index()) == &cell) return cell.Index();
    for (std::int32_t row = grid.RowCount(); row > 0; --row) {
        if (grid.RowCell(row) == &cell) return row;
    }
    return 0;
}

bool AccessibilityNotices::HasFocus() const {
    const QWidget* focus = QApplication::focusWidget();
    return focus && (focus == &widget_ || widget_.isAncestorOf(focus));
}

bool AccessibilityNotices::IsRefused(const Cell& cell) const {
    return !bubble_.isHidden() && refused_.lock().get() == &cell;
}

QString AccessibilityNotices::RequiredText() const {
    const LanguageConstants language = grid_.Language();
    const bool german = language == qglgDefault || language == qglgGerman;
    return ToQString(ErrorText(german ? qgerrEmpty : qgerrEmpty + EnglishMessages));
}

QString AccessibilityNotices::AccessKeyOf(const Cell& cell) const {
    const QString caption = ToQString(cell.Caption());
    const qsizetype mark = caption.indexOf(u'&');
    if (mark < 0 || mark + 1 >= caption.size()) return {};
    return QStringLiteral("Alt+") + caption.at(mark + 1).toUpper();
}

void AccessibilityNotices::SomebodyAsks() {
    if (!std::exchange(asked_, true)) told_ = Rows();
}

PadWidget* AccessibilityNotices::OpenPad() const {
    return pads_.Open();
}

QAccessibleInterface* AccessibilityNotices::CurrentRow() const {
    return grid_.Cell() ? RowInterface(*grid_.Cell()) : nullptr;
}

std::vector<const Cell*> AccessibilityNotices::Rows() const {
    std::vector<const Cell*> rows;
    rows.reserve(static_cast<std::size_t>(grid_.RowCount()));
    for (std::int32_t row = 1; row <= grid_.RowCount(); ++row)
        rows.push_back(grid_.RowCell(row));
    return rows;
}

void AccessibilityNotices::RowsChanged() {
    if (tells_ || !asked_ || !QAccessible::isActive()) return;
    tells_ = true;
    const auto tell = [this] {
        tells_ = false;
        if (parent()) TellRows();
    };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

// What stands before and after the rows that changed is not looked at twice.
void AccessibilityNotices::TellRows() {
    const std::vector<const Cell*> before = std::exchange(told_, Rows());
    auto* grid = dynamic_cast<AccessibleGrid*>(QAccessible::queryAccessibleInterface(&widget_));
    const auto [oldFirst, newFirst] = std::mismatch(before.begin(), before.end(), told_.begin(), told_.end());
    const auto [oldLast, newLast] = std::mismatch(before.rbegin(), std::make_reverse_iterator(oldFirst),
                                                  told_.rbegin(), std::make_reverse_iterator(newFirst));
    const auto gone = std::distance(oldFirst, oldLast.base());
    const auto come = std::distance(newFirst, newLast.base());
    if (!grid || (gone == 0 && come == 0)) return;
    const auto first = static_cast<std::int32_t>(std::distance(told_.begin(), newFirst)) + 1;
    if (gone > 0 && told_.size() <= FewRows) return Tell(*grid, QAccessible::ObjectReorder);
    if (gone > 0 || come > FewNews) Tell(*grid, QAccessible::VisibleDataChanged);
    const auto told = static_cast<std::int32_t>(come > FewNews ? 1 : come); // one of many says that there are
    for (std::int32_t row = first; row < first + told; ++row)
        Tell(*grid->RowAt(row), QAccessible::ObjectCreated);
}

QAccessibleInterface* AccessibilityNotices::RowInterface(const Cell& cell) const {
    if (!asked_ && !QAccessible::isActive()) return nullptr;
    const std::int32_t row = RowOf(grid_, cell);
    auto* grid = dynamic_cast<AccessibleGrid*>(QAccessible::queryAccessibleInterface(&widget_));
    return grid && row > 0 ? grid->RowAt(row) : nullptr;
}

void AccessibilityNotices::TellChecked(QAccessibleInterface& row) {
    QAccessible::State changed;
    changed.checked = true;
    QAccessibleStateChangeEvent state(&row, changed);
    QAccessible::updateAccessibility(&state);
}

void AccessibilityNotices::TellValue(const Cell& cell) {
    QAccessibleInterface* row = RowInterface(cell);
    if (!row) return;
    switch (row->role()) { // each kind has the one event that Qt passes on
    case QAccessible::CheckBox: return TellChecked(*row);
    case QAccessible::EditableText: {
        QAccessibleTextInsertEvent text(row, 0, row->text(QAccessible::Value));
        return QAccessible::updateAccessibility(&text);
    }
    default: {
        QAccessibleValueChangeEvent value(row, row->text(QAccessible::Value));
        return QAccessible::updateAccessibility(&value);
    }
    }
}

// While the edit box is there Qt tells of its focus itself.
void AccessibilityNotices::TellFocus(const Cell& cell) {
    QAccessibleInterface* row = HasFocus() ? RowInterface(cell) : nullptr;
    if (!row) return;
    Tell(*row, QAccessible::Focus);
}

void AccessibilityNotices::Refused(Cell& cell) {
    refused_ = cell.weak_from_this();
}

void AccessibilityNotices::TellRefused() {
    const auto cell = refused_.lock();
    QAccessibleInterface* row = cell ? RowInterface(*cell) : nullptr;
    if (!row) return;
    QAccessible::State changed;
    changed.invalid = true;
    QAccessibleStateChangeEvent state(row, changed);
    QAccessible::updateAccessibility(&state);
    Tell(*row, QAccessible::DescriptionChanged);
}

bool AccessibilityNotices::eventFilter(QObject* watched, QEvent* event) {
    const bool told = event->type() == QEvent::Show || event->type() == QEvent::Hide;
    if (told && watched == &bubble_) TellRefused();
    return false;
}

} // namespace quillgrid::qt
