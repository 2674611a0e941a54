#include "quillgrid/grid/ListDropDown.h"

#include "quillgrid/base/Text.h"
#include "quillgrid/cells/CellAccess.h"
#include "quillgrid/locale/Coercion.h"
#include "quillgrid/pads/QGInputList.h"

namespace quillgrid {

namespace {

constexpr std::int32_t Escape = 27;

bool TakesFreeText(const Cell& cell) {
    return cell.Style() == qgcsText;
}

} // namespace

void ListDropDown::Show(const std::shared_ptr<Cell>& cell) {
    GridState& state = results_.State;
    PadWindow& window = results_.Pads.Detach(PadKind::List, cell);
    QGInputList& pad = results_.Pads.Factory().Listpad();
    Listen();
    before_ = {TakesFreeText(*cell) || cell->ListIndex() < 1, cell->Changed(), cell->Unit(),
               cell->ListImage()};
    pad.SetImageList(ports_.Images);
    Font font = pad.Font();
    font.Name = state.Settings.CellFont.Name;
    font.Size = state.Settings.CellFont.Size;
    font.Bold = state.Settings.CellFont.Bold;
    pad.SetFont(font);
    const Rect value = state.ValueArea(state.CurrentRow);
    const Point corner = window.ToScreen({value.Left, value.Bottom});
    {
        const FlagGuard opening(opening_);
        pad.Popup(cell, static_cast<float>(corner.X), static_cast<float>(corner.Y));
    }
    if (results_.Pads.IsShown(PadKind::List)) window.BringToFront();
}

void ListDropDown::Listen() {
    QGInputList& pad = results_.Pads.Factory().Listpad();
    const auto guarded = [this, control = results_.State.Self](void (ListDropDown::*act)()) {
        return [this, control, act] {
            if (const auto held = control.lock()) (this->*act)();
        };
    };
    rowChanged_ = pad.ValueChange.Connect(guarded(&ListDropDown::RowChanged));
    done_ = pad.CloseUp.Connect(guarded(&ListDropDown::Done));
}

void ListDropDown::KeyPress(std::int32_t& character) {
    const FlagGuard escaping(escaping_, character == Escape);
    results_.Pads.Factory().Listpad().KeyPress(character);
}

void ListDropDown::RowChanged() {
    const auto cell = results_.Target();
    if (!cell || (opening_ && TakesFreeText(*cell)) || (escaping_ && before_.Restores)) return;
    Take(cell);
}

void ListDropDown::Done() {
    const auto cell = results_.Target();
    if (cell && escaping_ && before_.Restores) Restore(*cell);
    if (cell && !escaping_) Take(cell);
    results_.Close(true);
}

void ListDropDown::Take(const std::shared_ptr<Cell>& cell) {
    const std::int32_t row = results_.Pads.Factory().Listpad().ListIndex();
    const auto entry = cell->Listitems().Item(row);
    if (!entry) return;
    if (cell->ValidationRule() == qgvrEuro) {
        TakeCurrency(*cell, *entry);
    } else if (row == cell->ListIndex()) {
        return;
    } else if (TakesFreeText(*cell)) {
        cell->SetValue(Variant(entry->Text()));
    } else {
        cell->SetListIndex(row);
    }
    results_.Show(*cell);
}

/// The amount is always computed from what the cell held at opening: moving over the list adds no roundings.
void ListDropDown::TakeCurrency(Cell& cell, const Listitem& entry) const {
    const std::string code = ToText(entry.ItemData(), ports_.UserLocale);
    if (EqualIgnoreCase(code, cell.Unit())) return;
    const auto amount = ToCurrency(results_.Pads.ValueBefore(), ports_.UserLocale);
    const auto converted =
        amount ? ports_.Currencies->Convert(*amount, before_.Unit, code) : std::optional<Currency>();
    cell.SetUnit(code);
    if (converted && !results_.Pads.ValueBefore().IsNull()) cell.SetValue(Variant(*converted));
    cell.SetListImage(entry.ListImage());
    cell.Refresh();
}

void ListDropDown::Restore(Cell& cell) const {
    if (cell.ValidationRule() == qgvrEuro) cell.SetUnit(before_.Unit);
    CellAccess::LoadValue(cell, results_.Pads.ValueBefore());
    if (TakesFreeText(cell)) cell.SetListImage(before_.Image);
    if (!before_.Changed) CellAccess::SetChanged(cell, false);
    cell.Refresh();
    results_.Show(cell);
}

bool ListDropDown::FillCurrencies(Cell& cell) const {
    if (cell.Unit().empty() || !ports_.Currencies) return false;
    Listitems& list = cell.Listitems();
    list.Clear();
    for (ListedCurrency& currency : ports_.Currencies->Currencies()) {
        const bool own = EqualIgnoreCase(currency.Code, cell.Unit());
        list.Add({.Text = currency.Country + " " + currency.Name,
                  .ItemData = Variant(std::move(currency.Code)),
                  .ListImage = std::move(currency.Image)});
        if (own) cell.SetListIndex(list.Count());
    }
    return true;
}

} // namespace quillgrid
