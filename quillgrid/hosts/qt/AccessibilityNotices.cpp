#include "quillgrid/hosts/qt/AccessibilityNotices.h"

#include "quillgrid/cells/LanguageTexts.h"
#include "quillgrid/hosts/qt/AccessibleGrid.h"
#include "quillgrid/hosts/qt/Conversions.h"
#include "quillgrid/hosts/qt/QuillgridWidget.h"

#include <QApplication>
#include <QEvent>

namespace quillgrid::qt {

namespace {

constexpr std::int32_t EnglishMessages = 1000; ///< this much further on than the German ones

} // namespace

AccessibilityNotices::AccessibilityNotices(Quillgrid& grid, QuillgridWidget& widget, QWidget& bubble)
    : QObject(&widget), grid_(grid), widget_(widget), bubble_(bubble) {
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
    QAccessibleEvent focus(row, QAccessible::Focus);
    QAccessible::updateAccessibility(&focus);
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
    QAccessibleEvent description(row, QAccessible::DescriptionChanged);
    QAccessible::updateAccessibility(&description);
}

bool AccessibilityNotices::eventFilter(QObject* watched, QEvent* event) {
    const bool told = event->type() == QEvent::Show || event->type() == QEvent::Hide;
    if (told && watched == &bubble_) TellRefused();
    return false;
}

} // namespace quillgrid::qt
