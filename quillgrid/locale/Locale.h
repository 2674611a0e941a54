#pragma once

#include "quillgrid/base/Constants.h"
#include "quillgrid/base/Export.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace quillgrid {

enum class DateOrder : std::uint8_t { DayMonthYear, MonthDayYear, YearMonthDay };

/// Where a currency symbol stands beside the number.
enum class CurrencyPlace : std::uint8_t { Before, BeforeWithBlank, After, AfterWithBlank };

/// How the user's part of the world writes numbers, money, dates and times: one plain value. Negative numbers
/// and money always carry their minus in front, so that what is shown can be typed again.
struct QUILLGRID_EXPORT Locale {
    std::string Name; ///< "de-DE", "en-US" ...

    std::string DecimalSeparator;
    std::string GroupSeparator; ///< UTF-8, possibly a no-break space or U+2019
    std::string CurrencySymbol;
    CurrencyPlace CurrencySymbolPlace = CurrencyPlace::AfterWithBlank;
    int CurrencyDecimals = 2;

    DateOrder Order = DateOrder::DayMonthYear;
    std::string ShortDate; ///< a date pattern, always with a four-digit year: "dd.mm.yyyy"
    std::string MediumDate;
    std::string LongDate;      ///< "dddd, d. mmmm yyyy"
    std::string LongTime;      ///< "hh:nn:ss" or "h:nn:ss AM/PM"
    std::string ShortTime;     ///< "hh:nn"
    std::string MediumTime;    ///< "hh:nn AM/PM"
    std::string DateSeparator; ///< what "/" stands for in a date pattern
    std::string TimeSeparator; ///< what ":" stands for in a date pattern
    std::string Am;
    std::string Pm;

    std::array<std::string, 12> MonthNames;
    std::array<std::string, 12> ShortMonthNames;
    std::array<std::string, 7> DayNames; ///< Sunday first
    std::array<std::string, 7> ShortDayNames;

    std::string Yes, No, True, False, On, Off;

    DayOfWeekConstants FirstDayOfWeek = qgdwMonday;
    FirstWeekOfYearConstants FirstWeekOfYear = qgfwFirstFourDays;

    /// Orders captions and font names; case-folded code points when not set.
    std::function<int(std::string_view, std::string_view)> CompareText;

    int Compare(std::string_view left, std::string_view right) const;
};

/// The built-in locale for a name: "de-DE", "de-AT", "de-CH", "en-US", "en-GB", "fr-FR", "it-IT", "es-ES".
/// Case and "_" for "-" do not matter; another country of a known language gives the language's first
/// ("fr-CA" gives fr-FR), anything else the default, de-DE. Never fails.
QUILLGRID_EXPORT const Locale& BuiltInLocale(std::string_view name);
/// Whether `BuiltInLocale` has exactly this language and country.
QUILLGRID_EXPORT bool HasBuiltInLocale(std::string_view name);

} // namespace quillgrid
