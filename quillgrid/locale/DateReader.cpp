#include "quillgrid/locale/DateReader.h"

#include "quillgrid/locale/DateText.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <utility>

namespace quillgrid {

namespace {

using Number = DateText::Number;
using Numbers = std::span<const Number>;

constexpr int LeastYearDigits = 3;

/// Digits that stand together.
struct Run {
    std::int32_t Value = 0;
    std::int32_t Digits = 0;
};

bool IsOneOf(std::string_view characters, char character) {
    return std::any_of(characters.begin(), characters.end(), [character](char c) { return c == character; });
}

/// Three runs of one to `mostDigits` digits (9 at most) with one of the separators between them and nothing
/// else.
bool ReadThree(std::string_view text, std::string_view separators, std::int32_t mostDigits, Run (&runs)[3]) {
    Run run;
    std::size_t count = 0;
    for (const char c : text) {
        const auto digit = static_cast<std::uint32_t>(static_cast<unsigned char>(c)) - '0';
        if (digit <= 9) {
            if (++run.Digits > mostDigits) return false;
            run.Value = run.Value * 10 + static_cast<std::int32_t>(digit);
            continue;
        }
        if (run.Digits == 0 || count == 2 || !IsOneOf(separators, c)) return false;
        runs[count++] = std::exchange(run, {});
    }
    runs[2] = run;
    return count == 2 && run.Digits > 0;
}

std::optional<std::int32_t> DayOf(std::int32_t typedYear, std::int32_t month, std::int32_t day) {
    const std::optional<int> year = ExpandYear(typedYear);
    return year ? DayFromDate(*year, month, day) : std::nullopt;
}

std::optional<std::int32_t> DayOfThree(Run first, std::int32_t second, std::int32_t third, DateOrder order) {
    if (first.Digits >= LeastYearDigits) return DayOf(first.Value, second, third);
    switch (order) {
    case DateOrder::MonthDayYear: return DayOf(third, first.Value, second);
    case DateOrder::YearMonthDay: return DayOf(first.Value, second, third);
    default: return DayOf(third, second, first.Value);
    }
}

std::optional<std::int32_t> DayOfThree(Numbers numbers, DateOrder order) {
    return DayOfThree({numbers[0].Value, numbers[0].Digits}, numbers[1].Value, numbers[2].Value, order);
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

std::optional<std::int32_t> ReadDateParts(std::string_view text, DateOrder order,
                                          std::string_view separators) {
    constexpr std::int32_t mostDigits = 9;
    Run runs[3];
    if (!ReadThree(text, separators, mostDigits, runs)) return std::nullopt;
    return DayOfThree(runs[0], runs[1].Value, runs[2].Value, order);
}

std::optional<std::int32_t> ReadTimeParts(std::string_view text) {
    Run runs[3];
    if (!ReadThree(text, ":", 2, runs)) return std::nullopt;
    return SecondsFromParts(runs[0].Value, runs[1].Value, runs[2].Value);
}

std::optional<RecognisedDateTime> RecogniseDateTime(std::string_view text, const Locale& locale) {
    const std::optional<DateText> scanned = ScanDateText(text, locale);
    return scanned ? DateTextReader(*scanned, locale.Order).Read() : std::nullopt;
}

} // namespace quillgrid
