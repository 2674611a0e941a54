#pragma once

#include "quillgrid/hosts/qt/AccessiblePad.h"
#include "quillgrid/hosts/qt/CalcPadWidget.h"

namespace quillgrid::qt {

/// The calculator: its display and, in the order of their numbers, its keys.
class AccessibleCalculator : public AccessiblePad {
public:
    static constexpr int Display = 1;

    AccessibleCalculator(QWidget& face, CalcPadWidget& pad)
        : AccessiblePad(face, pad, QAccessible::Grouping) {}

    PadPart Part(int number) const override;
    int Current() const override { return Display; }
    int CountIn(int container) const override;
    int NumberAt(Point point) const override;
    void GoTo(int) override {}

protected:
    QString Name() const override;
    QString Value() const override;

private:
    CalcPadWidget* Calculator() const { return dynamic_cast<CalcPadWidget*>(Pad()); }
    QString NameOf(std::int32_t key) const;
};

} // namespace quillgrid::qt
