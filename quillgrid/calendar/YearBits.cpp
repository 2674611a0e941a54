#include "quillgrid/calendar/YearBits.h"

namespace quillgrid {

namespace {

constexpr std::uint64_t EverySeventhBit(int first) {
    std::uint64_t bits = 0;
    for (int i = first; i < 64; i += 7)
        bits |= std::uint64_t{1} << i;
    return bits;
}

constexpr std::uint64_t SeventhBits[] = {EverySeventhBit(0), EverySeventhBit(1), EverySeventhBit(2),
                                         EverySeventhBit(3), EverySeventhBit(4), EverySeventhBit(5),
                                         EverySeventhBit(6)};

} // namespace

std::uint32_t YearBits::Slice(std::int32_t first, std::int32_t length) const {
    const auto word = static_cast<std::size_t>(first) / 64;
    const int offset = first % 64;
    std::uint64_t bits = Words[word] >> offset;
    if (offset > 0 && word + 1 < WordCount) bits |= Words[word + 1] << (64 - offset);
    return static_cast<std::uint32_t>(bits & ((std::uint64_t{1} << length) - 1));
}

YearBits EverySeventhDay(int newYear, int weekday) {
    YearBits bits;
    int first = (weekday - newYear + 7) % 7;
    for (std::uint64_t& word : bits.Words) {
        word = SeventhBits[first];
        first = (first + 6) % 7; // 64 days later the week stands one day on
    }
    return bits;
}

} // namespace quillgrid
