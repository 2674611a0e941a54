#include "tests/monkey/Picks.h"

#include "quillgrid/grid/Keys.h"

#include <iterator>
#include <limits>

namespace quillgrid::monkey {

namespace {

constexpr std::int32_t Least = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t Most = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t Edges[] = {0, 1, -1, 2, 255, 256, 32767, 32768, -32769, 65536, Most, Most - 1, Least};
constexpr char32_t Usual[] = U"0123456789.,:;-+/ abBeErRnNxXäöüÄÉß€";
constexpr char32_t Odd[] = {0,      1,       3,        8,        9,          10,        13,
                            22,     24,      26,       27,       127,        0x80,      0xA0,
                            0x301,  0x200F,  0x202E,   0xD800,   0xDC00,     0xDFFF,    0xFFFD,
                            0xFFFE, 0x1F600, 0x10FFFF, 0x110000, 0xFFFFFFFF, 0x7FFFFFFF};
constexpr std::int32_t Keys[] = {KeyEnter,    KeyEscape, KeyBackspace, KeyTab,   KeyDown, KeyDown, KeyUp,
                                 KeyUp,       KeyLeft,   KeyRight,     KeyHome,  KeyEnd,  KeyF4,   KeyInsert,
                                 KeyPageDown, KeyPageUp, KeyDelete,    KeySpace, KeyV,    KeyEnter};
constexpr const char* Texts[] = {"",
                                 "a",
                                 "Berlin",
                                 "bern",
                                 "0",
                                 "-5",
                                 "3.5.",
                                 "31.02.2026",
                                 "12:30",
                                 "25:99",
                                 "1,5",
                                 "1.234,56 €",
                                 "99999999999999999999",
                                 "1e308",
                                 "-",
                                 ".",
                                 "   x   ",
                                 "ja",
                                 "true",
                                 "&Name",
                                 "&&",
                                 "&",
                                 "äöüß",
                                 "e\xCC\x81",
                                 "\xF0\x9F\x98\x80",
                                 "\xED\xA0\x80",
                                 "\xFF\xFE",
                                 "a\nb\tc",
                                 "1.1.2026",
                                 "10%",
                                 "+49 30/1234",
                                 "x@y.de",
                                 "Group1",
                                 "phone"};
constexpr double Doubles[] = {0.0, -0.0, 0.5, -1.25, 1e15, -1e15, 1e308, 5e-324};

} // namespace

std::uint32_t Mixed(std::uint32_t number, std::uint32_t salt) {
    std::uint64_t mixed = (std::uint64_t{number} << 8U) + salt + 0x9E3779B97F4A7C15U;
    mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
    return static_cast<std::uint32_t>(mixed >> 32U);
}

std::int32_t AnyNumber(std::uint32_t pick) {
    const std::uint32_t rest = pick / 8;
    if (pick % 8 == 0) return Edges[rest % std::size(Edges)];
    if (pick % 8 == 1) return static_cast<std::int32_t>(rest * 8U + 1U);
    return static_cast<std::int32_t>(rest % 120) - 10;
}

char32_t AnyCharacter(std::uint32_t pick) {
    const std::uint32_t rest = pick / 16;
    if (pick % 16 < 12) return Usual[rest % (std::size(Usual) - 1)];
    if (pick % 16 < 15) return Odd[rest % std::size(Odd)];
    return rest % 0x11000;
}

std::int32_t AnyKeyCode(std::uint32_t pick) {
    const std::uint32_t rest = pick / 8;
    if (pick % 8 < 6) return Keys[rest % std::size(Keys)];
    return pick % 8 == 6 ? static_cast<std::int32_t>(rest % 256) : AnyNumber(rest);
}

std::int32_t AnyShift(std::uint32_t pick) {
    if (pick % 4 < 2) return ShiftNone;
    return pick % 32 == 31 ? AnyNumber(pick / 32) : static_cast<std::int32_t>(pick / 4 % 8);
}

std::string AnyText(std::uint32_t pick) {
    const std::uint32_t rest = pick / 16;
    if (pick % 16 == 0) return std::string(rest % 400, static_cast<char>(rest % 7 == 0 ? 0xC3 : 'W'));
    return Texts[rest % std::size(Texts)];
}

Variant AnyValue(std::uint32_t pick) {
    const std::uint32_t rest = pick / 16;
    switch (pick % 16) {
    case 0: return {};
    case 1: return Variant::Null();
    case 2: return static_cast<std::int16_t>(rest);
    case 3: return AnyNumber(rest);
    case 4: return Doubles[rest % std::size(Doubles)];
    case 5:
        return rest % 2 == 0 ? std::numeric_limits<double>::infinity()
                             : std::numeric_limits<double>::quiet_NaN();
    case 6:
        return Currency::FromScaled(rest % 2 == 0 ? std::numeric_limits<std::int64_t>::min()
                                                  : std::numeric_limits<std::int64_t>::max());
    case 7: return DateTime{rest % 2 == 0 ? FirstDay : LastDay, 86399};
    case 8: return DateTime{46000 + static_cast<std::int32_t>(rest % 400), 0};
    case 9: return Variant(rest % 2 == 0);
    case 10: return Variant(static_cast<std::int32_t>(rest % 30));
    default: return Variant(AnyText(rest));
    }
}

Point AnyPoint(std::uint32_t pick, Size inside) {
    const std::uint32_t rest = pick / 16;
    if (pick % 16 == 0) return {AnyNumber(rest), AnyNumber(Mixed(rest, 1))};
    const auto within = [](std::uint32_t number, std::int32_t size) {
        return size < 1 ? 0 : static_cast<std::int32_t>(number % static_cast<std::uint32_t>(size));
    };
    return {within(rest, inside.Width), within(Mixed(rest, 2), inside.Height)};
}

Size AnySize(std::uint32_t pick) {
    const std::uint32_t rest = pick / 8;
    if (pick % 8 == 0) return {AnyNumber(rest), AnyNumber(Mixed(rest, 3))};
    return {static_cast<std::int32_t>(rest % 500), static_cast<std::int32_t>(Mixed(rest, 4) % 400)};
}

} // namespace quillgrid::monkey
