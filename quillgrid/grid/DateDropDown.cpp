#include "quillgrid/grid/DateDropDown.h"

#include "quillgrid/calendar/QGCalendar.h"
#include "quillgrid/cells/CellAccess.h"
#include "quillgrid/locale/Coercion.h"
#include "quillgrid/locale/DateReader.h"

namespace quillgrid {

namespace {

constexpr std::int32_t Enter = 13;
constexpr std::int32_t Escape = 27;
constexpr std::int32_t Space = 32;

DateTime Day(std::int32_t year, std::int32_t month, std::int32_t day) {
    return {*DayFromParts(year, month, day), 0};
}

/// A text that reads as a date is one, as it is for what is typed; a number is none.
DateTime BoundOr(const Variant& bound, DateTime otherwise, const Locale& locale) {
    if (const auto* date = bound.Get<DateTime>()) return *date;
    const auto* text = bound.Get<std::string>();
    const auto read = text ? RecogniseDateTime(*text, locale) : std::nullopt;
    return read ? read->Value : otherwise;
}

} // namespace

void DateDropDown::Show(const std::shared_ptr<Cell>& cell) {
    PadWindow& window = results_.Pads.Detach(PadKind::Date, cell);
    QGCalendar& pad = results_.Pads.Factory().DatePad();
    Listen();
    pad.SetEnabled(!results_.IsLocked(*cell));
    dates_.ShareWith(pad, *cell);
    SetDates(*cell);
    pad.Refresh();
    results_.ShowBelow(window);
}

/// The bounds of the cell before would stand in the way of the date.
void DateDropDown::SetDates(const Cell& cell) {
    QGCalendar& pad = results_.Pads.Factory().DatePad();
    pad.SetMinDate(Day(100, 1, 1));
    pad.SetMaxDate(Day(9999, 12, 31));
    const auto date = ToDateTime(CellAccess::StoredValue(cell), locale_);
    pad.SetCurrentDate(date ? *date : DateTime{time_.Now().Day, 0});
    pad.SetMinDate(BoundOr(cell.Min(), Day(100, 1, 1), locale_));
    pad.SetMaxDate(BoundOr(cell.Max(), Day(9999, 1, 1), locale_));
    dates_.Calendar().SetCurrentDate(pad.CurrentDate());
}

void DateDropDown::Listen() {
    QGCalendar& pad = results_.Pads.Factory().DatePad();
    const auto guarded = [this, control = results_.State.Self](void (DateDropDown::*act)()) {
        return [this, control, act] {
            if (const auto held = control.lock()) (this->*act)();
        };
    };
    dateChanged_ = pad.DateChange.Connect(guarded(&DateDropDown::DateChanged));
    done_ = pad.DateClick.Connect(guarded(&DateDropDown::Done));
}

/// A calendar that is only to be looked at takes no keys: closing it is not its own affair then.
void DateDropDown::KeyPress(std::int32_t& character) {
    QGCalendar& pad = results_.Pads.Factory().DatePad();
    if (pad.Enabled()) return pad.KeyPress(character);
    if (character == Enter || character == Escape || character == Space) Done();
    character = 0;
}

void DateDropDown::DateChanged() {
    if (!results_.Pads.IsShown(PadKind::Date)) return; // it is only being prepared
    const DateTime date = results_.Pads.Factory().DatePad().CurrentDate();
    dates_.Calendar().SetCurrentDate(date);
    const auto cell = results_.Target();
    if (!cell) return;
    cell->SetValue(Variant(date));
    for (const auto& each : cells_) {
        CellAccess::SetChanged(*each, true);
        CellAccess::SetErrorCode(*each, qgErrNone);
    }
    results_.Show(*cell);
}

} // namespace quillgrid
