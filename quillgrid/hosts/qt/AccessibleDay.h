#pragma once

#include "quillgrid/hosts/qt/AccessiblePart.h"

namespace quillgrid::qt {

/// A day of a calendar as a cell of its table.
class AccessibleDay : public AccessiblePart, public QAccessibleTableCellInterface {
public:
    using AccessiblePart::AccessiblePart;

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TableCellInterface) return static_cast<QAccessibleTableCellInterface*>(this);
        return AccessiblePart::interface_cast(type);
    }

    bool isSelected() const override { return state().selected; }
    QList<QAccessibleInterface*> columnHeaderCells() const override { return {}; }
    QList<QAccessibleInterface*> rowHeaderCells() const override { return {}; }
    int columnIndex() const override;
    int rowIndex() const override;
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override { return parent(); }
};

} // namespace quillgrid::qt
