#include "quillgrid/hosts/headless/FakePads.h"

#include "quillgrid/locale/Locale.h"

namespace quillgrid::headless {

FakePads::FakePads(headless::Journal& journal, FakeClock& clock, std::string_view locale)
    : clock_(clock),
      locale_(BuiltInLocale(locale)),
      listWindow_(journal, "list", listSurface_.Inner),
      dateWindow_(journal, "calendar", dateSurface_.Inner),
      calcWindow_(journal, "calculator", calcSurface_.Inner) {}

FakePads::~FakePads() = default;

QGInputList& FakePads::Listpad() {
    if (!list_)
        list_ = std::make_unique<QGInputList>(
            InputListPorts{listSurface_, listWindow_, bar_, site_, metrics_, clock_, theme_, locale_});
    return *list_;
}

QGCalendar& FakePads::DatePad() {
    if (!date_) {
        dateSurface_.Inner = {};
        date_ = std::make_unique<QGCalendar>(
            CalendarPorts{dateSurface_, site_, metrics_, clock_, theme_, menu_, locale_});
        date_->Refresh();
    }
    return *date_;
}

QGCalcpad& FakePads::CalcPad() {
    if (!calc_) calc_ = std::make_unique<QGCalcpad>(CalcpadPorts{calcSurface_, site_, metrics_, locale_});
    return *calc_;
}

FakePadWindow& FakePads::WindowOf(PadKind kind) {
    switch (kind) {
    case PadKind::List: return listWindow_;
    case PadKind::Date: return dateWindow_;
    case PadKind::Calc: return calcWindow_;
    }
    return listWindow_;
}

void FakePads::ForgetCells() {
    if (!listWindow_.IsShown()) list_.reset();
}

int FakePads::ShownWindows() const {
    return listWindow_.IsShown() + dateWindow_.IsShown() + calcWindow_.IsShown();
}

Point FakePads::MiddleOfRow(std::int32_t rowInView) {
    const ListPadLayout& layout = Listpad().Layout();
    return {layout.Rows.Left + 5,
            layout.BorderWidth + layout.Rows.Top + (2 * rowInView - 1) * layout.RowHeight / 2};
}

Point FakePads::MiddleOfDay(std::int32_t day) {
    const Rect cell = DatePad().Layout().Cell(DatePad().View().CellOf(day));
    return {(cell.Left + cell.Right) / 2, (cell.Top + cell.Bottom) / 2};
}

Point FakePads::CornerOfKey(std::int32_t number) {
    const Rect key = CalcPad().Layout().Keys[static_cast<std::size_t>(number)];
    return {key.Left + 2, key.Top + 2};
}

} // namespace quillgrid::headless
