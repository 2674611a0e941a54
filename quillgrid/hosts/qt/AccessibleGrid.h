#pragma once

#include "quillgrid/hosts/qt/AccessibleRow.h"

#include <QAccessibleWidget>

#include <unordered_map>

namespace quillgrid::qt {

/// The control as assistive programs see it: a form whose children are its rows and, after them, its child
/// widgets (the edit box, which Qt describes). Rows get an object when they are first asked for.
class AccessibleGrid : public QAccessibleWidget {
public:
    explicit AccessibleGrid(QuillgridWidget& widget);
    ~AccessibleGrid() override;

    /// Tells Qt how to make these; once is enough.
    static void Install();

    /// Never null: a place without a row gives a row that is not there, as readers ask by counts that may
    /// have changed meanwhile, and Qt stumbles over null.
    QAccessibleInterface* RowAt(std::int32_t row) const;
    /// Whether a row has been asked for already.
    bool Knows(const Cell& cell) const { return rows_.count(&cell) != 0; }

    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* child(int index) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;
    QString text(QAccessible::Text which) const override;

private:
    QuillgridWidget& Widget() const;
    /// Null while the control is going.
    Quillgrid* Grid() const;
    QAccessibleInterface* InterfaceOf(Cell& cell) const;
    void ForgetGoneRows() const;

    using Rows = std::unordered_map<const Cell*, QAccessible::Id>;
    mutable Rows rows_;
    mutable std::size_t roomy_ = 512; ///< rows that may gather before those that have gone are looked for
    QAccessible::Id none_;
};

} // namespace quillgrid::qt
