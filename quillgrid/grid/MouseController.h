#pragma once

#include "quillgrid/grid/CellDropDown.h"
#include "quillgrid/grid/GridEvents.h"
#include "quillgrid/grid/GridState.h"
#include "quillgrid/grid/GroupFolding.h"
#include "quillgrid/grid/HitTest.h"
#include "quillgrid/grid/OpenPads.h"
#include "quillgrid/grid/RepaintRequests.h"
#include "quillgrid/grid/RowSelector.h"
#include "quillgrid/grid/SpinRepeater.h"
#include "quillgrid/grid/ValueLayout.h"
#include "quillgrid/platform/ImageSource.h"
#include "quillgrid/platform/Site.h"
#include "quillgrid/platform/Surface.h"

namespace quillgrid {

/// What the mouse does.
class MouseController {
public:
    struct Partners {
        RowSelector& Selector;
        CellDropDown& DropDown;
        OpenPads& Pads;
        SpinRepeater& Spin;
        GroupFolding& Folding;
        GridEvents& Events;
        RepaintRequests& Repaint;
    };

    MouseController(GridState& state, const Partners& partners, Surface& window, const Site& site,
                    const ImageSource* images)
        : state_(state), with_(partners), window_(window), site_(site), images_(images) {}

    /// The left button went down.
    void Press(Point position);
    /// The left button came up.
    void Release(Point position);
    /// The pointer moved, with or without a button held.
    void Move(Point position, bool buttonHeld);
    /// The pointer left the surface.
    void Leave();
    /// In the edit box: as F4.
    void DoubleClick();

    // What a click does there, for keys. False where there is nothing to click.
    bool ClickCloseBox();
    bool ClickMenuBox();
    /// The picture of the current value.
    bool ClickImage();

private:
    /// Nothing is pressed any more at its end, whatever handlers do until then.
    class LetGo {
    public:
        explicit LetGo(MouseController& mouse) : mouse_(mouse) {}
        ~LetGo() { mouse_.SetPressed({}); }
        LetGo(const LetGo&) = delete;
        LetGo& operator=(const LetGo&) = delete;

    private:
        MouseController& mouse_;
    };

    Hit HitAt(Point position) const;
    void PressRow(const Hit& hit, Point position, bool closing);
    void PressImage(const std::shared_ptr<Cell>& cell);
    void PressButton(const std::shared_ptr<Cell>& cell, Point position);
    void ToggleGroup(std::int32_t row);
    void SetPressed(const MousePart& part);
    void SetHot(const MousePart& part);
    void RepaintPart(const MousePart& part);
    MousePart PartAt(const Hit& hit) const;
    bool IsOnImage(const Cell& cell, std::int32_t row, Point position) const;
    ValueLayout PartsOf(const Cell& cell, std::int32_t row) const;
    bool IsOnButtonOfOpenPad(const Hit& hit) const;
    bool HasGroup(std::int32_t row) const;

    GridState& state_;
    Partners with_;
    Surface& window_;
    const Site& site_;
    const ImageSource* images_;
};

} // namespace quillgrid
