#include "quillgrid/locale/Format.h"

#include "quillgrid/base/Text.h"
#include "quillgrid/locale/Coercion.h"
#include "quillgrid/locale/DatePattern.h"
#include "quillgrid/locale/DateReader.h"
#include "quillgrid/locale/NamedFormats.h"
#include "quillgrid/locale/NumberPattern.h"
#include "quillgrid/locale/NumberWriter.h"
#include "quillgrid/locale/PatternKind.h"

#include <algorithm>
#include <cmath>

namespace quillgrid {

namespace {

bool IsNothing(const Variant& value) {
    const Variant::Type type = value.Kind();
    return type == Variant::Type::Empty || type == Variant::Type::Null || type == Variant::Type::Object;
}

std::string WriteNonFinite(double number) {
    if (std::isnan(number)) return "NaN";
    return number < 0 ? "-Inf" : "Inf";
}

/// Writes a value as a number through `write`; what is no number passes in its general form.
template <typename Writer>
std::string WithNumber(const Variant& value, const Locale& locale, const Writer& write) {
    if (const auto* amount = value.Get<Currency>()) return write(DecimalNumber::FromCurrency(*amount));
    if (const auto* number = value.Get<std::int32_t>()) return write(DecimalNumber::FromInteger(*number));
    const std::optional<double> number = ToDouble(value, locale);
    if (!number) return ToText(value, locale);
    if (!std::isfinite(*number)) return WriteNonFinite(*number);
    return write(DecimalNumber::FromDouble(*number));
}

std::optional<DateTime> DateOf(const Variant& value, const Locale& locale) {
    const auto* text = value.Get<std::string>();
    if (text == nullptr) return ToDateTime(value, locale);
    // Unlike a conversion, a format leaves plain digits alone: "4711" in a date column is not a day.
    const auto recognised = RecogniseDateTime(*text, locale);
    return recognised ? std::optional(recognised->Value) : std::nullopt;
}

template <typename Writer>
std::string WithDate(const Variant& value, const Locale& locale, const Writer& write) {
    const std::optional<DateTime> date = DateOf(value, locale);
    return date ? write(*date) : ToText(value, locale);
}

std::string WriteByDate(const Variant& value, std::string_view pattern, const Locale& locale) {
    return WithDate(value, locale, [&](DateTime date) { return WriteByDatePattern(date, pattern, locale); });
}

std::string WriteByNumber(const Variant& value, std::string_view pattern, const Locale& locale) {
    return WithNumber(value, locale, [&](const DecimalNumber& number) {
        return WriteByNumberPattern(number, pattern, locale);
    });
}

std::string WriteWord(const Variant& value, const Locale& locale, const std::string& yes,
                      const std::string& no) {
    const std::optional<bool> boolean = ToBoolean(value, locale);
    if (!boolean) return ToText(value, locale);
    return *boolean ? yes : no;
}

std::string WriteNamedNumber(const Variant& value, NamedFormat format, const Locale& locale) {
    return WithNumber(value, locale, [&](const DecimalNumber& number) {
        switch (format) {
        case NamedFormat::Currency: return WriteCurrency(number, locale);
        case NamedFormat::Fixed: return WriteFixed(number, false, locale);
        case NamedFormat::Standard: return WriteFixed(number, true, locale);
        case NamedFormat::Percent: return WritePercent(number, locale);
        case NamedFormat::Scientific: return WriteByNumberPattern(number, "0.00E+00", locale);
        default: return WriteGeneral(number, locale);
        }
    });
}

std::string WriteNamed(const Variant& value, NamedFormat format, const Locale& locale) {
    switch (format) {
    case NamedFormat::YesNo: return WriteWord(value, locale, locale.Yes, locale.No);
    case NamedFormat::TrueFalse: return WriteWord(value, locale, locale.True, locale.False);
    case NamedFormat::OnOff: return WriteWord(value, locale, locale.On, locale.Off);
    case NamedFormat::GeneralDate:
        return WithDate(value, locale, [&](DateTime date) { return WriteGeneralDate(date, locale); });
    case NamedFormat::ShortDate: return WriteByDate(value, locale.ShortDate, locale);
    case NamedFormat::MediumDate: return WriteByDate(value, locale.MediumDate, locale);
    case NamedFormat::LongDate: return WriteByDate(value, locale.LongDate, locale);
    case NamedFormat::ShortTime: return WriteByDate(value, locale.ShortTime, locale);
    case NamedFormat::MediumTime: return WriteByDate(value, locale.MediumTime, locale);
    case NamedFormat::LongTime: return WriteByDate(value, locale.LongTime, locale);
    default: return WriteNamedNumber(value, format, locale);
    }
}

std::string WriteByPattern(const Variant& value, std::string_view pattern, const Locale& locale) {
    if (IsDatePattern(pattern, value.Kind()))
        return IsNothing(value) ? "" : WriteByDate(value, pattern, locale);
    if (IsNothing(value)) return WriteNullByPattern(pattern, locale);
    return WriteByNumber(value, pattern, locale);
}

} // namespace

std::string Format(const Variant& value, std::string_view pattern, const Locale& locale) {
    if (pattern.empty()) return ToText(value, locale);
    if (const auto named = FindNamedFormat(pattern)) {
        return IsNothing(value) ? std::string() : WriteNamed(value, *named, locale);
    }
    const bool ascii =
        std::all_of(pattern.begin(), pattern.end(), [](char byte) { return (byte & 0x80) == 0; });
    if (!ascii && !IsValidUtf8(pattern)) return WriteByPattern(value, RepairUtf8(pattern), locale);
    return WriteByPattern(value, pattern, locale);
}

} // namespace quillgrid
