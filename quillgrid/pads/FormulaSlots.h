#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/base/Variant.h"
#include "quillgrid/pads/Formulas.h"
#include "quillgrid/platform/ImageSource.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace quillgrid {

/// The four formula keys: the formulas behind them, and what the keys use of each, kept ready.
class QUILLGRID_EXPORT FormulaSlots {
public:
    static constexpr std::int32_t Count = 4;

    quillgrid::Formulas& Formulas() { return formulas_; }
    const quillgrid::Formulas& Formulas() const { return formulas_; }

    /// The host's list, or null.
    void SetImages(const ImageSource* images) { images_ = images; }

    /// Gives a key 1..4 another formula, at once; other keys change nothing. Makes four empty formulas where
    /// there are fewer than four.
    void Define(std::int32_t slot, std::string text, Variant listImage, std::string tooltipText);
    /// Gives all keys their formulas of old: between two currencies, with and without tax.
    void InstallDefaults();
    /// Looks at texts and images of all formulas anew.
    void Rebuild();

    /// The characters that key 1..4 types, X for the value; empty for other keys.
    const std::string& KeyText(std::int32_t slot) const;
    /// The position in the image list of the face of key 1..4; 0 for none.
    std::int32_t ImageIndex(std::int32_t slot) const;
    std::string TooltipText(std::int32_t slot) const;

    /// The characters that a formula types.
    static std::string KeyTextOf(std::string_view formula);

private:
    struct Slot {
        std::string KeyText;
        std::int32_t ImageIndex = 0;
    };

    void EnsureSlots();
    void Rebuild(std::int32_t slot);
    std::int32_t PositionOfImage(const Variant& image) const;
    const Slot& At(std::int32_t slot) const;

    quillgrid::Formulas formulas_;
    const ImageSource* images_ = nullptr;
    std::array<Slot, Count + 1> slots_; ///< slots count from 1; the first stays empty
};

} // namespace quillgrid
