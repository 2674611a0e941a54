#include "apps/record_editor/ColumnRules.h"

#include "TestDatabase.h"
#include "apps/record_editor/RuleReader.h"

#include <gtest/gtest.h>

namespace quillgrid::editor {
namespace {

struct Rules {
    explicit Rules(const QString& statements, const QString& language = QStringLiteral("en"))
        : File(statements), Opened(File.Open()) {
        const auto read = ReadRules(*Opened, Schema(*Opened, QStringLiteral("t")), qglgEnglish, language);
        EXPECT_TRUE(read) << read.Message().toStdString();
        if (read) List = *read;
    }
    ColumnRule Of(const char* column) const {
        for (const ColumnRule& rule : List) {
            if (rule.Name == QLatin1String(column)) return rule;
        }
        ADD_FAILURE() << "no column " << column;
        return {};
    }

    TestDatabase File;
    std::unique_ptr<Database> Opened;
    QList<ColumnRule> List;
};

std::string Min(const ColumnRule& rule) {
    return rule.Min.ToPlainText();
}
std::string Max(const ColumnRule& rule) {
    return rule.Max.ToPlainText();
}

TEST(ColumnRules, DeclaredTypeChoosesTheTemplate) {
    struct Case {
        const char* Type;
        CellTemplateConstants Template;
        ValueKind Kind;
    };
    const Case cases[] = {
        {"INTEGER", qgctInteger, ValueKind::Integer},
        {"unsigned big int", qgctInteger, ValueKind::Integer},
        {"DECIMAL(10,2)", qgctCurrency, ValueKind::Decimal},
        {"NUMERIC(5,0)", qgctInteger, ValueKind::Integer},
        {"NUMERIC(12,6)", qgctNumber, ValueKind::Real},
        {"CURRENCY_TEXT", qgctCurrency, ValueKind::Decimal},
        {"money", qgctCurrency, ValueKind::Decimal},
        {"Euro_Text", qgctEuro, ValueKind::Decimal},
        {"DATE", qgctDate, ValueKind::Date},
        {"time without time zone", qgctTime, ValueKind::Time},
        {"timestamp without time zone", qgctNone, ValueKind::Unreadable},
        {"DATETIME", qgctNone, ValueKind::Unreadable},
        {"double precision", qgctNumber, ValueKind::Real},
        {"PERCENT", qgctPercent, ValueKind::Real},
        {"PHONE_TEXT", qgctPhone, ValueKind::Text},
        {"VARCHAR(20)", qgctNone, ValueKind::Text},
        {"integer[]", qgctNone, ValueKind::Text},
        {"POINT", qgctNone, ValueKind::Text},
        {"", qgctNone, ValueKind::Text},
        {"BLOB", qgctNone, ValueKind::Unreadable},
    };
    for (const Case& test : cases) {
        TableSchema schema;
        Column column;
        column.Name = QStringLiteral("c");
        column.Types = {QLatin1String(test.Type)};
        const ColumnRule rule = RuleForColumn(column, schema, qglgEnglish);
        EXPECT_EQ(rule.Template, test.Template) << test.Type;
        EXPECT_EQ(rule.Kind, test.Kind) << test.Type;
        EXPECT_EQ(rule.Locked, test.Kind == ValueKind::Unreadable) << test.Type;
    }
}

TEST(ColumnRules, ChecksAndNotNullBecomeLimits) {
    const Rules rules(QStringLiteral(
        "CREATE TABLE t (id INTEGER PRIMARY KEY, a INTEGER NOT NULL CHECK (a > 0 AND a < 10),"
        " b CURRENCY_TEXT CHECK (CAST(b AS NUMERIC) BETWEEN -1.5 AND 1e6), c DATE CHECK (c > '2000-12-31'),"
        " d TIME CHECK (d <= '18:00'), e VARCHAR(30) CHECK (length(e) <= 20), f INTEGER, g REAL CHECK (g > "
        "0),"
        " h INTEGER CHECK (h > 2147483647 AND h < -99999999999), i AS (a + 1), k PERCENT);\n"));
    EXPECT_EQ(Min(rules.Of("a")), "1");
    EXPECT_EQ(Max(rules.Of("a")), "9");
    EXPECT_FALSE(rules.Of("a").AllowEmpty);
    EXPECT_EQ(Min(rules.Of("b")), "-1.5");
    EXPECT_EQ(Max(rules.Of("b")), "1000000");
    EXPECT_TRUE(rules.Of("b").AllowEmpty);
    EXPECT_EQ(Min(rules.Of("c")), "2001-01-01");
    EXPECT_EQ(Max(rules.Of("d")), "18:00:00");
    EXPECT_EQ(rules.Of("e").MaxLength, 20);
    EXPECT_EQ(Min(rules.Of("f")), "-2147483648") << "a minus can be typed where nothing forbids it";
    EXPECT_NE(Min(rules.Of("g")).front(), '0') << "an excluded bound of a real number has no neighbour";
    EXPECT_EQ(Max(rules.Of("h")), "") << "limits beyond the cell's range are the database's affair";
    EXPECT_TRUE(rules.Of("i").Locked);
    EXPECT_TRUE(rules.Of("id").Locked);
    EXPECT_TRUE(rules.Of("id").AllowEmpty);
    EXPECT_TRUE(rules.Of("k").Min.IsNull()) << "the template's own limits stay";
}

TEST(ColumnRules, ChoicesComeFromChecksAndReferencedTables) {
    const Rules rules(QStringLiteral(
        "CREATE TABLE kinds (key INTEGER PRIMARY KEY, rank INTEGER, label TEXT);\n"
        "INSERT INTO kinds VALUES (2, 1, 'zeta'), (1, 2, 'Alpha'), (3, 3, NULL);\n"
        "CREATE TABLE t (id TEXT PRIMARY KEY, a TEXT CHECK (a IN ('x', 'y')), b INTEGER REFERENCES kinds,"
        " c BOOLEAN NOT NULL CHECK (c IN (0, 1)), d BOOLEAN, e INTEGER REFERENCES nowhere (id));\n"));
    EXPECT_EQ(rules.Of("a").Choices.size(), 2);
    const auto entries = rules.Of("b").Choices;
    ASSERT_EQ(entries.size(), 3);
    EXPECT_EQ(entries[0].Text, QStringLiteral("3"));
    EXPECT_EQ(entries[1].Text, QStringLiteral("Alpha (1)"));
    EXPECT_EQ(entries[2].Value.Raw, QVariant(qlonglong(2)));
    EXPECT_TRUE(rules.Of("c").Choices.isEmpty());
    EXPECT_EQ(rules.Of("c").Template, qgctboolean);
    EXPECT_EQ(rules.Of("d").Choices.size(), 2) << "a missing answer must not look like no";
    EXPECT_TRUE(rules.Of("e").Choices.isEmpty());
}

TEST(ColumnRules, ConstantDefaultsAreShownOthersLeftToTheDatabase) {
    const Rules rules(
        QStringLiteral("CREATE TABLE t (a INTEGER DEFAULT -5, b TEXT DEFAULT 'it''s', c BOOLEAN DEFAULT TRUE,"
                       " d DATE DEFAULT CURRENT_DATE, e INTEGER DEFAULT (1 + 1), f INTEGER DEFAULT (7),"
                       " g TEXT DEFAULT NULL, h TEXT DEFAULT ('a' || 'b'));\n"));
    EXPECT_EQ(rules.Of("a").Default.Text, QStringLiteral("-5"));
    EXPECT_EQ(rules.Of("b").Default.Text, QStringLiteral("it's"));
    EXPECT_EQ(rules.Of("c").Default.Text, QStringLiteral("true"));
    EXPECT_EQ(rules.Of("f").Default.Text, QStringLiteral("7"));
    for (const char* column : {"d", "e", "g", "h"})
        EXPECT_TRUE(rules.Of(column).Default.IsNull()) << column;
}

TEST(ColumnRules, CaptionsReadLikeWords) {
    EXPECT_EQ(CaptionFromName(QStringLiteral("founded_on")), QStringLiteral("Founded on"));
    EXPECT_EQ(CaptionFromName(QStringLiteral("countryId")), QStringLiteral("Country id"));
    EXPECT_EQ(CaptionFromName(QStringLiteral("__R&D  cost")), QStringLiteral("RD cost"));
    EXPECT_EQ(CaptionFromName(QString()), QString());
}

} // namespace
} // namespace quillgrid::editor
