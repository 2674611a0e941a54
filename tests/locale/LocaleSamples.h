#pragma once

#include "quillgrid/base/DateTime.h"
#include "quillgrid/locale/Locale.h"

#include <array>
#include <string_view>

namespace quillgrid {

inline constexpr std::array<std::string_view, 8> AllLocaleNames = {"de-DE", "de-AT", "de-CH", "en-US",
                                                                   "en-GB", "fr-FR", "it-IT", "es-ES"};

inline DateTime At(int year, int month, int day, int hour = 0, int minute = 0, int second = 0) {
    return {DayFromParts(year, month, day).value(), SecondsFromParts(hour, minute, second).value()};
}

} // namespace quillgrid
