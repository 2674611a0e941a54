// A value to the text that is shown, beside what a developer would use instead.
#include "bench/CountedRun.h"
#include "quillgrid/cells/DisplayText.h"

#include <QDate>
#include <QLocale>
#include <QString>

#include <unicode/numfmt.h>
#include <unicode/smpdtfmt.h>

#include <cstdio>
#include <ctime>
#include <memory>
#include <string>

namespace quillgrid::bench {

namespace {

void Show(benchmark::State& state, const Variant& value, const DisplayRules& rules) {
    const Locale& german = BuiltInLocale("de-DE");
    CountedRun(state, [&] { return DisplayText(value, rules, german, nullptr); });
}

void Show_Text(benchmark::State& state) {
    Show(state, "a plain text", {});
}
void Show_Integer(benchmark::State& state) {
    Show(state, 1234567, {qgvrInteger, "#0", ""});
}
void Show_Currency(benchmark::State& state) {
    Show(state, *Currency::FromDecimal("1234.5"), {qgvrCurrency, "Currency", ""});
}
void Show_Percent(benchmark::State& state) {
    Show(state, 12.5, {qgvrDouble, "Fixed", "%"});
}
void Show_Number(benchmark::State& state) {
    Show(state, 1234.5, {qgvrDouble, "General Number", ""});
}
void Show_Date(benchmark::State& state) {
    Show(state, DateTime{*DayFromParts(2027, 3, 12), 0}, {qgvrDate, "Short Date", ""});
}
void Show_Time(benchmark::State& state) {
    Show(state, DateTime{0, 45'000}, {qgvrTime, "Long Time", ""});
}

void ShowNumber_QLocale(benchmark::State& state) {
    const QLocale german("de_DE");
    CountedRun(state, [&] { return german.toString(1234.5, 'f', 2); });
}
void ShowCurrency_QLocale(benchmark::State& state) {
    const QLocale german("de_DE");
    CountedRun(state, [&] { return german.toCurrencyString(1234.5); });
}
void ShowDate_QLocale(benchmark::State& state) {
    const QLocale german("de_DE");
    const QDate date(2027, 3, 12);
    CountedRun(state, [&] { return german.toString(date, QLocale::ShortFormat); });
}

void ShowCurrency_Icu(benchmark::State& state) {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<icu::NumberFormat> format(
        icu::NumberFormat::createCurrencyInstance(icu::Locale::getGermany(), status));
    CountedRun(state, [&] {
        icu::UnicodeString text;
        return format->format(1234.5, text).length();
    });
}
void ShowDate_Icu(benchmark::State& state) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::SimpleDateFormat format(icu::UnicodeString("dd.MM.yyyy"), icu::Locale::getGermany(), status);
    CountedRun(state, [&] {
        icu::UnicodeString text;
        return format.format(UDate{1'804'809'600'000.0}, text).length();
    });
}

void ShowNumber_Snprintf(benchmark::State& state) {
    CountedRun(state, [] {
        char text[32];
        std::snprintf(text, sizeof text, "%.2f", 1234.5);
        return std::string(text);
    });
}
void ShowDate_Strftime(benchmark::State& state) {
    std::tm parts{};
    parts.tm_year = 127;
    parts.tm_mon = 2;
    parts.tm_mday = 12;
    CountedRun(state, [&] {
        char text[32];
        std::strftime(text, sizeof text, "%d.%m.%Y", &parts);
        return std::string(text);
    });
}

BENCHMARK(Show_Text);
BENCHMARK(Show_Integer);
BENCHMARK(Show_Number);
BENCHMARK(ShowNumber_QLocale);
BENCHMARK(ShowNumber_Snprintf);
BENCHMARK(Show_Percent);
BENCHMARK(Show_Currency);
BENCHMARK(ShowCurrency_QLocale);
BENCHMARK(ShowCurrency_Icu);
BENCHMARK(Show_Date);
BENCHMARK(ShowDate_QLocale);
BENCHMARK(ShowDate_Icu);
BENCHMARK(ShowDate_Strftime);
BENCHMARK(Show_Time);

} // namespace

} // namespace quillgrid::bench
