#include "quillgrid/cells/InputConversion.h"

#include "quillgrid/base/Text.h"
#include "quillgrid/cells/DateInput.h"
#include "quillgrid/cells/InputLimits.h"
#include "quillgrid/cells/NumberInput.h"
#include "quillgrid/locale/Coercion.h"

#include <algorithm>

namespace quillgrid {

namespace {

/// Whether a value has no text at all.
bool IsBlank(const Variant& value) {
    if (const auto* text = value.Get<std::string>()) return text->find_first_not_of(' ') == std::string::npos;
    return value.IsNull() || value.IsEmpty() || value.Kind() == Variant::Type::Object;
}

/// Malformed bytes never stay in a cell: what shows its text could not measure or edit it.
void Repair(Variant& value) {
    const auto* text = value.Get<std::string>();
    if (text && !IsValidUtf8(*text)) value = RepairUtf8(*text);
}

void CutToLength(Variant& value, std::string_view text, std::int32_t maxLength) {
    const auto most = static_cast<std::size_t>(std::max(maxLength, 0));
    if (text.size() <= most) return;
    const std::string_view kept = FirstCharacters(text, most);
    if (kept.size() < text.size()) value = RepairUtf8(kept);
}

bool AllIn(std::string_view text, std::string_view characters) {
    while (!text.empty()) {
        const DecodedCharacter next = DecodeFirst(text);
        if (!ContainsIgnoreCase(characters, next.Character)) return false;
        text.remove_prefix(next.Bytes);
    }
    return true;
}

ValidationErrConstants CheckCharacters(const Variant& value, const InputRules& rules, const Locale& locale) {
    if (rules.Charlist.empty()) return qgErrNone;
    const auto* text = value.Get<std::string>();
    const bool allowed = AllIn(text ? std::string_view(*text) : ToText(value, locale), rules.Charlist);
    return allowed ? qgErrNone : qgerrMask;
}

ValidationErrConstants TakeText(Variant& value, const InputRules& rules, const Locale& locale) {
    if (const auto* text = value.Get<std::string>())
        CutToLength(value, *text, rules.MaxLength);
    else
        CutToLength(value, ToText(value, locale), rules.MaxLength);
    const ValidationErrConstants result = CheckCharacters(value, rules, locale);
    if (result == qgErrNone) Repair(value);
    return result;
}

ValidationErrConstants TakeLong(Variant& value, const InputRules& rules, const InputContext& context) {
    const auto number = LongFromInput(value, context);
    if (!number) return qgErrBadNumber;
    value.Set(LimitLong(*number, rules, context.UserLocale));
    return qgErrNone;
}

ValidationErrConstants TakeCurrency(Variant& value, const InputRules& rules, const InputContext& context) {
    const auto amount = CurrencyFromInput(value, context);
    if (!amount) return qgErrBadNumber;
    value.Set(LimitCurrency(*amount, rules, context.UserLocale));
    return qgErrNone;
}

ValidationErrConstants TakeDouble(Variant& value, const InputRules& rules, const InputContext& context) {
    const auto number = DoubleFromInput(value, context);
    if (!number) return qgErrBadNumber;
    value.Set(LimitDouble(*number, rules, context.UserLocale));
    return qgErrNone;
}

ValidationErrConstants TakeDate(Variant& value, const InputRules& rules, const InputContext& context) {
    const auto day = DayFromInput(value, context);
    if (!day) return qgerrBadDate;
    value.Set(DateTime{LimitDay(*day, rules, context.UserLocale), 0});
    return qgErrNone;
}

ValidationErrConstants TakeTime(Variant& value, const InputRules& rules, const InputContext& context) {
    const auto second = SecondFromInput(value, context);
    if (!second) return qgerrBadTime;
    const auto limited = LimitSecond(*second, rules, context.UserLocale);
    if (!limited) return qgerrTimeTooEarly;
    value.Set(DateTime{0, *limited});
    return qgErrNone;
}

} // namespace

ValidationErrConstants ConvertInput(Variant& value, const InputRules& rules, const InputContext& context) {
    if (IsBlank(value)) return rules.AllowEmpty ? qgErrNone : qgerrEmpty;
    switch (rules.Rule) {
    case qgvrNone: return TakeText(value, rules, context.UserLocale);
    case qgvrInteger: return TakeLong(value, rules, context);
    case qgvrCurrency:
    case qgvrEuro: return TakeCurrency(value, rules, context);
    case qgvrDouble: return TakeDouble(value, rules, context);
    case qgvrDate: return TakeDate(value, rules, context);
    case qgvrTime: return TakeTime(value, rules, context);
    default: Repair(value); return qgErrNone;
    }
}

} // namespace quillgrid
