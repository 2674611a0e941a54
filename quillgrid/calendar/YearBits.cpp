#include "quillgrid/calendar/YearBits.h"

namespace quillgrid {

namespace {

constexpr std::uint64_t LowBits = 0x0101'0101'0101'0101;
constexpr std::uint64_t HighBits = 0x8080'8080'8080'8080;

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

int PlaceOfBit(std::uint64_t word, int before) {
    const std::uint64_t inBytes = RunningByteCounts(word);
    const int byte = BytesUpTo(inBytes, before);
    const std::uint64_t bits = word >> (byte * 8) & 0xff;
    const int ahead = static_cast<int>(inBytes << 8 >> (byte * 8) & 0xff);
    return byte * 8 + BytesUpTo(BitPerByte(bits) * LowBits, before - ahead);
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
