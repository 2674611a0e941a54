#include "quillgrid/locale/DateWords.h"

#include "quillgrid/base/Text.h"
#include "quillgrid/locale/PatternText.h"

#include <algorithm>
#include <iterator>

namespace quillgrid {

namespace {

struct MonthWord {
    std::string_view Text;
    int Month;
};

// Common besides the names that the locales print.
constexpr MonthWord FurtherMonths[] = {{"jänner", 1}, {"jän", 1}, {"feber", 2}, {"mrz", 3}, {"sept", 9}};
constexpr std::string_view Mornings[] = {"am", "a"};
constexpr std::string_view Afternoons[] = {"pm", "p"};
// "16 de noviembre", "um 9:30 Uhr", and the letter between an ISO date and its time.
constexpr std::string_view Fillers[] = {"de", "del", "der", "den", "of", "the", "le", "at", "um", "uhr", "t"};

bool MayBeginAlike(char left, char right) {
    const bool ascii = ((left | right) & 0x80) == 0;
    return !ascii || LowerLetter(left) == LowerLetter(right);
}

bool IsName(std::string_view word, std::string_view name) {
    if (!name.empty() && name.back() == '.') name.remove_suffix(1);
    return !name.empty() && MayBeginAlike(word[0], name[0]) && EqualIgnoreCase(word, name);
}

template <typename Names>
bool IsAmong(std::string_view word, const Names& names) {
    return std::any_of(std::begin(names), std::end(names),
                       [word](std::string_view name) { return IsName(word, name); });
}

template <typename Names>
int PositionAmong(std::string_view word, const Names& names) {
    const auto found = std::find_if(std::begin(names), std::end(names),
                                    [word](std::string_view name) { return IsName(word, name); });
    return found == std::end(names) ? 0 : static_cast<int>(found - std::begin(names)) + 1;
}

int MonthOf(std::string_view word, const Locale& locale) {
    const int month = PositionAmong(word, locale.MonthNames);
    return month > 0 ? month : PositionAmong(word, locale.ShortMonthNames);
}

int FurtherMonth(std::string_view word) {
    for (const MonthWord& month : FurtherMonths) {
        if (IsName(word, month.Text)) return month.Month;
    }
    return 0;
}

bool IsDay(std::string_view word, const Locale& locale) {
    return IsAmong(word, locale.DayNames) || IsAmong(word, locale.ShortDayNames);
}

} // namespace

DateWord LookUpDateWord(std::string_view word, const Locale& locale) {
    using Meaning = DateWord::Meaning;
    const Locale& german = BuiltInLocale("de-DE");
    const Locale& english = BuiltInLocale("en-US");
    const bool day = IsDay(word, locale) || IsDay(word, german) || IsDay(word, english);
    for (const Locale* names : {&locale, &german, &english}) {
        if (const int month = MonthOf(word, *names); month > 0) return {Meaning::Month, month, day};
    }
    if (const int month = FurtherMonth(word); month > 0) return {Meaning::Month, month, day};
    if (day) return {Meaning::Day};
    if (IsName(word, locale.Am) || IsAmong(word, Mornings)) return {Meaning::Morning};
    if (IsName(word, locale.Pm) || IsAmong(word, Afternoons)) return {Meaning::Afternoon};
    if (IsAmong(word, Fillers)) return {Meaning::Filler};
    return {};
}

} // namespace quillgrid
