#pragma once

#include "quillgrid/base/KeyedList.h"
#include "quillgrid/cells/Column.h"
#include "quillgrid/cells/ItemKey.h"
#include "quillgrid/cells/PositionIterator.h"

#include <cstdint>
#include <memory>

namespace quillgrid {

/// The columns of the layout: labels, then values.
class Columns {
public:
    using Pointer = std::shared_ptr<Column>;
    using Iterator = PositionIterator<Columns, Column>;

    Pointer Add() {
        auto column = std::make_shared<Column>();
        list_.Append({}, column);
        return column;
    }
    /// The column at a position, or nothing.
    Pointer Item(ItemKey which) const { return FindItem(list_, which); }
    std::int32_t Count() const { return static_cast<std::int32_t>(list_.Count()); }
    void Clear() { list_.Clear(); }

    Pointer At(std::size_t position) const { return list_.At(position); }
    std::size_t Size() const { return list_.Count(); }
    Iterator begin() const { return Iterator(*this); }
    Iterator end() const { return Iterator(); }

private:
    KeyedList<Column> list_;
};

} // namespace quillgrid
