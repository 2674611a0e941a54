#pragma once

#include "quillgrid/base/KeyedList.h"
#include "quillgrid/cells/ItemKey.h"
#include "quillgrid/cells/PersistentCell.h"
#include "quillgrid/cells/PositionIterator.h"

#include <cstdint>
#include <memory>

namespace quillgrid {

/// The sample cells of a form designer.
class PersistentCells {
public:
    using Pointer = std::shared_ptr<PersistentCell>;
    using Iterator = PositionIterator<PersistentCells, PersistentCell>;

    /// Appends the record with the next number n: key "Celln", caption "Labeln", value "Textn". Error 20093
    /// when an earlier removal left that key in use.
    Pointer Add();
    /// Error 20092 when there is none.
    Pointer Item(ItemKey which) const;
    std::int32_t Count() const { return static_cast<std::int32_t>(list_.Count()); }
    /// Removes a record, with `renumber` sets the `Index` of the rest to their positions, and returns the new
    /// count; error 20092 when there is none.
    std::int32_t Remove(ItemKey which, bool renumber);
    void Clear() { list_.Clear(); }

    Pointer At(std::size_t position) const { return list_.At(position); }
    std::size_t Size() const { return list_.Count(); }
    Iterator begin() const { return Iterator(*this); }
    Iterator end() const { return Iterator(); }

private:
    KeyedList<PersistentCell> list_;
};

} // namespace quillgrid
