// Typed text to a value, beside what a developer would use instead.
#include "bench/CountedRun.h"
#include "quillgrid/cells/InputConversion.h"

#include <QDate>
#include <QLocale>
#include <QString>

#include <unicode/datefmt.h>
#include <unicode/numfmt.h>
#include <unicode/parsepos.h>
#include <unicode/smpdtfmt.h>

#include <cstdlib>
#include <ctime>
#include <memory>
#include <string>

namespace quillgrid::bench {

namespace {

constexpr const char* NumberText = "1.234,50";
constexpr const char* DateText = "12.03.2027";

void ConvertRule(benchmark::State& state, const char* text, ValidationRuleConstants rule) {
    const InputContext context{{}, BuiltInLocale("de-DE"), *DayFromParts(2026, 11, 16)};
    InputRules rules;
    rules.Rule = rule;
    CountedRun(state, [&] {
        Variant value = text;
        const ValidationErrConstants result = ConvertInput(value, rules, context);
        if (result != qgErrNone) state.SkipWithError("refused");
        benchmark::DoNotOptimize(value);
        return result;
    });
}

void Number_Quillgrid(benchmark::State& state) {
    ConvertRule(state, NumberText, qgvrDouble);
}
void Number_QuillgridCurrency(benchmark::State& state) {
    ConvertRule(state, NumberText, qgvrCurrency);
}
void Number_QuillgridInteger(benchmark::State& state) {
    ConvertRule(state, "12345", qgvrInteger);
}

void Number_QLocale(benchmark::State& state) {
    const QLocale german("de_DE");
    const QString text = NumberText;
    CountedRun(state, [&] {
        bool ok = false;
        const double number = german.toDouble(text, &ok);
        if (!ok) state.SkipWithError("refused");
        return number;
    });
}

void Number_Icu(benchmark::State& state) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::NumberFormat> format(
        icu::NumberFormat::createInstance(icu::Locale::getGermany(), status));
    const icu::UnicodeString text = NumberText;
    CountedRun(state, [&] {
        icu::Formattable number;
        UErrorCode parsed = U_ZERO_ERROR;
        format->parse(text, number, parsed);
        if (U_FAILURE(parsed)) state.SkipWithError("refused");
        return number.getDouble();
    });
}

/// Without a locale: the text is already in the C form.
void Number_Strtod(benchmark::State& state) {
    CountedRun(state, [] { return std::strtod("1234.50", nullptr); });
}

void Date_Quillgrid(benchmark::State& state) {
    ConvertRule(state, DateText, qgvrDate);
}

void Date_QLocale(benchmark::State& state) {
    const QLocale german("de_DE");
    const QString text = DateText;
    const QString format = "dd.MM.yyyy";
    CountedRun(state, [&] {
        const QDate date = german.toDate(text, format);
        if (!date.isValid()) state.SkipWithError("refused");
        return date;
    });
}

void Date_Icu(benchmark::State& state) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::SimpleDateFormat format(icu::UnicodeString("dd.MM.yyyy"), icu::Locale::getGermany(), status);
    const icu::UnicodeString text = DateText;
    CountedRun(state, [&] {
        UErrorCode parsed = U_ZERO_ERROR;
        const UDate date = format.parse(text, parsed);
        if (U_FAILURE(parsed)) state.SkipWithError("refused");
        return date;
    });
}

void Date_Strptime(benchmark::State& state) {
    CountedRun(state, [&] {
        std::tm parts{};
        if (!strptime(DateText, "%d.%m.%Y", &parts)) state.SkipWithError("refused");
        return parts;
    });
}

BENCHMARK(Number_Quillgrid);
BENCHMARK(Number_QuillgridCurrency);
BENCHMARK(Number_QuillgridInteger);
BENCHMARK(Number_QLocale);
BENCHMARK(Number_Icu);
BENCHMARK(Number_Strtod);
BENCHMARK(Date_Quillgrid);
BENCHMARK(Date_QLocale);
BENCHMARK(Date_Icu);
BENCHMARK(Date_Strptime);

} // namespace

} // namespace quillgrid::bench
