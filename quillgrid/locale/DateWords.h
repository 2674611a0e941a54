#pragma once

#include "quillgrid/locale/Locale.h"

#include <string_view>

namespace quillgrid {

/// What a word in a written date or time says.
struct DateWord {
    enum class Meaning { Unknown, Month, Day, Morning, Afternoon, Filler };

    Meaning Says = Meaning::Unknown;
    int Month = 0;         ///< 1 to 12 for a month
    bool MayBeDay = false; ///< a month that is a day's name too: "mar" in Italy
};

/// Looks a word up among the names of the locale, of German and of English, ignoring case. A point behind a
/// listed name does not count.
DateWord LookUpDateWord(std::string_view word, const Locale& locale);

} // namespace quillgrid
