#include "quillgrid/hosts/headless/CalendarHost.h"

namespace quillgrid::headless {

CalendarHost::CalendarHost(std::string_view locale, bool userMode) {
    Surface.Inner = {};
    Site.Running = userMode;
    Pad = std::make_unique<QGCalendar>(CalendarPorts{.Window = Surface,
                                                     .Container = Site,
                                                     .Metrics = Metrics,
                                                     .Time = Clock,
                                                     .Desktop = Theme,
                                                     .Menu = Menu,
                                                     .UserLocale = BuiltInLocale(locale)});
    Pad->DateChange.Listen([this] { Journal.Note("change"); });
    Pad->DateClick.Listen([this] { Journal.Note("click"); });
    Pad->Refresh();
    Journal.Clear();
    Surface.Invalid.clear();
}

bool CalendarHost::Press(std::int32_t keyCode) {
    std::int32_t code = keyCode;
    if (Pad) Pad->KeyDown(code);
    return code == 0;
}

void CalendarHost::Click(Point point) {
    Clock.Held.Left = true;
    Pad->MouseDown(point);
    Clock.Held.Left = false;
    if (Pad) Pad->MouseUp(point);
}

Point CalendarHost::MiddleOf(std::int32_t day) const {
    const Rect cell = Pad->Layout().Cell(Pad->View().CellOf(day));
    return {(cell.Left + cell.Right) / 2, (cell.Top + cell.Bottom) / 2};
}

RecordingCanvas CalendarHost::Paint() const {
    RecordingCanvas canvas;
    Pad->Paint(canvas, Pad->Layout().Pad);
    return canvas;
}

} // namespace quillgrid::headless
