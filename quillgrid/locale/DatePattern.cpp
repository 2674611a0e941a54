#include "quillgrid/locale/DatePattern.h"

#include "quillgrid/base/Text.h"
#include "quillgrid/locale/DateParts.h"
#include "quillgrid/locale/PatternText.h"

#include <utility>

namespace quillgrid {

namespace {

/// Writes one point in time by patterns of one locale.
class DateWriter {
public:
    DateWriter(DateTime value, const Locale& locale)
        : value_(value), parts_(PartsFromDay(value.Day)), locale_(locale) {}

    void Write(std::string_view pattern) {
        const bool outerHalfDays = halfDays_;
        halfDays_ = NamesHalfDays(pattern);
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
        if (const std::size_t length = DatePartLength(pattern); length > 0) {
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
    void WriteTwoDigits(int number, std::size_t width) {
        if (width == 2 || number >= 10) out_ += static_cast<char>('0' + number / 10);
        out_ += static_cast<char>('0' + number % 10);
    }
    void WriteNumber(int number, std::size_t width) {
        if (number < 100 && width <= 2) {
            WriteTwoDigits(number, width);
            return;
        }
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
