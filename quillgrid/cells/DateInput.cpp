#include "quillgrid/cells/DateInput.h"

#include "quillgrid/cells/InputNormaliser.h"
#include "quillgrid/cells/InputText.h"
#include "quillgrid/locale/DateReader.h"

namespace quillgrid {

namespace {

constexpr int AllSeparators = 2;

InputShape DateShape(const InputContext& context) {
    return {.Separator = '/',
            .MostSeparators = AllSeparators,
            .SeparatorCharacters = context.Separators.Date,
            .IsNumber = false};
}

InputShape TimeShape(const InputContext& context) {
    return {.Separator = ':',
            .MostSeparators = AllSeparators,
            .SeparatorCharacters = context.Separators.Time,
            .IsNumber = false};
}

char DigitOf(std::int32_t number) {
    return static_cast<char>('0' + number % 10);
}

/// Appends the month and year, or the year, that were not typed. An impossible `today` completes nothing.
void CompleteDate(InputNormaliser& typed, std::int32_t today) {
    if (typed.Separators() == AllSeparators || !IsValidDay(today)) return;
    const CivilDate date = PartsFromDay(today);
    const char month[] = {'/', DigitOf(date.Month / 10), DigitOf(date.Month)};
    const char year[] = {'/', DigitOf(date.Year / 1000), DigitOf(date.Year / 100), DigitOf(date.Year / 10),
                         DigitOf(date.Year)};
    if (typed.Separators() == 0) typed.Append({month, sizeof month});
    typed.Append({year, sizeof year});
}

/// Completed parts stand behind the typed ones: the day alone is always the first part, and a year-first
/// locale types month and day.
DateOrder OrderOfTyped(int separators, DateOrder order) {
    if (separators == 0) return DateOrder::DayMonthYear;
    if (separators == 1 && order == DateOrder::YearMonthDay) return DateOrder::MonthDayYear;
    return order;
}

std::optional<std::int32_t> RecogniseDay(std::string_view text, const Locale& locale) {
    const auto recognised = RecogniseDateTime(text, locale);
    if (!recognised || !recognised->HasDate) return std::nullopt;
    return recognised->Value.Day;
}

std::optional<std::int32_t> DayFromText(std::string_view text, const InputContext& context) {
    // A date typed in full needs no rebuilding.
    const auto full = ReadDateParts(text, context.UserLocale.Order, context.Separators.Date);
    if (full) return full;
    InputNormaliser typed(text, DateShape(context));
    CompleteDate(typed, context.Today);
    const auto day = ReadDateParts(typed.Text(), OrderOfTyped(typed.Separators(), context.UserLocale.Order));
    if (day || typed.Separators() == 0) return day;
    return RecogniseDay(text, context.UserLocale);
}

void CompleteTime(InputNormaliser& typed) {
    constexpr std::string_view missing = ":00:00";
    typed.Append(missing.substr(static_cast<std::size_t>(typed.Separators()) * 3));
}

// Midnight may be typed as the end of the day.
void ReplaceHour24(InputNormaliser& typed) {
    if (typed.Text().substr(0, 2) != "24") return;
    typed.ReplaceStart("00");
}

std::optional<std::int32_t> SecondFromText(std::string_view text, const InputContext& context) {
    InputNormaliser typed(text, TimeShape(context));
    CompleteTime(typed);
    ReplaceHour24(typed);
    if (const auto second = ReadTimeParts(typed.Text())) return second;
    const auto recognised = RecogniseDateTime(text, context.UserLocale);
    if (!recognised) return std::nullopt;
    return recognised->Value.Second;
}

bool IsValidSecond(std::int32_t second) {
    return second >= 0 && second < SecondsPerDay;
}

} // namespace

std::optional<std::int32_t> DayFromInput(const Variant& value, const InputContext& context) {
    if (const auto* date = value.Get<DateTime>()) {
        return IsValidDay(date->Day) ? std::optional(date->Day) : std::nullopt;
    }
    if (value.IsNumber()) return std::nullopt; // 12.5 is no more the 12th of May than 46342 is a day
    return WithInputText(value, context.UserLocale,
                         [&](std::string_view text) { return DayFromText(text, context); });
}

std::optional<std::int32_t> SecondFromInput(const Variant& value, const InputContext& context) {
    if (const auto* date = value.Get<DateTime>()) {
        return IsValidSecond(date->Second) ? std::optional(date->Second) : std::nullopt;
    }
    return WithInputText(value, context.UserLocale,
                         [&](std::string_view text) { return SecondFromText(text, context); });
}

} // namespace quillgrid
