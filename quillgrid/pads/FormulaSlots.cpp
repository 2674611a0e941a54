#include "quillgrid/pads/FormulaSlots.h"

#include <utility>

namespace quillgrid {

namespace {

struct DefaultFormula {
    const char* Key;
    const char* Text;
    std::int32_t ListImage;
    const char* TooltipText;
};

constexpr DefaultFormula Defaults[] = {
    {"F5", "X*1.95583", 30, "F5 Euro/DM"},
    {"F6", "X/1.95583", 31, "F6 DM/Euro"},
    {"F7", "100*X/116", 46, "F7 Netto"},
    {"F8", "116*X/100", 45, "F8 Brutto"},
};

} // namespace

void FormulaSlots::Define(std::int32_t slot, std::string text, Variant listImage, std::string tooltipText) {
    EnsureSlots();
    if (slot < 1 || slot > Count) return;
    const auto formula = formulas_.At(static_cast<std::size_t>(slot));
    formula->SetText(std::move(text));
    formula->SetListImage(std::move(listImage));
    formula->SetTooltipText(std::move(tooltipText));
    Rebuild(slot);
}

void FormulaSlots::EnsureSlots() {
    if (formulas_.Count() >= Count) return;
    for (const auto& preset : Defaults)
        formulas_.Add({.Key = formulas_.Find(preset.Key) ? "" : preset.Key});
}

void FormulaSlots::InstallDefaults() {
    std::int32_t slot = 0;
    for (const auto& preset : Defaults)
        Define(++slot, preset.Text, preset.ListImage, preset.TooltipText);
}

void FormulaSlots::Rebuild() {
    for (std::int32_t slot = 1; slot <= Count; ++slot)
        Rebuild(slot);
}

void FormulaSlots::Rebuild(std::int32_t slot) {
    const auto formula = formulas_.At(static_cast<std::size_t>(slot));
    auto& kept = slots_[static_cast<std::size_t>(slot)];
    kept.KeyText = formula ? KeyTextOf(formula->Text()) : std::string();
    kept.ImageIndex = formula ? PositionOfImage(formula->ListImage()) : 0;
}

std::int32_t FormulaSlots::PositionOfImage(const Variant& image) const {
    if (!images_ || image.IsNull() || image.IsEmpty()) return 0;
    const ItemKey which(image);
    const auto* const wanted = which.IsKey() ? images_->Find(which.Key()) : images_->At(which.Position());
    if (!wanted) return 0;
    if (!which.IsKey()) return static_cast<std::int32_t>(which.Position());
    for (std::size_t position = 1; position <= images_->Count(); ++position) {
        if (images_->At(position) == wanted) return static_cast<std::int32_t>(position);
    }
    return 0;
}

const FormulaSlots::Slot& FormulaSlots::At(std::int32_t slot) const {
    return slots_[slot >= 1 && slot <= Count ? static_cast<std::size_t>(slot) : 0];
}

const std::string& FormulaSlots::KeyText(std::int32_t slot) const {
    return At(slot).KeyText;
}

std::int32_t FormulaSlots::ImageIndex(std::int32_t slot) const {
    return At(slot).ImageIndex;
}

std::string FormulaSlots::TooltipText(std::int32_t slot) const {
    const auto formula = slot >= 1 && slot <= Count ? formulas_.At(static_cast<std::size_t>(slot)) : nullptr;
    return formula ? formula->TooltipText() : std::string();
}

std::string FormulaSlots::KeyTextOf(std::string_view formula) {
    std::string keys;
    keys.reserve(formula.size());
    for (const char c : formula) {
        if (c != '(') keys.push_back(c == ')' ? '=' : c);
    }
    return keys;
}

} // namespace quillgrid
