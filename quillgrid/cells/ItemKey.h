#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/base/KeyedList.h"
#include "quillgrid/base/Variant.h"

#include <concepts>
#include <cstdint>
#include <memory>
#include <string_view>

namespace quillgrid {

/// How a member of a collection is asked for: by a position (1-based) or by a key. Every text is a key,
/// numeric texts too; a variant holding a number is a position, rounded half to even. Lives as long as one
/// call.
class QUILLGRID_EXPORT ItemKey {
public:
    template <std::integral Number>
    requires(!std::same_as<Number, bool>) ItemKey(Number position)
        : position_(static_cast<std::int64_t>(position)) {}
    template <std::convertible_to<std::string_view> Text>
    ItemKey(const Text& key) : key_(key), isKey_(true) {}
    ItemKey(const Variant& indexKey);
    ItemKey(std::nullptr_t) = delete;

    bool IsKey() const { return isKey_; }
    std::string_view Key() const { return key_; }
    /// 0 when no position can be meant.
    std::size_t Position() const { return position_ > 0 ? static_cast<std::size_t>(position_) : 0; }

private:
    std::string_view key_;
    std::int64_t position_ = 0;
    bool isKey_ = false;
};

/// The member that `which` asks for, or nothing.
template <typename T>
std::shared_ptr<T> FindItem(const KeyedList<T>& list, ItemKey which) {
    return which.IsKey() ? list.Find(which.Key()) : list.At(which.Position());
}

/// The position of the member that `which` asks for, or 0.
template <typename T>
std::size_t FindPosition(const KeyedList<T>& list, ItemKey which) {
    if (!which.IsKey()) return list.At(which.Position()) ? which.Position() : 0;
    const auto item = list.Find(which.Key());
    return item ? list.PositionOf(item.get()) : 0;
}

} // namespace quillgrid
