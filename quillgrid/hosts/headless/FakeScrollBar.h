#pragma once

#include "quillgrid/platform/ScrollBar.h"

namespace quillgrid::headless {

/// A scroll bar that holds what it was given.
class FakeScrollBar : public ScrollBar {
public:
    bool Visible = false;
    Rect Area;
    std::int32_t Minimum = 0;
    std::int32_t Maximum = 0;
    std::int32_t Page = 0;
    std::int32_t Value = 0;
    bool UpArrow = false;
    bool DownArrow = false;

    void SetRange(std::int32_t minimum, std::int32_t maximum, std::int32_t page) override {
        Minimum = minimum;
        Maximum = maximum;
        Page = page;
    }
    void SetValue(std::int32_t value) override { Value = value; }
    void EnableArrows(bool up, bool down) override {
        UpArrow = up;
        DownArrow = down;
    }
    void Place(const Rect& area) override {
        Area = area;
        Visible = true;
    }
    void Hide() override { Visible = false; }
};

} // namespace quillgrid::headless
