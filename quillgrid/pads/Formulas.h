#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/base/KeyedList.h"
#include "quillgrid/cells/ItemKey.h"
#include "quillgrid/cells/PositionIterator.h"
#include "quillgrid/pads/Formula.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace quillgrid {

struct FormulaArguments {
    std::int32_t Index = 0; ///< inserted before this position; appended when there is no such position
    std::string Key{};
    std::string Text{};
    std::optional<Variant> ListImage{};
    std::string TooltipText{};
};

/// The formulas of the calculator; the first four are those of its formula keys.
class QUILLGRID_EXPORT Formulas {
public:
    using Pointer = std::shared_ptr<Formula>;
    using Iterator = PositionIterator<Formulas, Formula>;

    /// Error 20093 when the key is taken.
    Pointer Add(FormulaArguments arguments);
    /// Error 20092 when there is none.
    Pointer Item(ItemKey which) const;
    /// The formula or nothing.
    Pointer Find(ItemKey which) const { return FindItem(list_, which); }
    std::int32_t Count() const { return static_cast<std::int32_t>(list_.Count()); }
    /// Error 20092 when there is none.
    void Remove(ItemKey which);
    void Clear() { list_.Clear(); }

    Pointer At(std::size_t position) const { return list_.At(position); }
    std::size_t Size() const { return list_.Count(); }
    Iterator begin() const { return Iterator(*this); }
    Iterator end() const { return Iterator(); }

private:
    KeyedList<Formula> list_;
};

} // namespace quillgrid
