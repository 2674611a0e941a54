#include "quillgrid/locale/DatePattern.h"

#include "quillgrid/base/Text.h"
#include "quillgrid/locale/PatternText.h"

#include <algorithm>
#include <utility>

namespace quillgrid {

namespace {

bool StartsWith(std::string_view text, std::string_view lowerPrefix) {
    return text.size() >= lowerPrefix.size() &&
           std::equal(lowerPrefix.begin(), lowerPrefix.end(), text.begin(),
                      [](char lower, char character) { return lower == LowerLetter(character); });
}

/// The length of "AM/PM" or "A/P" at the start of the text, else 0.
std::size_t HalfDayLength(std::string_view text) {
    for (const std::string_view name : {std::string_view("am/pm"), std::string_view("a/p")}) {
        if (StartsWith(text, name)) return name.size();
    }
    return 0;
}

bool ShowsHalfDays(std::string_view pattern) {
    if (pattern.find_first_of("aA") == std::string_view::npos) return false;
    while (!pattern.empty()) {
        if (HalfDayLength(pattern) > 0) return true;
        pattern.remove_prefix(std::max<std::size_t>(ShieldedLength(pattern), 1));
    }
    return false;
}

struct Letter {
    char Character;
    std::size_t Longest;
};
constexpr Letter Letters[] = {{'d', 6}, {'m', 4}, {'y', 4}, {'h', 2}, {'n', 2},
                              {'s', 2}, {'w', 2}, {'q', 1}, {'c', 1}, {'t', 5}};

std::size_t LongestRun(char lower) {
    for (const Letter& letter : Letters) {
        if (letter.Character == lower) return letter.Longest;
    }
    return 0;
}

/// How many characters at the start of the text make one date part, 0 for none.
std::size_t PartLength(std::string_view text) {
    const char first = LowerLetter(text[0]);
    const std::size_t longest = std::min(LongestRun(first), text.size());
    std::size_t length = 0;
    while (length < longest && LowerLetter(text[length]) == first)
        ++length;
    if (first == 'y' && length == 3) return 2;
    if (first == 't' && length < 5) return 0;
    return length;
}

/// Writes one point in time by patterns of one locale.
class DateWriter {
public:
    DateWriter(DateTime value, const Locale& locale)
        : value_(value), parts_(PartsFromDay(value.Day)), locale_(locale) {}

    void Write(std::string_view pattern) {
        const bool outerHalfDays = halfDays_;
        halfDays_ = ShowsHalfDays(pattern);
        afterHour_ = false;
        ++depth_;
        while (!pattern.empty())
            pattern.remove_prefix(WriteFirst(pattern));
        --depth_;
        halfDays_ = outerHalfDays;
    }
    void WriteGeneral() {
        if (value_.Day != 0) Write(locale_.ShortDate);
        if (value_.Day != 0 && value_.Second != 0) out_ += ' ';
        if (value_.Day == 0 || value_.Second != 0) Write(locale_.LongTime);
    }
    std::string Result() { return std::move(out_); }

private:
    int Hour() const { return value_.Second / 3600; }
    int Minute() const { return value_.Second / 60 % 60; }

    // Writes what stands at the start of the pattern and gives its length.
    std::size_t WriteFirst(std::string_view pattern) {
        if (const std::size_t length = PartLength(pattern); length > 0) {
            WritePart(LowerLetter(pattern[0]), length);
            return length;
        }
        if (const std::size_t length = ShieldedLength(pattern); length > 0) {
            out_ += WithoutMarks(pattern.substr(0, length));
            return length;
        }
        if (const std::size_t length = HalfDayLength(pattern); length > 0) {
            WriteHalfDay(pattern.substr(0, length));
            return length;
        }
        WriteLiteral(pattern[0]);
        return 1;
    }
    void WriteLiteral(char character) {
        if (character == '/') {
            out_ += locale_.DateSeparator;
        } else if (character == ':') {
            out_ += locale_.TimeSeparator;
        } else {
            out_ += character;
        }
    }
    void WriteHalfDay(std::string_view pattern) {
        const std::string& own = Hour() < 12 ? locale_.Am : locale_.Pm;
        std::string_view text = own.empty() ? (Hour() < 12 ? "AM" : "PM") : std::string_view(own);
        if (pattern.size() == std::string_view("a/p").size()) text = FirstCharacters(text, 1);
        if (pattern[0] == 'a') {
            out_ += LowerCase(text);
        } else {
            out_ += text;
        }
    }
    void WritePart(char letter, std::size_t length) {
        const bool minutes = letter == 'm' && length <= 2 && afterHour_;
        afterHour_ = letter == 'h';
        switch (letter) {
        case 'd': WriteDay(length); break;
        case 'm':
            if (minutes) {
                WriteNumber(Minute(), length);
            } else {
                WriteMonth(length);
            }
            break;
        case 'y': WriteYear(length); break;
        case 'h': WriteNumber(halfDays_ ? (Hour() + 11) % 12 + 1 : Hour(), length); break;
        case 'n': WriteNumber(Minute(), length); break;
        case 's': WriteNumber(value_.Second % 60, length); break;
        case 'w': WriteWeek(length); break;
        case 'q': WriteNumber(Quarter(value_.Day), 1); break;
        case 't': WriteNested(locale_.LongTime); break;
        default: WriteGeneralNested(); break;
        }
    }
    void WriteDay(std::size_t length) {
        switch (length) {
        case 3: out_ += locale_.ShortDayNames[DayIndex()]; break;
        case 4: out_ += locale_.DayNames[DayIndex()]; break;
        case 5: WriteNested(locale_.ShortDate); break;
        case 6: WriteNested(locale_.LongDate); break;
        default: WriteNumber(parts_.Day, length); break;
        }
    }
    void WriteMonth(std::size_t length) {
        const auto index = static_cast<std::size_t>(parts_.Month - 1);
        switch (length) {
        case 3: out_ += locale_.ShortMonthNames[index]; break;
        case 4: out_ += locale_.MonthNames[index]; break;
        default: WriteNumber(parts_.Month, length); break;
        }
    }
    void WriteYear(std::size_t length) {
        switch (length) {
        case 1: WriteNumber(DayOfYear(value_.Day), 1); break;
        case 2: WriteNumber(parts_.Year % 100, 2); break;
        default: WriteNumber(parts_.Year, 4); break;
        }
    }
    void WriteWeek(std::size_t length) {
        WriteNumber(length == 1 ? Weekday(value_.Day, locale_.FirstDayOfWeek)
                                : WeekOfYear(value_.Day, locale_.FirstDayOfWeek, locale_.FirstWeekOfYear),
                    1);
    }
    std::size_t DayIndex() const { return static_cast<std::size_t>(Weekday(value_.Day, qgdwSunday) - 1); }
    // A locale whose own patterns name each other must not send us round in circles.
    bool MayNest() const { return depth_ < 2; }
    void WriteNested(const std::string& pattern) {
        if (MayNest()) Write(pattern);
    }
    void WriteGeneralNested() {
        if (MayNest()) WriteGeneral();
    }
    void WriteNumber(int number, std::size_t width) {
        char digits[12];
        std::size_t count = 0;
        for (int rest = number; rest > 0 || count < width; rest /= 10) {
            digits[sizeof digits - ++count] = static_cast<char>('0' + rest % 10);
        }
        out_.append(digits + sizeof digits - count, count);
    }

    DateTime value_;
    CivilDate parts_;
    const Locale& locale_;
    std::string out_;
    int depth_ = 0;
    bool halfDays_ = false;
    bool afterHour_ = false;
};

bool IsValid(DateTime value) {
    return IsValidDay(value.Day) && value.Second >= 0 && value.Second < SecondsPerDay;
}

} // namespace

std::string WriteByDatePattern(DateTime value, std::string_view pattern, const Locale& locale) {
    if (!IsValid(value)) return {};
    DateWriter writer(value, locale);
    writer.Write(pattern);
    return writer.Result();
}

std::string WriteGeneralDate(DateTime value, const Locale& locale) {
    if (!IsValid(value)) return {};
    DateWriter writer(value, locale);
    writer.WriteGeneral();
    return writer.Result();
}

} // namespace quillgrid
