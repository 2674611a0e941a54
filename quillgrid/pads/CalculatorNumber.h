#pragma once

#include "quillgrid/base/Currency.h"
#include "quillgrid/base/Export.h"
#include "quillgrid/base/Variant.h"
#include "quillgrid/locale/Locale.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace quillgrid {

/// A number as the calculator holds it: money (exact, four decimals, halves to even) or double precision.
class QUILLGRID_EXPORT CalculatorNumber {
public:
    enum class Precision : bool { Currency, Double };

    CalculatorNumber() = default;
    explicit CalculatorNumber(Currency amount) : number_(amount) {}
    /// `number` is finite.
    explicit CalculatorNumber(double number) : number_(number) {}

    /// The number that an entry writes ("", "-" and "." are 0); nothing when it is out of range.
    static std::optional<CalculatorNumber> Read(std::string_view entry, Precision precision);
    /// What a value means as a number; 0 when it is none or out of range.
    static CalculatorNumber From(const Variant& value, Precision precision, const Locale& locale);
    /// `left` + - * / `right`, both of the same precision (0 for another operator); nothing for a division by
    /// zero and a result out of range.
    static std::optional<CalculatorNumber> Calculate(char operation, const CalculatorNumber& left,
                                                     const CalculatorNumber& right);

    /// Plain decimal form with ".", as entries are written.
    std::string ToText() const;
    /// A Currency or a double.
    Variant ToVariant() const;

    /// Whether the number lies below `low` or above `high`. A bound that is no number does not bind.
    bool IsOutside(const Variant& low, const Variant& high, const Locale& locale) const;

    friend bool operator==(const CalculatorNumber&, const CalculatorNumber&) = default;

private:
    double ToDouble() const;
    bool IsBelow(const Variant& bound, const Locale& locale) const;
    bool IsAbove(const Variant& bound, const Locale& locale) const;

    std::variant<Currency, double> number_;
};

} // namespace quillgrid
