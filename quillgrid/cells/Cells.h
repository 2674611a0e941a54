#pragma once

#include "quillgrid/base/Constants.h"
#include "quillgrid/base/Export.h"
#include "quillgrid/base/KeyedList.h"
#include "quillgrid/base/Variant.h"
#include "quillgrid/cells/Cell.h"
#include "quillgrid/cells/ItemKey.h"
#include "quillgrid/cells/OwnerLink.h"
#include "quillgrid/cells/PositionIterator.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quillgrid {

class CellOwner;

struct CellArguments {
    std::int32_t Index = 0; ///< position to insert before; below 1 or beyond the last appends
    std::string Key{};      ///< empty: no key
    std::optional<Variant> Caption{};
    std::optional<Variant> Value{};
    CellTemplateConstants CellTemplate = qgctNone;
    std::string Group{}; ///< empty: the control's current group
    std::string TooltipText{};
};

/// The cells of a control in the order in which they were added.
class QUILLGRID_EXPORT Cells {
public:
    using Pointer = std::shared_ptr<Cell>;
    using Iterator = PositionIterator<Cells, Cell>;

    explicit Cells(CellOwner* owner = nullptr) : link_(std::make_shared<OwnerLink>(OwnerLink{owner})) {}
    ~Cells() { link_->Owner = nullptr; }
    Cells(const Cells&) = delete;
    Cells& operator=(const Cells&) = delete;

    /// Makes a cell and defines it by its template. A key that is taken, or a failing definition, is error
    /// 20093; no cell is added then. Adding at the end takes constant time.
    Pointer Add(CellArguments arguments = {});
    /// Error 20092 when there is none.
    Pointer Item(ItemKey which) const;
    /// The cell or nothing.
    Pointer Find(ItemKey which) const { return FindItem(list_, which); }
    std::int32_t Count() const { return static_cast<std::int32_t>(list_.Count()); }
    /// Removes a cell and returns the new count; error 20092 when there is none.
    std::int32_t Remove(ItemKey which);
    void Clear();

    /// For loops that change nothing and call nobody back.
    const std::vector<Pointer>& All() const { return list_.Items(); }
    Pointer At(std::size_t position) const { return list_.At(position); }
    std::size_t Size() const { return list_.Count(); }
    Iterator begin() const { return Iterator(*this); }
    Iterator end() const { return Iterator(); }

    /// Null before the control goes: every cell, removed ones that the host still holds included, loses it
    /// too.
    void SetOwner(CellOwner* owner) { link_->Owner = owner; }

private:
    Pointer NewCell(const CellArguments& arguments) const;
    void Insert(const Pointer& cell, const CellArguments& arguments);
    void DefineOrTakeOut(const Pointer& cell, CellArguments& arguments);
    void TakeOut(const Cell& cell);
    std::size_t PositionOf(ItemKey which) const;
    void Renumber();
    void TellOrderChanged() const;

    KeyedList<Cell> list_;
    OwnerLinkReference link_;
};

} // namespace quillgrid
