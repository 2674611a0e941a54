#include "quillgrid/calendar/YearBits.h"

namespace quillgrid {

namespace {

constexpr std::uint64_t LowBits = 0x0101'0101'0101'0101;
constexpr std::uint64_t HighBits = 0x8080'8080'8080'8080;

constexpr std::uint64_t EverySeventhBit(int first) {
    std::uint64_t bits = 0;
    for (int i = first; i < 64; i += 7)
        bits |= std::uint64_t{1} << i;
    return bits;
}

constexpr std::uint64_t SeventhBits[] = {EverySeventhBit(0), EverySeventhBit(1), EverySeventhBit(2),
                                         EverySeventhBit(3), EverySeventhBit(4), EverySeventhBit(5),
                                         EverySeventhBit(6)};

/// In each byte, how many bits are set in it and in those below.
std::uint64_t RunningByteCounts(std::uint64_t word) {
    std::uint64_t counts = word - ((word >> 1) & 0x5555'5555'5555'5555);
    counts = (counts & 0x3333'3333'3333'3333) + ((counts >> 2) & 0x3333'3333'3333'3333);
    counts = (counts + (counts >> 4)) & 0x0f0f'0f0f'0f0f'0f0f;
    return counts * LowBits;
}

} // namespace

std::uint32_t YearBits::Slice(std::int32_t first, std::int32_t length) const {
    const auto word = static_cast<std::size_t>(first) / 64;
    const int offset = first % 64;
    std::uint64_t bits = Words[word] >> offset;
    if (offset > 0 && word + 1 < WordCount) bits |= Words[word + 1] << (64 - offset);
    return static_cast<std::uint32_t>(bits & ((std::uint64_t{1} << length) - 1));
}

int PlaceOfBit(std::uint64_t word, int before) {
    const std::uint64_t counts = RunningByteCounts(word);
    // A byte's high bit survives where its running count is not above `before`.
    const std::uint64_t notYet =
        ((static_cast<std::uint64_t>(before) * LowBits | HighBits) - counts) & HighBits;
    const int byte = static_cast<int>((notYet >> 7) * LowBits >> 56);
    const int start = byte * 8;
    if (byte > 0) before -= static_cast<int>((counts >> (start - 8)) & 0xff);
    std::uint64_t rest = word >> start;
    for (; before > 0; --before)
        rest &= rest - 1;
    return start + std::countr_zero(rest);
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
