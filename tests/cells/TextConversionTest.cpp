#include "tests/cells/ConversionFixture.h"

#include "quillgrid/base/Text.h"

#include <any>
#include <random>
#include <vector>

namespace quillgrid {
namespace {

using TextConversion = ConversionTest;

constexpr ValidationRuleConstants AllRules[] = {
    qgvrNone, qgvrInteger, qgvrCurrency,
    qgvrEuro, qgvrDouble,  qgvrDate,
    qgvrTime, qgvrBoolean, static_cast<ValidationRuleConstants>(4711)};

TEST_F(TextConversion, BlankInputIsRefusedOrTakenAsItIs) {
    const std::vector<Variant> blanks = {Variant(), Variant::Null(), "", "     ",
                                         ObjectReference(std::make_shared<std::any>(5))};
    Rules.MaxLength = 2;
    for (const auto rule : AllRules) {
        Rules.Rule = rule;
        for (const Variant& blank : blanks) {
            Variant value = blank;
            Rules.AllowEmpty = false;
            EXPECT_EQ(Convert(value), qgerrEmpty) << rule;
            Rules.AllowEmpty = true;
            EXPECT_EQ(Convert(value), qgErrNone) << rule;
            EXPECT_EQ(value.Kind(), blank.Kind());
            EXPECT_EQ(value.ToPlainText(), blank.ToPlainText());
        }
    }
}

TEST_F(TextConversion, CharactersOutsideTheListAreRefused) {
    Rules.Charlist = "ABC\u00C4";
    EXPECT_EQ(Converted("abc\u00E4"), Variant("abc\u00E4"));
    EXPECT_EQ(Converted("abd"), Variant("error 20011"));
    EXPECT_EQ(Converted("ab "), Variant("error 20011")) << "blanks too must be in the list";
    EXPECT_EQ(Converted("a\xFF"), Variant("error 20011"));
    EXPECT_EQ(Converted(12), Variant("error 20011"));
    Rules.Charlist = "0123";
    EXPECT_EQ(Converted(12), Variant(12)) << "a value that passes keeps its type";
    Rules.Rule = qgvrInteger;
    EXPECT_EQ(Converted("789"), Variant(789)) << "the list is for free text only";
}

TEST_F(TextConversion, FreeTextIsCutByCharacters) {
    Rules.MaxLength = 3;
    EXPECT_EQ(Converted("abcdef"), Variant("abc"));
    EXPECT_EQ(Converted("\u00E4\u20AC\U0001F600x"), Variant("\u00E4\u20AC\U0001F600"));
    EXPECT_EQ(Converted(" ab "), Variant(" ab"));
    EXPECT_EQ(Converted(12345), Variant("123"));
    EXPECT_EQ(Converted(123), Variant(123));
    EXPECT_EQ(Converted(std::string(1'000'000, 'x')), Variant("xxx"));
    for (const std::int32_t none : {0, -1, INT32_MIN}) {
        Rules.MaxLength = none;
        EXPECT_EQ(Converted("abc"), Variant("")) << none;
    }
    Rules.Rule = qgvrInteger;
    EXPECT_EQ(Converted("12345"), Variant(12345)) << "only free text is cut";
}

TEST_F(TextConversion, TheCutStandsWhenTheTextIsRefused) {
    Rules.MaxLength = 3;
    Rules.Charlist = "ABC";
    Variant value("abxyz");
    EXPECT_EQ(Convert(value), qgerrMask);
    EXPECT_EQ(value, Variant("abx"));
    EXPECT_EQ(Converted("abcxyz"), Variant("abc")) << "what was cut off is not looked at";
}

TEST_F(TextConversion, MalformedTextIsRepairedWhereItIsKept) {
    EXPECT_EQ(Converted("a\xFF"
                        "b"),
              Variant("a\uFFFD"
                      "b"));
    Rules.MaxLength = 2;
    EXPECT_EQ(Converted("\xC3\xC3\xC3"), Variant("\uFFFD\uFFFD"));
    Rules.Rule = qgvrBoolean;
    EXPECT_EQ(Converted("\xC3"
                        "abc"),
              Variant("\uFFFD"
                      "abc"));
    Rules.Rule = qgvrNone;
    Rules.Charlist = "A";
    Variant refused("b\xFF");
    EXPECT_EQ(Convert(refused), qgerrMask);
    EXPECT_EQ(refused, Variant("b\xFF"));
}

TEST_F(TextConversion, OtherRulesTakeTheValueAsItIs) {
    for (const auto rule : {qgvrBoolean, static_cast<ValidationRuleConstants>(-1)}) {
        Rules.Rule = rule;
        Rules.MaxLength = 1;
        EXPECT_EQ(Converted("yes"), Variant("yes"));
        EXPECT_EQ(Converted(true), Variant(true));
        EXPECT_EQ(Converted(2.5), Variant(2.5));
    }
}

std::string RandomText(std::mt19937& random) {
    static constexpr std::string_view pieces[] = {
        "0", "1",  "24", "99",  "2027",   ".",      ",",    ":",    "/",        "-",  "+", " ",  "#",
        "a", "AM", "pm", "Mai", "\u00E4", "\u20AC", "\xFF", "\xC3", "\xE2\x82", "12", "3", "E5", "'"};
    std::string text;
    for (auto count = random() % 12; count > 0; --count)
        text += pieces[random() % std::size(pieces)];
    return text;
}

TEST_F(TextConversion, RefusedInputChangesNothingAndAcceptedInputIsStable) {
    std::mt19937 random(20261116);
    int refused = 0;
    for (int round = 0; round < 20'000; ++round) {
        const std::string text = RandomText(random);
        Rules.Rule = AllRules[random() % std::size(AllRules)];
        Rules.AllowEmpty = random() % 2 == 0;
        Variant value(text);
        if (Convert(value) != qgErrNone) {
            ++refused;
            ASSERT_EQ(value, Variant(text));
            continue;
        }
        const auto* kept = value.Get<std::string>();
        ASSERT_TRUE(!kept || IsValidUtf8(*kept)) << text;
        ASSERT_EQ(Converted(value), value) << text << " under rule " << Rules.Rule;
    }
    EXPECT_GT(refused, 2'000);
}

} // namespace
} // namespace quillgrid
