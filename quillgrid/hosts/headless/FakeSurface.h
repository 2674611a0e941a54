#pragma once

#include "quillgrid/hosts/headless/Journal.h"
#include "quillgrid/hosts/headless/RecordingCanvas.h"
#include "quillgrid/platform/Surface.h"

#include <functional>
#include <string>
#include <vector>

namespace quillgrid::headless {

/// Which part of the control has the keyboard focus.
enum class FocusPlace { Outside, Surface, EditBox };

/// A window that remembers what was asked of it.
class FakeSurface : public Surface {
public:
    FakeSurface(Journal& journal, FocusPlace& focus) : journal_(journal), focus_(focus) {}

    Size Inner{300, 200};
    std::vector<Rect> Invalid; ///< areas that wait to be painted
    std::string Tooltip;
    bool MayResize = true;
    std::function<void()> Resized; ///< the host's notice of a new size
    MousePointer Pointer = MousePointer::Default;
    int BusyTimes = 0; ///< how often the pointer told of work
    int Beeps = 0;
    Colour Background = 0;
    RecordingCanvas Drawn; ///< by the host, on top of what the control painted

    Size InnerSize() const override { return Inner; }
    void Resize(Size size) override {
        if (MayResize) Inner = size;
        if (Resized) Resized();
    }
    void Invalidate(const Rect& area) override;
    bool HasFocus() const override { return focus_ != FocusPlace::Outside; }
    void Focus() override { focus_ = FocusPlace::Surface; }
    void SetBackColour(Colour colour) override { Background = colour; }
    Canvas& Drawing() override { return Drawn; }
    void SetPointer(MousePointer pointer) override;
    void SetTooltip(std::string_view text) override { Tooltip = text; }
    void Beep() override { ++Beeps; }

private:
    Journal& journal_;
    FocusPlace& focus_;
};

} // namespace quillgrid::headless
