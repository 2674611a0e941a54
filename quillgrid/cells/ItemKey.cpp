#include "quillgrid/cells/ItemKey.h"

#include <cmath>

namespace quillgrid {

namespace {

std::int64_t Rounded(double number) {
    constexpr double Limit = 1e15; // beyond any position, within 64 bits
    if (!(number > 0.0 && number < Limit)) return 0;
    return static_cast<std::int64_t>(number - std::remainder(number, 1.0));
}

std::int64_t PositionFrom(const Variant& value) {
    if (const auto* number = value.Get<std::int16_t>()) return *number;
    if (const auto* number = value.Get<std::int32_t>()) return *number;
    if (const auto* amount = value.Get<Currency>()) return amount->ToInteger();
    if (const auto* number = value.Get<double>()) return Rounded(*number);
    return 0;
}

} // namespace

ItemKey::ItemKey(const Variant& indexKey) {
    if (const auto* key = indexKey.Get<std::string>()) {
        key_ = *key;
        isKey_ = true;
    } else {
        position_ = PositionFrom(indexKey);
    }
}

} // namespace quillgrid
