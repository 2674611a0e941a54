#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/cells/ItemKey.h"
#include "quillgrid/cells/Listitem.h"
#include "quillgrid/cells/PositionIterator.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quillgrid {

struct ListitemArguments {
    std::string Text{};
    std::optional<Variant> ItemData{};  ///< the text when not given
    std::optional<Variant> ListImage{}; ///< Null when not given
    std::int32_t Indent = 0;            ///< taken as given
};

/// The entries of a list-style cell, in order and without keys.
class QUILLGRID_EXPORT Listitems {
public:
    using Pointer = std::shared_ptr<quillgrid::Listitem>;
    using Iterator = PositionIterator<Listitems, quillgrid::Listitem>;

    Listitems() = default;
    /// An entry stands in one list, which knows of its image.
    Listitems(const Listitems&) = delete;
    Listitems& operator=(const Listitems&) = delete;
    Listitems(Listitems&&) = default;
    Listitems& operator=(Listitems&&) = default;
    ~Listitems() = default;

    /// Appends an entry.
    Pointer Add(ListitemArguments arguments);
    /// The entry at a position, or nothing.
    Pointer Item(ItemKey which) const { return which.IsKey() ? nullptr : At(which.Position()); }
    std::int32_t Count() const { return static_cast<std::int32_t>(entries_.size()); }
    void Clear();
    /// Removes the entry at a position; nothing happens when there is none.
    void Remove(std::size_t position);
    /// Whether any entry has an image now. Does not look at the entries.
    bool HasImages() const { return images_ && *images_ > 0; }

    /// A spare entry that belongs to no position; made on the first read.
    Pointer Listitem();
    void SetListitem(Pointer spare) { spare_ = std::move(spare); }

    /// The entry that typed characters select: characters typed within 500 ms of each other (up to 20) form
    /// one search text. `current` is the position chosen now, `tick` the time in milliseconds. Gives the
    /// index of the next entry that begins with the search text, or `current`, and then the search text is
    /// emptied.
    std::int32_t TypeAhead(std::int32_t current, char32_t character, std::uint64_t tick);

    Pointer At(std::size_t position) const {
        return position >= 1 && position <= entries_.size() ? entries_[position - 1] : nullptr;
    }
    std::size_t Size() const { return entries_.size(); }
    /// The first entry whose data equal `value` as text, ignoring case, or 0. Linear.
    std::int32_t PositionOfData(const Variant& value) const;

    Iterator begin() const { return Iterator(*this); }
    Iterator end() const { return Iterator(); }

private:
    void ExtendSearchText(char32_t character, std::uint64_t tick);
    const quillgrid::Listitem* FirstMatch(std::size_t from, std::size_t to) const;

    std::vector<Pointer> entries_;
    Pointer spare_;
    std::string searchText_;
    std::optional<std::uint64_t> lastKeyTick_;
    std::shared_ptr<std::size_t> images_; ///< the count of entries with an image, shared with the entries
};

} // namespace quillgrid
