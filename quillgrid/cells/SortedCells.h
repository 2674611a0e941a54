#pragma once

#include "quillgrid/base/KeyedList.h"
#include "quillgrid/cells/Cell.h"
#include "quillgrid/cells/ItemKey.h"
#include "quillgrid/cells/PositionIterator.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace quillgrid {

/// The cells in the order in which they are shown, made anew by the control whenever it sorts.
class SortedCells {
public:
    using Pointer = std::shared_ptr<Cell>;
    using Iterator = PositionIterator<SortedCells, Cell>;

    /// Position 0 appends; another one inserts before it (error 20092 when there is no such position). The
    /// cell's `Index` becomes its place here.
    void Add(const Pointer& cell, std::int32_t position = 0);
    /// Error 20092 when there is none.
    Pointer Item(std::int32_t position) const;
    std::int32_t Count() const { return static_cast<std::int32_t>(list_.Count()); }
    /// Removes by position and renumbers the rest; error 20092 when there is none.
    void Remove(std::int32_t position);
    void Clear() { list_.Clear(); }
    /// Other rows; no pointer is null.
    void Assign(std::vector<Pointer> cells);
    /// For loops that change nothing and call nobody back.
    const std::vector<Pointer>& All() const { return list_.Items(); }

    /// The cell or nothing.
    Pointer At(std::size_t position) const { return list_.At(position); }
    std::size_t Size() const { return list_.Count(); }
    /// Place of a cell, 0 when it is not shown.
    std::int32_t PositionOf(const Cell& cell) const;
    Iterator begin() const { return Iterator(*this); }
    Iterator end() const { return Iterator(); }

private:
    void Renumber();

    KeyedList<Cell> list_;
};

} // namespace quillgrid
