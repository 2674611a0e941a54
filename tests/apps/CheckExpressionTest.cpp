#include "apps/record_editor/CheckExpression.h"

#include "apps/record_editor/SqlTokenizer.h"

#include <gtest/gtest.h>

#include <string>

namespace quillgrid::editor {
namespace {

/// "a >= 1; a <= 5": the facts in order.
std::string Facts(const char* check) {
    static constexpr const char* signs[] = {">=", ">", "<=", "<", "in", "length", "null"};
    std::string all;
    for (const CheckFact& fact : FactsOfChecks(QString::fromUtf8(check))) {
        if (!all.empty()) all += "; ";
        all += fact.Column.toStdString() + " " + signs[static_cast<int>(fact.Kind)];
        for (const SqlLiteral& value : fact.Values)
            all += " " + value.Text.toStdString();
    }
    return all;
}

TEST(CheckExpression, ReadsComparisonsBothWaysRound) {
    EXPECT_EQ(Facts("CHECK (a >= 1 AND a <= 5)"), "a >= 1; a <= 5");
    EXPECT_EQ(Facts("CHECK (1 < a and -2.5e3 >= b)"), "a > 1; b <= -2.5e3");
    EXPECT_EQ(Facts("CHECK (a BETWEEN 1 AND 5 AND b > 0)"), "a >= 1; a <= 5; b > 0");
    EXPECT_EQ(Facts("CHECK (((a) > (0)))"), "a > 0");
}

TEST(CheckExpression, ReadsChoicesAndLengths) {
    EXPECT_EQ(Facts("CHECK (a IN ('x', 'it''s', 'y)'))"), "a in x it's y)");
    EXPECT_EQ(Facts("CHECK (a = 'x' OR a = 'y' OR a IS NULL)"), "a in x y");
    EXPECT_EQ(Facts("CHECK (length(a) <= 20 AND length(b) = 2 AND length(c) < 5 AND length(d) > 1)"),
              "a length 20; b length 2; c length 4");
    EXPECT_EQ(Facts("CHECK (a IS NULL OR a > 3)"), "a > 3");
}

TEST(CheckExpression, ReadsTheServersSpelling) {
    EXPECT_EQ(Facts("CHECK (((n >= 1) AND (n <= 500000)))"), "n >= 1; n <= 500000");
    EXPECT_EQ(Facts("CHECK ((day >= '2000-01-01'::date))"), "day >= 2000-01-01");
    EXPECT_EQ(
        Facts(
            "CHECK (((kind)::text = ANY ((ARRAY['a'::character varying, 'b'::character varying])::text[])))"),
        "kind in a b");
    EXPECT_EQ(Facts("CHECK ((VALUE >= (0)::numeric(10,2)))"), " >= 0");
    EXPECT_EQ(Facts("CHECK ((char_length((name)::text) <= 50))"), "name length 50");
}

TEST(CheckExpression, FindsChecksInAWholeTableAndSkipsCommentsAndTexts) {
    EXPECT_EQ(Facts("CREATE TABLE \"a \"\"b\" ( -- CHECK (x > 1)\n"
                    "  [my col] INT CHECK ([my col] > 1) /* CHECK (x > 2) */,\n"
                    "  \"q\"\"q\" TEXT DEFAULT 'CHECK (x > 3)' CHECK (`q` < 'it''s'),\n"
                    "  m TEXT, CHECK (CAST(m AS NUMERIC) >= 0 AND t.z <= 9))"),
              "my col > 1; q < it's; m >= 0; z <= 9");
}

TEST(CheckExpression, SaysNothingWhereItDoesNotUnderstand) {
    for (const char* check :
         {"CHECK (a > 1 OR b > 1)", "CHECK (NOT a > 1)", "CHECK (a NOT IN (1, 2))",
          "CHECK (a NOT BETWEEN 1 AND 2)", "CHECK (a + 1 > 5)", "CHECK (abs(a) < 5)", "CHECK (a > b)",
          "CHECK (a LIKE 'x%')", "CHECK (a <> 3)", "CHECK (a IN (SELECT 1))",
          "CHECK (CASE WHEN a > 1 THEN 1 END)", "CHECK (a IS NULL OR b > 3)", "CHECK (a > 1", "CHECK (",
          "CHECK (a >)", "CHECK ((a, b) = (1, 2))", "CHECK (a GLOB '*' AND)"}) {
        EXPECT_EQ(Facts(check), "") << check;
    }
    EXPECT_EQ(Facts("CHECK (a > 1 AND (b > 1 OR c > 1))"), "a > 1")
        << "one unknown part leaves the others standing";
}

TEST(CheckExpression, EndsWhateverTheText) {
    const QString deep = u"CHECK " + QString(100'000, u'(') + u"a > 1";
    EXPECT_TRUE(FactsOfChecks(deep).isEmpty());
    EXPECT_TRUE(FactsOfChecks(u"CHECK (1 < " + QStringLiteral("- ").repeated(50'000) + u"a)").isEmpty());
    EXPECT_TRUE(FactsOfChecks(u"CHECK (" + QStringLiteral("NOT ").repeated(50'000) + u"a)").isEmpty());
    for (const char* text : {"'", "\"", "[", "`", "/*", "--", "1e", "1e+", "\\", "\xff\xfe"}) {
        EXPECT_EQ(TokenizeSql(QString::fromUtf8(text)).last().Kind, SqlToken::Type::End);
    }
}

} // namespace
} // namespace quillgrid::editor
