#pragma once

#include "quillgrid/hosts/qt/AccessiblePad.h"
#include "quillgrid/hosts/qt/ListPadWidget.h"

namespace quillgrid::qt {

/// The list that a cell drops down: its entries.
class AccessibleList : public AccessiblePad {
public:
    AccessibleList(QWidget& face, ListPadWidget& pad) : AccessiblePad(face, pad, QAccessible::List) {}

    PadPart Part(int number) const override;
    int Current() const override;
    int CountIn(int container) const override;
    int NumberAt(Point point) const override;
    void GoTo(int number) override;
    void Press(int number) override;

protected:
    QString Name() const override;
    QString Value() const override;

private:
    ListPadWidget* List() const { return dynamic_cast<ListPadWidget*>(Pad()); }
    void BringIntoView(int number);
};

} // namespace quillgrid::qt
