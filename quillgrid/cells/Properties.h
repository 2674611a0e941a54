#pragma once

#include "quillgrid/base/Event.h"
#include "quillgrid/base/Export.h"
#include "quillgrid/base/KeyedList.h"
#include "quillgrid/cells/ItemKey.h"
#include "quillgrid/cells/PositionIterator.h"
#include "quillgrid/cells/Property.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace quillgrid {

struct PropertyArguments {
    std::int32_t Index = 0; ///< position to insert before; below 1 or beyond the last appends
    std::string Key{};      ///< empty: no key
    std::optional<Variant> Value{};
    std::string Description{};
};

/// A property sheet: an ordered list of properties reached by position or by name. A control listens to the
/// item that was fetched last through `Item`, so fetching and then reading or writing `Value` reaches the
/// property itself. Walking the sheet in a loop fetches nothing.
class QUILLGRID_EXPORT Properties : public std::enable_shared_from_this<Properties> {
public:
    using Pointer = std::shared_ptr<Property>;
    using Iterator = PositionIterator<Properties, Property>;

    /// An item was fetched through `Item`.
    Event<Property&> SelChange;

    /// Error 20093 when the key is taken.
    Pointer Add(PropertyArguments arguments);
    /// Raises SelChange each time; error 20092 when there is none.
    Pointer Item(ItemKey which);
    std::int32_t Count() const { return static_cast<std::int32_t>(list_.Count()); }
    /// Removes an item and returns the new count; error 20092 when there is none.
    std::int32_t Remove(ItemKey which);
    void Clear() { list_.Clear(); }

    Pointer At(std::size_t position) const { return list_.At(position); }
    std::size_t Size() const { return list_.Count(); }
    Iterator begin() const { return Iterator(*this); }
    Iterator end() const { return Iterator(); }

private:
    void Renumber();

    KeyedList<Property> list_;
};

} // namespace quillgrid
