#include "quillgrid/base/Text.h"

#include <gtest/gtest.h>

#include <clocale>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <wctype.h>

namespace quillgrid {
namespace {

std::vector<char32_t> Forwards(std::string_view text) {
    std::vector<char32_t> characters;
    while (!text.empty()) {
        const DecodedCharacter next = DecodeFirst(text);
        characters.push_back(next.Character);
        text.remove_prefix(next.Bytes);
    }
    return characters;
}

std::vector<char32_t> Backwards(std::string_view text) {
    std::vector<char32_t> characters;
    while (!text.empty()) {
        const DecodedCharacter last = DecodeLast(text);
        characters.insert(characters.begin(), last.Character);
        text.remove_suffix(last.Bytes);
    }
    return characters;
}

TEST(Text, MalformedBytesAreOneReplacementEach) {
    const std::string samples[] = {"\xFF",     "\xC3",         "\xC0\xAF",
                                   "\xE2\x82", "\xED\xA0\x80", "\xF4\x90\x80\x80",
                                   "\x80",     "a\xE2\x82z",   "\xF0\x9F\x98"};
    for (const std::string& sample : samples) {
        EXPECT_FALSE(IsValidUtf8(sample));
        const std::string repaired = RepairUtf8(sample);
        EXPECT_TRUE(IsValidUtf8(repaired));
        EXPECT_EQ(Forwards(repaired), Forwards(sample));
    }
    EXPECT_EQ(CharacterCount("\xE2\x82z"), 3U);
    EXPECT_TRUE(IsValidUtf8("\xEF\xBF\xBD")) << "a genuine U+FFFD is no damage";
}

TEST(Text, DecodesTheSameFromBothEndsWhateverTheBytes) {
    std::mt19937 random(42);
    const std::string bytes = "a\x80\xBF\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80\xED\xA0\xFF";
    for (int round = 0; round < 20'000; ++round) {
        std::string text;
        for (unsigned i = random() % 8; i > 0; --i)
            text += bytes[random() % bytes.size()];
        ASSERT_EQ(Forwards(text), Backwards(text));
    }
}

TEST(Text, CountsAndCutsCodePoints) {
    EXPECT_EQ(CharacterCount("Grüße 😀"), 7U);
    EXPECT_EQ(CharacterCount("äabcdefghijklmnopqüöabcdefgh\xFF"), 29U);
    EXPECT_FALSE(IsValidUtf8("abcdefghijklmnop\x80qrstuvwxyz"));
    EXPECT_EQ(FirstCharacters("Grüße", 3), "Grü");
    EXPECT_EQ(FirstCharacters("ab", 5), "ab");
    EXPECT_EQ(FirstCharacters("ab", 0), "");
    EXPECT_EQ(TrimBlanks("  a b "), "a b");
    EXPECT_EQ(TrimBlanks("   "), "");
    EXPECT_EQ(TrimBlanks("\ta"), "\ta");
}

TEST(Text, ComparesWithoutCaseInLatinGreekAndCyrillic) {
    EXPECT_TRUE(EqualIgnoreCase("Ärger ÉTÉ Łódź", "äRGER été łÓDŹ"));
    EXPECT_TRUE(EqualIgnoreCase("ΟΔΥΣΣΕΥΣ", "οδυσσευς")) << "final sigma";
    EXPECT_TRUE(EqualIgnoreCase("ЖУРНАЛ Ђ", "журнал ђ"));
    EXPECT_TRUE(EqualIgnoreCase("ǄẞŸ", "ǆßÿ"));
    EXPECT_FALSE(EqualIgnoreCase("Straße", "Strasse"));
    EXPECT_FALSE(EqualIgnoreCase("ı", "i")) << "dotless i is a letter of its own";
    EXPECT_LT(CompareIgnoreCase("apfel", "Birne"), 0);
    EXPECT_GT(CompareIgnoreCase("abc", "AB"), 0);
    EXPECT_EQ(UpperCase("grüße ñ"), "GRÜßE Ñ");
    EXPECT_EQ(LowerCase("ÀΩЯ"), "àωя");
}

/// Folding maps to the small letter of the capital, but for these.
bool FoldsByItself(char32_t character) {
    for (const char32_t special : {U'ı', U'İ', U'\u1FD3', U'\u1FE3', U'\uFB05'}) {
        if (character == special) return true;
    }
    return false;
}

TEST(Text, CaseMappingsFoldTogether) {
    for (char32_t character = 0; character < 0x11000; ++character) {
        const char32_t folded = FoldCase(character);
        ASSERT_EQ(FoldCase(folded), folded);
        if (FoldsByItself(character)) continue;
        ASSERT_EQ(folded, ToLower(ToUpper(character))) << std::hex << static_cast<unsigned>(character);
        ASSERT_EQ(FoldCase(ToUpper(character)), folded) << std::hex << static_cast<unsigned>(character);
        ASSERT_EQ(FoldCase(ToLower(character)), folded) << std::hex << static_cast<unsigned>(character);
    }
    EXPECT_EQ(FoldCase(U'ı'), U'ı');
    EXPECT_EQ(FoldCase(U'İ'), U'İ');
    EXPECT_EQ(FoldCase(U'\u1FD3'), U'\u0390') << "two encodings of one letter";
    EXPECT_EQ(HashIgnoreCase("KÄSE \u2168"), HashIgnoreCase("käse \u2178"));
    EXPECT_NE(HashIgnoreCase("KÄSE"), HashIgnoreCase("Kase"));
}

#ifdef __GLIBC__
TEST(Text, CaseMappingsAgreeWithTheSystem) {
    const locale_t locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    ASSERT_NE(locale, nullptr);
    constexpr std::pair<char32_t, char32_t> blocks[] = {{0, 0x052F},      {0x1C80, 0x1C88}, {0x1D00, 0x1DBF},
                                                        {0x1E00, 0x1FFF}, {0x2100, 0x218F}, {0x24B6, 0x24E9},
                                                        {0x2C60, 0x2C7F}, {0xA640, 0xA69F}, {0xA720, 0xA7FF},
                                                        {0xAB30, 0xAB6F}, {0xFB00, 0xFB06}, {0xFF00, 0xFF5E}};
    for (const auto& [first, last] : blocks) {
        for (char32_t character = first; character <= last; ++character) {
            const auto wide = static_cast<wint_t>(character);
            EXPECT_EQ(ToUpper(character), towupper_l(wide, locale)) << std::hex << wide;
            EXPECT_EQ(ToLower(character), towlower_l(wide, locale)) << std::hex << wide;
        }
    }
    freelocale(locale);
}
#endif

TEST(Text, FindsWithoutCase) {
    std::size_t matched = 0;
    EXPECT_EQ(FindIgnoreCase("10 EUR", "eur", &matched), 3U);
    EXPECT_EQ(matched, 3U);
    // The Kelvin sign folds to "k" but takes three bytes.
    EXPECT_EQ(FindIgnoreCase("a\xE2\x84\xAA!", "K!", &matched), 1U);
    EXPECT_EQ(matched, 4U);
    EXPECT_EQ(FindIgnoreCase("abc", "d"), std::string_view::npos);
    EXPECT_EQ(FindIgnoreCase("abc", ""), 0U);
    EXPECT_TRUE(StartsWithIgnoreCase("Österreich", "öST"));
    EXPECT_FALSE(StartsWithIgnoreCase("Ost", "Osten"));
    EXPECT_TRUE(ContainsIgnoreCase("ABCÄ", U'ä'));
    EXPECT_FALSE(ContainsIgnoreCase("", U'a'));
}

} // namespace
} // namespace quillgrid
