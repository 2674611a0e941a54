#include "quillgrid/base/Variant.h"

#include "quillgrid/base/Decimal.h"
#include "quillgrid/base/Text.h"

#include <cmath>
#include <cstdio>

namespace quillgrid {

namespace {

std::string PlainDate(DateTime date) {
    char buffer[48];
    int length = 0;
    if (date.Day != 0) {
        const CivilDate parts = PartsFromDay(date.Day);
        length = std::snprintf(buffer, sizeof buffer, "%04d-%02d-%02d", static_cast<int>(parts.Year),
                               static_cast<int>(parts.Month), static_cast<int>(parts.Day));
        if (date.Second == 0) return {buffer, static_cast<std::size_t>(length)};
        buffer[length++] = ' ';
    }
    length += std::snprintf(buffer + length, sizeof buffer - static_cast<std::size_t>(length),
                            "%02d:%02d:%02d", static_cast<int>(date.Second / 3600),
                            static_cast<int>(date.Second / 60 % 60), static_cast<int>(date.Second % 60));
    return {buffer, static_cast<std::size_t>(length)};
}

struct PlainTextOf {
    std::string operator()(EmptyValue) const { return {}; }
    std::string operator()(NullValue) const { return {}; }
    std::string operator()(std::int16_t number) const { return std::to_string(number); }
    std::string operator()(std::int32_t number) const { return std::to_string(number); }
    std::string operator()(quillgrid::Currency amount) const { return amount.ToText(); }
    std::string operator()(double number) const { return PlainDecimal(number); }
    std::string operator()(DateTime date) const { return PlainDate(date); }
    std::string operator()(bool boolean) const { return boolean ? "True" : "False"; }
    std::string operator()(const std::string& text) const { return text; }
    std::string operator()(const ObjectReference&) const { return {}; }
};

/// 16- and 32-bit integers are the same type of number.
std::optional<std::int32_t> WholeNumber(const Variant& value) {
    if (const auto* number = value.Get<std::int16_t>()) return *number;
    if (const auto* number = value.Get<std::int32_t>()) return *number;
    return std::nullopt;
}

bool IsNothing(const Variant& value) {
    return value.IsNull() || value.IsEmpty();
}

/// The plain text of a double names exactly one number, so that the numbers can stand for their texts.
bool SameText(double left, double right) {
    return left == right || (std::isnan(left) && std::isnan(right));
}

} // namespace

// Every cell keeps several of them.
static_assert(sizeof(Variant) <= 40);

bool Variant::IsNumber() const {
    const Type kind = Kind();
    return kind == Type::Integer || kind == Type::Long || kind == Type::Currency || kind == Type::Double;
}

std::string Variant::ToPlainText() const {
    return std::visit(PlainTextOf{}, value_);
}

bool operator==(const Variant& left, const Variant& right) {
    return left.Kind() != Variant::Type::Object && left.value_ == right.value_;
}

bool EqualAsText(const Variant& left, const Variant& right) {
    using Type = Variant::Type;
    if (left.Kind() == Type::Object || right.Kind() == Type::Object) return false;
    if (left.IsText() && right.IsText()) {
        return EqualIgnoreCase(*left.Get<std::string>(), *right.Get<std::string>());
    }
    if (left.IsText() && IsNothing(right)) return left.Get<std::string>()->empty();
    if (right.IsText() && IsNothing(left)) return right.Get<std::string>()->empty();
    const auto leftWhole = WholeNumber(left);
    const auto rightWhole = WholeNumber(right);
    if (leftWhole && rightWhole) return *leftWhole == *rightWhole;
    if (left.Kind() == Type::Double && right.Kind() == Type::Double) {
        return SameText(*left.Get<double>(), *right.Get<double>());
    }
    if (left.Kind() == right.Kind()) return left == right;
    return EqualIgnoreCase(left.ToPlainText(), right.ToPlainText());
}

} // namespace quillgrid
