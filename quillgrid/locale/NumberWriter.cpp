#include "quillgrid/locale/NumberWriter.h"

#include <algorithm>

namespace quillgrid {

namespace {

constexpr int FixedDecimals = 2;
constexpr int MostCurrencyDecimals = 15;

void AppendSign(std::string& out, const DecimalNumber& number) {
    if (number.IsNegative()) out += '-';
}

void AppendInteger(std::string& out, const DecimalNumber& number, std::string_view separator) {
    const std::int64_t digits = std::max<std::int64_t>(number.IntegerDigits(), 1);
    for (std::int64_t power = digits - 1; power >= 0; --power)
        AppendIntegerDigit(out, number, power, separator);
}

void AppendFraction(std::string& out, const DecimalNumber& number, std::int64_t decimals,
                    const Locale& locale) {
    if (decimals <= 0) return;
    out += DecimalSeparatorOf(locale);
    for (std::int64_t power = 1; power <= decimals; ++power)
        out += number.DigitAt(-power);
}

std::size_t LengthOf(const DecimalNumber& number, std::int64_t decimals) {
    constexpr std::int64_t besides = 16; // sign, separators of a usual number, symbol
    return static_cast<std::size_t>(number.IntegerDigits() + decimals + besides);
}

void AppendNumber(std::string& out, const DecimalNumber& number, std::int64_t decimals, bool grouped,
                  const Locale& locale) {
    AppendInteger(out, number, grouped ? std::string_view(locale.GroupSeparator) : std::string_view());
    AppendFraction(out, number, decimals, locale);
}

} // namespace

std::string_view DecimalSeparatorOf(const Locale& locale) {
    return locale.DecimalSeparator.empty() ? std::string_view(".")
                                           : std::string_view(locale.DecimalSeparator);
}

void AppendIntegerDigit(std::string& out, const DecimalNumber& number, std::int64_t power,
                        std::string_view separator) {
    constexpr std::int64_t groupSize = 3;
    out += number.DigitAt(power);
    if (!separator.empty() && power > 0 && power % groupSize == 0) out += separator;
}

std::string WriteGeneral(const DecimalNumber& number, const Locale& locale) {
    std::string out;
    if (number.IntegerDigits() + number.FractionDigits() > 12)
        out.reserve(LengthOf(number, number.FractionDigits()));
    AppendSign(out, number);
    AppendNumber(out, number, number.FractionDigits(), false, locale);
    return out;
}

std::string WriteFixed(DecimalNumber number, bool grouped, const Locale& locale) {
    number.RoundToDecimals(FixedDecimals);
    std::string out;
    AppendSign(out, number);
    AppendNumber(out, number, FixedDecimals, grouped, locale);
    return out;
}

std::string WritePercent(DecimalNumber number, const Locale& locale) {
    number.Shift(2);
    std::string out = WriteFixed(number, false, locale);
    out += '%';
    return out;
}

std::string WriteCurrency(DecimalNumber number, const Locale& locale) {
    const int decimals = std::clamp(locale.CurrencyDecimals, 0, MostCurrencyDecimals);
    number.RoundToDecimals(decimals);
    std::string out;
    out.reserve(LengthOf(number, decimals));
    AppendSign(out, number);
    const CurrencyPlace place = locale.CurrencySymbolPlace;
    const bool before = place == CurrencyPlace::Before || place == CurrencyPlace::BeforeWithBlank;
    if (before) out += locale.CurrencySymbol;
    if (place == CurrencyPlace::BeforeWithBlank) out += ' ';
    AppendNumber(out, number, decimals, true, locale);
    if (place == CurrencyPlace::AfterWithBlank) out += ' ';
    if (!before) out += locale.CurrencySymbol;
    return out;
}

} // namespace quillgrid
