#pragma once

#include "quillgrid/base/Export.h"

#include <cstdint>
#include <optional>
#include <string>

namespace quillgrid {

class Listitems;

/// Search by typing that counts the present row among the matches. Characters typed within half a second of
/// each other, up to 20, form one search text.
class QUILLGRID_EXPORT ListPadSearch {
public:
    /// The next row after `current` that begins with what was typed, else the first up to and including it;
    /// `current`, and the search text is emptied, when there is none. `tick` is the time in milliseconds.
    std::int32_t Find(const Listitems& items, std::int32_t current, char32_t character, std::uint64_t tick);

private:
    void Extend(char32_t character, std::uint64_t tick);
    std::int32_t FirstMatch(const Listitems& items, std::int32_t from, std::int32_t to) const;

    std::string typed_;
    std::optional<std::uint64_t> lastTick_;
};

} // namespace quillgrid
