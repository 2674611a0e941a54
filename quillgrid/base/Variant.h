#pragma once

#include "quillgrid/base/Currency.h"
#include "quillgrid/base/DateTime.h"
#include "quillgrid/base/Export.h"

#include <any>
#include <concepts>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

namespace quillgrid {

struct EmptyValue {
    friend constexpr bool operator==(EmptyValue, EmptyValue) = default;
};
struct NullValue {
    friend constexpr bool operator==(NullValue, NullValue) = default;
};
/// An object of the host, kept but never looked into.
using ObjectReference = std::shared_ptr<std::any>;

/// The value of a cell, a property or a field: one of the types below. Text is UTF-8.
class QUILLGRID_EXPORT Variant {
public:
    enum class Type { Empty, Null, Integer, Long, Currency, Double, Date, Boolean, Text, Object };

    Variant() = default;
    Variant(NullValue) : value_(NullValue{}) {}
    Variant(std::int16_t number) : value_(number) {}
    Variant(std::int32_t number) : value_(number) {}
    Variant(quillgrid::Currency amount) : value_(amount) {}
    Variant(double number) : value_(number) {}
    Variant(DateTime date) : value_(date) {}
    template <std::same_as<bool> Bool>
    Variant(Bool boolean) : value_(boolean) {}
    Variant(std::string text) : value_(std::move(text)) {}
    Variant(std::string_view text) : value_(std::string(text)) {}
    Variant(const char* text) : value_(std::string(text)) {}
    Variant(ObjectReference object) : value_(std::move(object)) {}

    /// Holds one of the types from now on; several times cheaper than assigning another variant, which must
    /// ask both for their types.
    template <typename T>
    void Set(T value) {
        value_ = std::move(value);
    }

    static Variant Null() { return Variant(NullValue{}); }

    Type Kind() const { return static_cast<Type>(value_.index()); }
    bool IsEmpty() const { return Kind() == Type::Empty; }
    bool IsNull() const { return Kind() == Type::Null; }
    bool IsText() const { return Kind() == Type::Text; }
    /// Integer, Long, Currency or Double.
    bool IsNumber() const;

    /// The held alternative, or nothing when another one is held.
    template <typename T>
    const T* Get() const {
        return std::get_if<T>(&value_);
    }

    /// The value as text without regard to any locale: "" for empty, Null and objects; plain decimals with
    /// "." and no exponent; "True" or "False"; dates as yyyy-mm-dd, with " hh:mm:ss" when a time is set; a
    /// time of day (day 0) as hh:mm:ss.
    std::string ToPlainText() const;

    /// Same type and same value; an object is unequal to everything, itself included.
    friend QUILLGRID_EXPORT bool operator==(const Variant& left, const Variant& right);

private:
    std::variant<EmptyValue, NullValue, std::int16_t, std::int32_t, quillgrid::Currency, double, DateTime,
                 bool, std::string, ObjectReference>
        value_;
};

/// Equality "as text, ignoring case": 1, 1.0, Currency 1 and "1" are equal, Null and empty equal "", an
/// object equals nothing. No allocation when both are text or both are the same number type.
QUILLGRID_EXPORT bool EqualAsText(const Variant& left, const Variant& right);

} // namespace quillgrid
