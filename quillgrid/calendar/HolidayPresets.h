#pragma once

#include "quillgrid/base/Constants.h"
#include "quillgrid/base/Export.h"

#include <cstdint>
#include <string_view>

namespace quillgrid {

/// One rule of a preset. Its key is its display name too.
struct PresetRule {
    std::string_view Key;
    HolidayTypeConstants DayType;
    std::int16_t Month;
    std::int16_t Day;
    std::int16_t Shift;
};

/// A country's rules in the order of its enable string. The names stay German in every language.
struct HolidayPreset {
    const PresetRule* Rules;
    std::int16_t Size;
    const PresetRule* begin() const { return Rules; }
    const PresetRule* end() const { return Rules + Size; }
};

/// Nothing for qgahdNone; every number outside the list gives the international preset.
QUILLGRID_EXPORT const HolidayPreset* FindPreset(AutoHolidayConstants preset);

} // namespace quillgrid
