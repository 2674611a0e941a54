#include "quillgrid/pads/ListPadSearch.h"

#include "quillgrid/base/Text.h"
#include "quillgrid/cells/Listitems.h"

#include <algorithm>

namespace quillgrid {

namespace {

constexpr std::uint64_t PauseMilliseconds = 500;
constexpr std::size_t LongestSearchText = 20;

} // namespace

std::int32_t ListPadSearch::Find(const Listitems& items, std::int32_t current, char32_t character,
                                 std::uint64_t tick) {
    Extend(character, tick);
    const std::int32_t count = items.Count();
    const std::int32_t chosen = std::clamp(current, 0, count);
    std::int32_t match = FirstMatch(items, chosen + 1, count);
    if (match == 0) match = FirstMatch(items, 1, chosen);
    if (match != 0) return match;
    typed_.clear();
    return current;
}

void ListPadSearch::Extend(char32_t character, std::uint64_t tick) {
    const bool paused = !lastTick_ || tick - *lastTick_ >= PauseMilliseconds;
    if (paused || CharacterCount(typed_) >= LongestSearchText) typed_.clear();
    AppendUtf8(typed_, character);
    lastTick_ = tick;
}

std::int32_t ListPadSearch::FirstMatch(const Listitems& items, std::int32_t from, std::int32_t to) const {
    for (std::int32_t row = from; row <= to; ++row) {
        const auto item = items.At(static_cast<std::size_t>(row));
        if (item && StartsWithIgnoreCase(item->Text(), typed_)) return row;
    }
    return 0;
}

} // namespace quillgrid
