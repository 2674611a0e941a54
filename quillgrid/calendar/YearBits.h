#pragma once

#include "quillgrid/base/Export.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace quillgrid {

// Words as eight bytes side by side.
inline constexpr std::uint64_t LowBits = 0x0101'0101'0101'0101;
inline constexpr std::uint64_t HighBits = 0x8080'8080'8080'8080;

/// In each byte, how many bits are set in it and in those below.
constexpr std::uint64_t RunningByteCounts(std::uint64_t word) {
    std::uint64_t counts = word - ((word >> 1) & 0x5555'5555'5555'5555);
    counts = (counts & 0x3333'3333'3333'3333) + ((counts >> 2) & 0x3333'3333'3333'3333);
    counts = (counts + (counts >> 4)) & 0x0f0f'0f0f'0f0f'0f0f;
    return counts * LowBits;
}

/// How many of the bytes, which must rise and stay below 128, are not above `most`.
constexpr int BytesUpTo(std::uint64_t bytes, int most) {
    // A byte's high bit survives where the subtraction borrows nothing.
    const std::uint64_t notAbove =
        ((static_cast<std::uint64_t>(most) * LowBits | HighBits) - bytes) & HighBits;
    return static_cast<int>((notAbove >> 7) * LowBits >> 56);
}

/// The eight bits of a byte, one in each byte.
constexpr std::uint64_t BitPerByte(std::uint64_t byte) {
    const std::uint64_t apart = byte * LowBits & 0x8040'2010'0804'0201;
    return (apart + ~HighBits) >> 7 & LowBits;
}

/// As std::popcount, which is a call where the compiler may not use the machine's own instruction.
constexpr std::int32_t CountBits(std::uint64_t word) {
    return static_cast<std::int32_t>(RunningByteCounts(word) >> 56);
}

/// One bit for each day of a year, 1 January first.
struct QUILLGRID_EXPORT YearBits {
    static constexpr std::size_t WordCount = 6;
    std::array<std::uint64_t, WordCount> Words{};

    void Set(std::int32_t index, bool on) {
        const std::uint64_t bit = std::uint64_t{1} << (index % 64);
        std::uint64_t& word = Words[static_cast<std::size_t>(index) / 64];
        word = on ? word | bit : word & ~bit;
    }
    /// `length` (1 to 31) bits from `first` on, which must lie within the year.
    std::uint32_t Slice(std::int32_t first, std::int32_t length) const;
};

/// The place of the set bit of `word` that `before` (less than their count) set bits precede.
constexpr int PlaceOfBit(std::uint64_t word, int before) {
    const std::uint64_t inBytes = RunningByteCounts(word);
    const int byte = BytesUpTo(inBytes, before);
    const std::uint64_t bits = word >> (byte * 8) & 0xff;
    const int ahead = static_cast<int>(inBytes << 8 >> (byte * 8) & 0xff);
    return byte * 8 + BytesUpTo(BitPerByte(bits) * LowBits, before - ahead);
}

/// All days of a year whose place in the week is `weekday` (0 to 6), when 1 January's is `newYear`.
QUILLGRID_EXPORT YearBits EverySeventhDay(int newYear, int weekday);

} // namespace quillgrid
