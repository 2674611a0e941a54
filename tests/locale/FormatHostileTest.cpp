#include "LocaleSamples.h"

#include "quillgrid/base/Text.h"
#include "quillgrid/locale/Format.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace quillgrid {
namespace {

const Variant Values[] = {
    0,
    -1,
    1234567.891,
    1e308,
    5e-324,
    -0.0,
    std::nan(""),
    std::numeric_limits<double>::infinity(),
    Currency::FromScaled(INT64_MIN),
    std::int16_t{32767},
    true,
    "12,5",
    "text",
    "\xff\xc3",
    "16.11.2026 12:30",
    DateTime{FirstDay, 0},
    DateTime{LastDay, 86399},
    DateTime{INT32_MIN, INT32_MAX},
    Variant(),
    Variant::Null(),
};

// Every pattern character may bring a name, a separator or a digit; a number brings at most 330 of its own,
// and each section character may also scale it by two or three digits.
std::size_t MostBytes(std::size_t patternBytes) {
    return 48 * patternBytes + 1000;
}

void ExpectBounded(const std::string& pattern) {
    for (const auto name : {"de-DE", "en-US"}) {
        for (const Variant& value : Values) {
            const std::string text = Format(value, pattern, BuiltInLocale(name));
            ASSERT_LE(text.size(), MostBytes(pattern.size())) << pattern.substr(0, 100);
            if (!value.IsText()) {
                ASSERT_TRUE(IsValidUtf8(text)) << pattern.substr(0, 100);
            }
        }
    }
}

TEST(FormatHostile, AnyMixOfPatternCharactersIsSafe) {
    constexpr std::string_view alphabet = "0#.,%;E+-e\"\\dmyhnswqctaAP/: \xc3\xa4\xff(";
    std::mt19937 random(5);
    for (int i = 0; i < 4'000; ++i) {
        std::string pattern(random() % 24, ' ');
        for (char& character : pattern)
            character = alphabet[random() % alphabet.size()];
        ExpectBounded(pattern);
    }
}

TEST(FormatHostile, AnyByteIsSafe) {
    for (int first = 0; first < 256; ++first) {
        for (const char second : {'0', 'd', '"', '\\', '\xff'}) {
            const char byte = static_cast<char>(first);
            ExpectBounded({byte});
            ExpectBounded({byte, second});
            ExpectBounded({second, byte});
        }
    }
}

TEST(FormatHostile, LongPatternsStayLinear) {
    constexpr std::size_t length = 4'000;
    for (const std::string_view part :
         {"0", "#", "0.",    ",",     "%",    "0%",    "0,", "E+0",  "\"", "\"\"", "\\",  ";",     "a",
          "d", "c", "ttttt", "ddddd", "am/p", "AM/PM", "h",  "\xff", "ä",  "/",    "0E+", "#,##0."}) {
        std::string pattern;
        while (pattern.size() < length)
            pattern += part;
        ExpectBounded(pattern);
        ExpectBounded("0" + pattern);
        ExpectBounded("0." + pattern);
    }
}

} // namespace
} // namespace quillgrid
