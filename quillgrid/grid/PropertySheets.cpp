#include "quillgrid/grid/PropertySheets.h"

#include "quillgrid/cells/CellProperties.h"
#include "quillgrid/cells/LanguageTexts.h"
#include "quillgrid/grid/GridPropertyTable.h"

namespace quillgrid {

namespace {

void RefuseUnless(bool converted) {
    if (!converted) throw RaiseControlError(qgerrUserDefined, "Property:Value Property Let");
}

} // namespace

std::shared_ptr<Properties> PropertySheets::GridSheet() {
    if (!std::exchange(grid_.Built, true)) {
        for (const std::uint8_t row : SheetOrder)
            grid_.List->Add({.Key = std::string(PropertyAt(row).Name)});
        Listen(grid_, &PropertySheets::WriteGrid, &PropertySheets::ReadGrid);
    }
    return grid_.List;
}

std::shared_ptr<Properties> PropertySheets::CellSheet() {
    if (!std::exchange(cell_.Built, true)) {
        for (const CellProperty& property : ListedCellProperties())
            cell_.List->Add({.Key = std::string(property.Name)});
        Listen(cell_, &PropertySheets::WriteCell, &PropertySheets::ReadCell);
    }
    return cell_.List;
}

// Whoever works on a sheet need not hold the control.
void PropertySheets::Listen(Sheet& sheet, Handler written, Handler read) {
    sheet.List->SelChange.Listen([this, &sheet, control = state_.Self, written, read](Property& item) {
        if (const auto held = control.lock()) Hear(sheet, item, written, read);
    });
}

void PropertySheets::Hear(Sheet& sheet, Property& item, Handler written, Handler read) {
    if (state_.Terminated) return;
    const auto carry = [this](Handler handler) {
        return [this, control = state_.Self, handler](const std::string& name, Variant& value) {
            const auto held = control.lock();
            if (held && !state_.Terminated) (this->*handler)(name, value);
        };
    };
    sheet.Written = item.Changed.Connect(carry(written));
    sheet.Read = item.QueryValue.Connect(carry(read));
}

void PropertySheets::WriteGrid(const std::string& name, Variant& value) {
    if (const auto* property = FindGridProperty(name)) RefuseUnless(setter_.Set(*property, value));
}

/// The sheet has no way to read AutoHolidays: it gives what was written through it last.
void PropertySheets::ReadGrid(const std::string& name, Variant& value) {
    const auto* property = FindGridProperty(name);
    if (property && property != &PropertyNamed("AutoHolidays")) value = setter_.Get(*property);
}

void PropertySheets::WriteCell(const std::string& name, Variant& value) {
    const auto cell = CurrentCell();
    const auto* property = FindCellProperty(name);
    if (cell && property && property->Write) RefuseUnless(property->Write(*cell, value, locale_));
}

void PropertySheets::ReadCell(const std::string& name, Variant& value) {
    const auto* property = FindCellProperty(name);
    if (!property || !property->Read) return;
    const auto cell = CurrentCell();
    value = cell ? property->Read(*cell) : Variant::Null();
}

std::shared_ptr<Cell> PropertySheets::CurrentCell() const {
    return state_.Working ? state_.Working->shared_from_this() : state_.Current;
}

void PropertySheets::DefineCurrentCell(const Record& record) {
    const auto held = state_.Self.lock();
    const FlagGuard silent(state_.Silent, true, false);
    const auto sheet = CellSheet();
    for (std::int32_t position = 1; position <= sheet->Count(); ++position) {
        const std::string name = sheet->At(static_cast<std::size_t>(position))->Key();
        auto value = record.Field(name);
        if (!value) continue;
        try {
            sheet->Item(name)->SetValue(std::move(*value));
        } catch (const ControlError&) { // the other fields may still fit
        }
    }
}

void PropertySheets::Terminate() {
    for (Sheet* sheet : {&grid_, &cell_}) {
        sheet->Written.Disconnect();
        sheet->Read.Disconnect();
        sheet->List->Clear();
    }
}

} // namespace quillgrid
