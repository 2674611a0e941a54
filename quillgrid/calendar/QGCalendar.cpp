#include "quillgrid/calendar/QGCalendar.h"

#include "quillgrid/calendar/CalendarKeys.h"
#include "quillgrid/calendar/CalendarPainter.h"
#include "quillgrid/calendar/CalendarPropertyTable.h"
#include "quillgrid/calendar/DateSteps.h"
#include "quillgrid/calendar/MonthViewBuilder.h"

#include <algorithm>
#include <utility>

namespace quillgrid {

namespace {

constexpr std::int32_t Enter = 13;
constexpr std::int32_t Escape = 27;
constexpr std::int32_t Space = 32;

CalendarValues Defaults(const CalendarPorts& ports) {
    CalendarValues values;
    values.Pad.Font = ports.Container.AmbientFont();
    values.Days.CurrentDate = {ports.Time.Now().Day};
    return values;
}

} // namespace

QGCalendar::QGCalendar(CalendarPorts ports)
    : state_(std::move(ports), *this), mouse_(state_, *this), userMode_(state_.Ports.Container.UserMode()) {
    InitProperties();
}

QGCalendar::~QGCalendar() {
    state_.Life.reset();
    state_.Days.SetOwner(nullptr);
    state_.Ports.Menu.Close();
}

void QGCalendar::InitProperties() {
    CalendarValues values = Defaults(state_.Ports);
    state_.Settings = std::move(values.Pad);
    Days() = std::move(values.Days);
    state_.Days.RestoreAutoHolidays(Days().AutoHolidays);
    state_.Redraw = true;
}

void QGCalendar::ReadProperties(const PropertyBag& bag) {
    CalendarValues values{state_.Settings, Days()};
    ReadCalendarValues(bag, state_.Ports.UserLocale, Defaults(state_.Ports), values);
    state_.Settings = std::move(values.Pad);
    Days() = std::move(values.Days);
    state_.Days.RestoreAutoHolidays(Days().AutoHolidays);
    state_.Redraw = true;
    Refresh();
}

void QGCalendar::WriteProperties(PropertyBag& bag) const {
    WriteCalendarValues(bag, {state_.Settings, Days()}, Defaults(state_.Ports));
}

CalendarNames QGCalendar::NamesNow() const {
    return CalendarNames::Of(state_.Ports.UserLocale, Days().FirstDayOfWeek, Days().FirstWeekOfYear);
}

Size QGCalendar::NeededSize() const {
    return CalendarMeasures::Of(state_.Ports.Metrics, state_.Settings.Font, NamesNow()).Needed();
}

Size QGCalendar::RoomySize() const {
    const CalendarNames names = NamesNow();
    CalendarMeasures measures = CalendarMeasures::Of(state_.Ports.Metrics, state_.Settings.Font, names);
    for (const std::string& name : names.ShortDays)
        measures.DayWidth =
            std::max(measures.DayWidth, state_.Ports.Metrics.TextWidth(state_.Settings.Font, name));
    return measures.Needed();
}

void QGCalendar::Refresh() {
    if (!state_.Redraw) return;
    state_.Names = NamesNow();
    CalendarMeasures measures =
        CalendarMeasures::Of(state_.Ports.Metrics, state_.Settings.Font, state_.Names);
    measures.Present = state_.Ports.Window.InnerSize();
    state_.Layout = LayOutCalendar(measures);
    ShowMonth();
    const Size size{state_.Layout.Pad.Right, state_.Layout.Pad.Bottom};
    // The last thing done: windows tell their resizing at once, and lead back here.
    if (size != measures.Present) state_.Ports.Window.Resize(size);
}

void QGCalendar::ShowMonth() {
    state_.View = MonthViewBuilder(state_).Build();
    state_.Ports.Window.Invalidate(state_.Layout.Pad);
}

/// Another month is painted whole, another day of the same month changes two cells and the status line.
void QGCalendar::ShowDate() {
    if (!state_.Redraw || !state_.IsLaidOut()) return;
    const CivilDate date = PartsFromDay(CurrentDate().Day);
    if (!state_.View.IsOf(date.Year, date.Month)) return ShowMonth();
    const std::int32_t before = state_.View.CellOf(state_.View.Current);
    MonthViewBuilder(state_).MoveTo(CurrentDate());
    Surface& window = state_.Ports.Window;
    window.Invalidate(state_.Layout.Cell(before));
    window.Invalidate(state_.Layout.Cell(state_.View.CellOf(date.Day)));
    window.Invalidate(state_.Layout.Bottom);
}

void QGCalendar::CurrentDateAssigned(DateTime before) {
    ShowDate();
    if (!Enabled() || before.Day == CurrentDate().Day) return;
    const std::weak_ptr<bool> life = state_.Life;
    DateChange.Raise();
    if (!life.expired()) PropertyChanged("CurrentDate");
}

void QGCalendar::HolidaysReloaded() {
    if (state_.Redraw && state_.IsLaidOut()) ShowMonth();
}

void QGCalendar::PropertyChanged(std::string_view key) {
    const std::weak_ptr<bool> life = state_.Life;
    state_.Ports.Container.PropertyChanged(key);
    if (!life.expired() && !userMode_ && IsCalendarLook(key)) Refresh();
}

void QGCalendar::Configure(std::string CalendarSettings::*preset, std::string config, std::string_view key) {
    const std::weak_ptr<bool> life = state_.Life;
    Days().*preset = std::move(config);
    PropertyChanged(key);
    if (!life.expired()) SetAutoHolidays(AutoHolidays());
}

void QGCalendar::SetConfigGermany(std::string config) {
    Configure(&CalendarSettings::ConfigGermany, std::move(config), "ConfigGermany");
}
void QGCalendar::SetConfigAustria(std::string config) {
    Configure(&CalendarSettings::ConfigAustria, std::move(config), "ConfigAustria");
}
void QGCalendar::SetConfigSwitzerland(std::string config) {
    Configure(&CalendarSettings::ConfigSwitzerland, std::move(config), "ConfigSwitzerland");
}
void QGCalendar::SetConfigEurope(std::string config) {
    Configure(&CalendarSettings::ConfigEurope, std::move(config), "ConfigEurope");
}

bool QGCalendar::Confirm() {
    const std::weak_ptr<bool> life = state_.Life;
    DateClick.Raise();
    return !life.expired();
}

std::int16_t QGCalendar::CurrentMonth() const {
    return static_cast<std::int16_t>(PartsFromDay(CurrentDate().Day).Month);
}
std::int16_t QGCalendar::CurrentYear() const {
    return static_cast<std::int16_t>(PartsFromDay(CurrentDate().Day).Year);
}
std::int16_t QGCalendar::CurrentDay() const {
    return static_cast<std::int16_t>(PartsFromDay(CurrentDate().Day).Day);
}
void QGCalendar::SetCurrentMonth(std::int16_t month) {
    SetCurrentDate(WithMonth(CurrentDate(), month));
}
void QGCalendar::SetCurrentYear(std::int16_t year) {
    SetCurrentDate(WithYear(CurrentDate(), year));
}
void QGCalendar::SetCurrentDay(std::int16_t day) {
    SetCurrentDate(WithDay(CurrentDate(), day));
}

void QGCalendar::SetEnabled(bool enabled) {
    if (enabled == Enabled()) return;
    mouse_.Cancel();
    Assign(state_.Settings.Enabled, enabled, "Enabled");
}

void QGCalendar::OpenMonths() {
    if (Enabled() && state_.IsLaidOut()) mouse_.OpenMonths();
}

void QGCalendar::OpenYears() {
    if (Enabled() && state_.IsLaidOut()) mouse_.OpenYears();
}

void QGCalendar::PickToday() {
    if (Enabled()) mouse_.PickToday();
}

void QGCalendar::KeyDown(std::int32_t& keyCode, std::int32_t) {
    if (!Enabled()) return;
    const auto date = DateForKey(state_.Days, keyCode);
    if (!date) return;
    keyCode = 0;
    SetCurrentDate(*date);
}

void QGCalendar::KeyPress(std::int32_t& character) {
    if (!Enabled()) return;
    const std::int32_t typed = std::exchange(character, 0);
    if (typed == Enter || typed == Space || typed == Escape) Confirm();
}

void QGCalendar::MouseDown(Point point, PadButton button) {
    if (Enabled() && state_.IsLaidOut()) mouse_.Down(point, button);
}

void QGCalendar::MouseMove(Point point) {
    if (Enabled() && state_.IsLaidOut()) mouse_.Move(point);
}

void QGCalendar::MouseUp(Point point) {
    if (Enabled()) mouse_.Up(point);
}

void QGCalendar::Hidden() {
    mouse_.Cancel();
    mouse_.Leave();
    state_.Ports.Menu.Close();
}

void QGCalendar::Paint(Canvas& canvas, const Rect& dirty) const {
    CalendarPainter(state_.Layout, state_.View, canvas).Paint(dirty);
}

std::string QGCalendar::HolidayName(DateTime date) {
    const std::int32_t day = NearestValidDay(date.Day);
    std::string name = state_.Days.VisitMonth({day}).Name(PartsFromDay(day).Day);
    state_.Days.VisitMonth(CurrentDate());
    return name;
}

std::string QGCalendar::TimeZone(DateTime date) const {
    const auto range = state_.Ranges.Find(date);
    return range ? range->Key() : std::string();
}

} // namespace quillgrid
