#pragma once

#include "quillgrid/hosts/headless/Journal.h"
#include "quillgrid/platform/PadPlace.h"
#include "quillgrid/platform/PadWindow.h"

#include <string>
#include <utility>

namespace quillgrid::headless {

/// The window of a pad on a screen on which the control stands at 1000,500. Writes into the journal when it
/// is shown and hidden.
class FakePadWindow : public PadWindow, public PadPlace {
public:
    FakePadWindow(Journal& journal, std::string name, const Size& size)
        : journal_(journal), name_(std::move(name)), size_(size) {}

    Point Corner{};
    Rect Value{}; ///< below which it dropped down
    bool Detached = false;

    void Detach(const Rect& value) override {
        Value = value;
        Detached = true;
    }
    Point ToScreen(Point onControl) const override { return {onControl.X + 1000, onControl.Y + 500}; }
    std::int32_t Width() const override { return size_.Width; }
    void ShowAt(Point corner) override {
        MoveTo(corner);
        Show();
    }
    void MoveTo(Point corner) override { Corner = corner; }
    void Show() override {
        shown_ = true;
        journal_.Note("open " + name_ + " at " + std::to_string(Corner.X) + "," + std::to_string(Corner.Y));
    }
    void BringToFront() override {}
    bool IsShown() const override { return shown_; }
    void Hide() override {
        shown_ = Detached = false;
        journal_.Note("close " + name_);
    }

private:
    Journal& journal_;
    std::string name_;
    const Size& size_;
    bool shown_ = false;
};

} // namespace quillgrid::headless
