#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/calendar/CalendarMenus.h"
#include "quillgrid/calendar/CalendarPadState.h"
#include "quillgrid/calendar/CalendarPlace.h"
#include "quillgrid/calendar/CalendarTips.h"
#include "quillgrid/calendar/StepRepeater.h"

#include <optional>

namespace quillgrid {

enum class PadButton : std::uint8_t { Left, Right, Other };

/// What the mouse does in a calendar pad.
class QUILLGRID_EXPORT CalendarMouse {
public:
    CalendarMouse(CalendarPadState& state, CalendarCommands& commands)
        : state_(state),
          commands_(commands),
          menus_(state, commands),
          tips_(state),
          repeater_(state.Ports.Time) {}

    void Down(Point point, PadButton button);
    void Move(Point point) { tips_.Show(PlaceAt(point)); }
    void Up(Point point);
    void Leave() { tips_.Forget(); }
    /// The menus of the caption, and what a click on the status line does, for keys.
    void OpenMonths() { menus_.ShowMonths({state_.Layout.CaptionText.Left, 0}); }
    void OpenYears() { menus_.ShowYears({state_.View.YearStart, 0}); }
    void PickToday();
    /// Whatever a press began ends: its release will not come.
    void Cancel();

private:
    CalendarPlace PlaceAt(Point point) const {
        return CalendarPlace::At(point, state_.Layout, state_.View, state_.Settings.ShowButtons);
    }
    void OpenMenu(Point point);
    void PressButton(CalendarPadLayout::Button which);
    bool Step(CalendarPadLayout::Button which);
    void PickDay(std::int32_t cell);

    CalendarPadState& state_;
    CalendarCommands& commands_;
    CalendarMenus menus_;
    CalendarTips tips_;
    StepRepeater repeater_;
    std::optional<std::int32_t> pressedCell_;
};

} // namespace quillgrid
