#include "quillgrid/hosts/qt/AccessibleGrid.h"

#include "quillgrid/grid/Quillgrid.h"
#include "quillgrid/hosts/qt/AccessibilityNotices.h"
#include "quillgrid/hosts/qt/AccessiblePad.h"
#include "quillgrid/hosts/qt/Conversions.h"
#include "quillgrid/hosts/qt/QuillgridWidget.h"

#include <QApplication>

#include <algorithm>

namespace quillgrid::qt {

namespace {

QAccessibleInterface* Make(const QString&, QObject* object) {
    auto* widget = qobject_cast<QuillgridWidget*>(object);
    return widget ? new AccessibleGrid(*widget) : nullptr;
}

} // namespace

void AccessibleGrid::Install() {
    static const bool installed = [] {
        QAccessible::installFactory(&Make);
        return true;
    }();
    static_cast<void>(installed);
}

AccessibleGrid::AccessibleGrid(QuillgridWidget& widget)
    : QAccessibleWidget(&widget, QAccessible::Form),
      none_(QAccessible::registerAccessibleInterface(new AccessibleRow(widget, {}))) {}

AccessibleGrid::~AccessibleGrid() {
    for (const auto& [cell, id] : rows_)
        QAccessible::deleteAccessibleInterface(id);
    QAccessible::deleteAccessibleInterface(none_);
}

QuillgridWidget& AccessibleGrid::Widget() const {
    return *static_cast<QuillgridWidget*>(widget());
}

Quillgrid* AccessibleGrid::Grid() const {
    AccessibilityNotices* notices = widget() ? AccessibilityNotices::Of(Widget()) : nullptr;
    if (!notices) return nullptr;
    notices->SomebodyAsks();
    return &notices->Grid();
}

QAccessibleInterface* AccessibleGrid::InterfaceOf(Cell& cell) const {
    const auto known = rows_.find(&cell);
    if (known != rows_.end()) {
        QAccessibleInterface* row = QAccessible::accessibleInterface(known->second);
        if (row && static_cast<AccessibleRow*>(row)->IsFor(cell)) return row;
        QAccessible::deleteAccessibleInterface(known->second); // of a cell that stood at the same address
    }
    auto* row = new AccessibleRow(Widget(), cell.weak_from_this());
    rows_[&cell] = QAccessible::registerAccessibleInterface(row);
    return row;
}

// A form that is filled again and again must not gather rows for ever. Readers keep numbers of rows from one
// question to the next, not the objects.
void AccessibleGrid::ForgetGoneRows() const {
    if (rows_.size() < roomy_) return;
    std::erase_if(rows_, [](const auto& entry) {
        const auto* row = static_cast<AccessibleRow*>(QAccessible::accessibleInterface(entry.second));
        if (row && !row->IsGone()) return false;
        QAccessible::deleteAccessibleInterface(entry.second);
        return true;
    });
    roomy_ = std::max<std::size_t>(512, 2 * rows_.size());
}

QAccessibleInterface* AccessibleGrid::RowAt(std::int32_t row) const {
    Quillgrid* grid = Grid();
    Cell* cell = grid ? grid->RowCell(row) : nullptr;
    if (!cell) return QAccessible::accessibleInterface(none_);
    ForgetGoneRows();
    return InterfaceOf(*cell);
}

int AccessibleGrid::childCount() const {
    const Quillgrid* grid = Grid();
    return (grid ? grid->RowCount() : 0) + QAccessibleWidget::childCount();
}

QAccessibleInterface* AccessibleGrid::child(int index) const {
    const Quillgrid* grid = Grid();
    const int rows = grid ? grid->RowCount() : 0;
    if (index >= 0 && index < rows) return RowAt(index + 1);
    QAccessibleInterface* widget = index < rows ? nullptr : QAccessibleWidget::child(index - rows);
    return widget ? widget : RowAt(0);
}

int AccessibleGrid::indexOfChild(const QAccessibleInterface* child) const {
    if (!child) return -1;
    if (const auto* row = dynamic_cast<const AccessibleRow*>(child)) return row->Row() - 1;
    const int place = QAccessibleWidget::indexOfChild(child);
    const Quillgrid* grid = Grid();
    return place < 0 ? place : place + (grid ? grid->RowCount() : 0);
}

QAccessibleInterface* AccessibleGrid::childAt(int x, int y) const {
    const Quillgrid* grid = Grid();
    if (!grid || !rect().contains(x, y)) return nullptr;
    const std::int32_t first = std::max(1, grid->FirstVisibleRow());
    const std::int32_t last = std::min(grid->RowCount(), first + grid->VisibleRows());
    for (std::int32_t row = first; row <= last; ++row) {
        QAccessibleInterface* one = RowAt(row);
        if (one->rect().contains(x, y)) return one;
    }
    return nullptr;
}

QAccessibleInterface* AccessibleGrid::focusChild() const {
    const Quillgrid* grid = Grid();
    if (!grid || !AccessibilityNotices::Of(Widget())->HasFocus()) return nullptr;
    if (PadWidget* pad = AccessibilityNotices::Of(Widget())->OpenPad()) {
        AccessiblePad* open = AccessiblePad::Of(*pad);
        if (QAccessibleInterface* part = open ? open->focusChild() : nullptr) return part;
    }
    QWidget* focus = QApplication::focusWidget();
    if (focus != widget()) return QAccessible::queryAccessibleInterface(focus);
    return grid->Cell() ? RowAt(grid->CurrentRow()) : nullptr;
}

QString AccessibleGrid::text(QAccessible::Text which) const {
    QString own = QAccessibleWidget::text(which);
    const Quillgrid* grid = Grid();
    if (!own.isEmpty() || !grid) return own;
    if (which == QAccessible::Name && grid->ShowCaption()) return ToQString(grid->Caption()).remove(u'&');
    return which == QAccessible::Description ? ToQString(grid->TooltipText()) : own;
}

} // namespace quillgrid::qt
