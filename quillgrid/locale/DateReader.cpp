#include "quillgrid/locale/DateReader.h"

#include "quillgrid/locale/DateText.h"

#include <algorithm>
#include <cstddef>
#include <span>

namespace quillgrid {

namespace {

using Number = DateText::Number;
using Numbers = std::span<const Number>;

constexpr int LeastYearDigits = 3;

/// Three runs of one to `mostDigits` digits with exactly `separator` between them and nothing else.
bool ReadThree(std::string_view text, char separator, std::ptrdiff_t mostDigits, Number (&numbers)[3]) {
    const char* at = text.data();
    const char* const end = at + text.size();
    for (Number& number : numbers) {
        const char* const begin = at;
        const char* const limit = begin + std::min(end - begin, mostDigits);
        std::int32_t value = 0;
        for (; at != limit && *at >= '0' && *at <= '9'; ++at)
            value = value * 10 + (*at - '0');
        if (at == begin) return false;
        number.Value = value;
        number.Digits = static_cast<int>(at - begin);
        if (&number == &numbers[2]) break;
        if (at == end || *at != separator) return false;
        ++at;
    }
    return at == end;
}

std::optional<std::int32_t> DayOf(std::int32_t typedYear, std::int32_t month, std::int32_t day) {
    const std::optional<int> year = ExpandYear(typedYear);
    return year ? DayFromDate(*year, month, day) : std::nullopt;
}

std::optional<std::int32_t> DayOfThree(Numbers numbers, DateOrder order) {
    const std::int32_t first = numbers[0].Value;
    const std::int32_t second = numbers[1].Value;
    const std::int32_t third = numbers[2].Value;
    if (numbers[0].Digits >= LeastYearDigits) return DayOf(first, second, third);
    switch (order) {
    case DateOrder::MonthDayYear: return DayOf(third, first, second);
    case DateOrder::YearMonthDay: return DayOf(first, second, third);
    default: return DayOf(third, second, first);
    }
}

std::optional<std::int32_t> DayOfTwo(Numbers numbers, int month) {
    if (numbers[0].Digits >= LeastYearDigits) return DayOf(numbers[0].Value, month, numbers[1].Value);
    return DayOf(numbers[1].Value, month, numbers[0].Value);
}

std::optional<int> HourOf(int typed, HalfDay half) {
    if (half == HalfDay::None) return typed;
    if (typed < 1 || typed > 12) return std::nullopt;
    return typed % 12 + (half == HalfDay::Afternoon ? 12 : 0);
}

bool HasTimeDigits(const Number& number) {
    return number.Digits <= 2;
}

std::optional<std::int32_t> SecondsOf(Numbers numbers, HalfDay half) {
    if (!std::all_of(numbers.begin(), numbers.end(), HasTimeDigits)) return std::nullopt;
    const std::optional<int> hour = HourOf(numbers[0].Value, half);
    if (!hour) return std::nullopt;
    return SecondsFromParts(*hour, numbers.size() > 1 ? numbers[1].Value : 0,
                            numbers.size() > 2 ? numbers[2].Value : 0);
}

/// Decides which of the numbers are the date and which the time.
class DateTextReader {
public:
    DateTextReader(const DateText& text, DateOrder order)
        : text_(text), order_(order), numbers_(text.Numbers.data(), text.Count) {}

    std::optional<RecognisedDateTime> Read() {
        if (!Split()) return std::nullopt;
        const bool fitsDate = date_.size() == DateCount() || (date_.empty() && text_.Month == 0);
        const bool fitsHalf = text_.Half == HalfDay::None || !time_.empty();
        if (!fitsDate || !fitsHalf) return std::nullopt;
        return ReadParts();
    }

private:
    // A named month leaves two numbers to write.
    std::size_t DateCount() const { return text_.Month > 0 ? 2 : 3; }

    bool Split() {
        const std::size_t begin = ColonGroupBegin();
        const std::size_t end = ColonGroupEnd(begin);
        if (LooksLikeTime(numbers_.subspan(begin, end - begin))) return SplitAround(begin, end);
        if (text_.Half == HalfDay::None) return SplitAfterDate(2);
        return SplitAfterDate(1) || (text_.Month == 0 && SplitAt(0));
    }
    std::size_t ColonGroupBegin() const {
        std::size_t begin = 0;
        while (begin + 1 < numbers_.size() && !numbers_[begin + 1].AfterColon)
            ++begin;
        return begin;
    }
    std::size_t ColonGroupEnd(std::size_t begin) const {
        std::size_t end = std::min(begin + 1, numbers_.size());
        while (end < numbers_.size() && numbers_[end].AfterColon)
            ++end;
        return end;
    }
    // 16:11:2026 is a date.
    static bool LooksLikeTime(Numbers group) {
        return group.size() >= 2 && group.size() <= 3 &&
               std::all_of(group.begin(), group.end(), HasTimeDigits);
    }
    bool SplitAround(std::size_t begin, std::size_t end) {
        time_ = numbers_.subspan(begin, end - begin);
        const bool fraction = time_.size() == 3 && end + 1 == numbers_.size() && numbers_[end].AfterPoint;
        const Numbers behind = numbers_.subspan(fraction ? end + 1 : end);
        const Numbers before = numbers_.first(begin);
        date_ = before.empty() ? behind : before;
        return before.empty() || behind.empty();
    }
    // The date's numbers first, then none or at least `leastTime` of the time.
    bool SplitAfterDate(std::size_t leastTime) {
        if (numbers_.size() < DateCount()) return false;
        const std::size_t time = numbers_.size() - DateCount();
        const bool enough = time >= leastTime || (time == 0 && text_.Half == HalfDay::None);
        return enough && SplitAt(DateCount());
    }
    bool SplitAt(std::size_t dateCount) {
        date_ = numbers_.first(dateCount);
        time_ = numbers_.subspan(dateCount);
        return time_.size() <= 3;
    }
    std::optional<RecognisedDateTime> ReadParts() const {
        RecognisedDateTime result;
        result.HasDate = !date_.empty();
        result.HasTime = !time_.empty();
        if (!result.HasDate && !result.HasTime) return std::nullopt;
        if (result.HasDate) {
            const auto day = text_.Month > 0 ? DayOfTwo(date_, text_.Month) : DayOfThree(date_, order_);
            if (!day) return std::nullopt;
            result.Value.Day = *day;
        }
        if (result.HasTime) {
            const auto seconds = SecondsOf(time_, text_.Half);
            if (!seconds) return std::nullopt;
            result.Value.Second = *seconds;
        }
        return result;
    }

    const DateText& text_;
    DateOrder order_;
    Numbers numbers_;
    Numbers date_;
    Numbers time_;
};

} // namespace

std::optional<int> ExpandYear(std::int64_t typed) {
    constexpr int firstOfLastCentury = 30;
    if (typed < 0 || typed > LastYear) return std::nullopt;
    const int year = static_cast<int>(typed);
    if (year >= FirstYear) return year;
    return year + (year < firstOfLastCentury ? 2000 : 1900);
}

std::optional<std::int32_t> ReadDateParts(std::string_view text, DateOrder order) {
    constexpr std::ptrdiff_t mostDigits = 9;
    Number numbers[3];
    if (!ReadThree(text, '/', mostDigits, numbers)) return std::nullopt;
    return DayOfThree(numbers, order);
}

std::optional<std::int32_t> ReadTimeParts(std::string_view text) {
    Number numbers[3];
    if (!ReadThree(text, ':', 2, numbers)) return std::nullopt;
    return SecondsFromParts(numbers[0].Value, numbers[1].Value, numbers[2].Value);
}

std::optional<RecognisedDateTime> RecogniseDateTime(std::string_view text, const Locale& locale) {
    const std::optional<DateText> scanned = ScanDateText(text, locale);
    return scanned ? DateTextReader(*scanned, locale.Order).Read() : std::nullopt;
}

} // namespace quillgrid
