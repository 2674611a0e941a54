#include "quillgrid/grid/CalcDropDown.h"

#include "quillgrid/pads/QGCalcpad.h"

namespace quillgrid {

namespace {

struct FormulaKey {
    std::int32_t Slot;
    const char* Tooltip;
    std::int32_t Image;
    const char* Text;
};

constexpr FormulaKey FormulaKeys[] = {
    {1, "F5 Euro/DM", 30, "X*1.95583"},
    {2, "F6 DM/Euro", 31, "X/1.95583"},
    {3, "F7 Netto", 46, "100*X/116"},
    {4, "F8 Brutto", 45, "116*X/100"},
};

} // namespace

void CalcDropDown::Show(const std::shared_ptr<Cell>& cell) {
    PadWindow& window = results_.Pads.Detach(PadKind::Calc, cell);
    QGCalcpad& pad = results_.Pads.Factory().CalcPad();
    Listen();
    pad.SetDoublePrecision(false);
    pad.SetValue(cell->Value());
    pad.SetImageList(ports_.Images);
    for (const FormulaKey& key : FormulaKeys)
        pad.DefineFormula(key.Slot, key.Text, Variant(key.Image), key.Tooltip);
    pad.SetMin(cell->Min());
    pad.SetMax(cell->Max());
    pad.SetNumSeparators(results_.State.Settings.NumSeparators);
    pad.Refresh();
    results_.ShowBelow(window);
}

void CalcDropDown::Listen() {
    QGCalcpad& pad = results_.Pads.Factory().CalcPad();
    const auto guarded = [this, control = results_.State.Self](void (CalcDropDown::*act)()) {
        return [this, control, act] {
            if (const auto held = control.lock()) (this->*act)();
        };
    };
    done_ = pad.CloseUp.Connect(guarded(&CalcDropDown::Done));
    computed_ = pad.ValueChange.Connect(guarded(&CalcDropDown::Computed));
}

void CalcDropDown::Done() {
    if (const auto cell = results_.Target()) {
        cell->SetValue(results_.Pads.Factory().CalcPad().Value());
        results_.Show(*cell);
    }
    results_.Close(false);
}

} // namespace quillgrid
