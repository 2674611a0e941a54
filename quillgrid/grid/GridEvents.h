#pragma once

#include "quillgrid/cells/Cell.h"
#include "quillgrid/grid/GridState.h"
#include "quillgrid/grid/PublishedEvents.h"
#include "quillgrid/platform/Surface.h"

namespace quillgrid {

/// Raises the published events; the one place that knows when Silent, a missing focus or the end of the
/// control keep them back. The cells handed in must be held by the caller.
class GridEvents {
public:
    GridEvents(GridState& state, Surface& window, PublishedEvents& events)
        : state_(state), window_(window), events_(&events) {}

    /// The control ends: nothing is raised any more.
    void Terminate() { events_ = nullptr; }

    /// True when a handler cancelled.
    bool ValidateCellError(Cell& cell, ValidationErrConstants code);
    bool ValidateCell(Cell& cell);
    void SelChange(Cell& cell);
    /// Only while the control has the focus.
    void Change(Cell& cell);
    /// With the sound.
    void Beep();
    /// The character as handlers left it; 0: drop it.
    char32_t KeyPress(Cell& cell, char32_t character);
    /// Key code and modifiers as handlers left them; code 0: drop the key.
    void KeyDown(Cell& cell, std::int32_t& keyCode, std::int32_t& shift);
    void KeyUp(Cell& cell, std::int32_t& keyCode, std::int32_t& shift);
    void LeaveFocus(Cell& cell);
    void ImageClick(Cell& cell);
    /// In units of the container.
    void DropDown(Cell& cell, float x, float y);
    void CloseBoxClick();
    void MenuClick(float x, float y);

private:
    GridState& state_;
    Surface& window_;
    PublishedEvents* events_;
};

} // namespace quillgrid
