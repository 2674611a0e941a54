#include "DictionaryChecks.h"
#include "PostgresServer.h"
#include "TestDatabase.h"
#include "apps/record_editor/RecordForm.h"

#include "quillgrid/hosts/qt/QuillgridWidget.h"

#include <gtest/gtest.h>

namespace quillgrid::editor {
namespace {

class Postgres : public ::testing::Test {
protected:
    static void SetUpTestSuite() { server_ = std::make_unique<PostgresServer>(); }
    static void TearDownTestSuite() { server_.reset(); }

    void SetUp() override {
        if (!server_->IsRunning()) GTEST_SKIP() << server_->Problem().toStdString();
        database_ = Connect();
        ASSERT_TRUE(database_);
        Execute(QStringLiteral("DROP SCHEMA public CASCADE"));
        Execute(QStringLiteral("CREATE SCHEMA public"));
    }

    static std::unique_ptr<Database> Connect() {
        auto opened = Database::Open(*DatabaseAddress::Parse(server_->Address()));
        EXPECT_TRUE(opened) << opened.Message().toStdString();
        return opened ? std::move(*opened) : nullptr;
    }
    void Execute(const QString& sql) {
        const auto done = database_->Run(sql);
        EXPECT_TRUE(done) << done.Message().toStdString();
    }
    std::string Ask(const QString& sql) {
        auto rows = database_->Run(sql);
        EXPECT_TRUE(rows) << rows.Message().toStdString();
        return rows && rows->next() ? rows->value(0).toString().toStdString() : "(no row)";
    }
    std::unique_ptr<RecordForm> Open(const QString& table) {
        auto form = RecordForm::Open(widget_.grid(), *database_, Table(*database_, table),
                                     {BuiltInLocale("en-US"), qglgEnglish, QStringLiteral("en")});
        EXPECT_TRUE(form) << form.Message().toStdString();
        if (!form) return nullptr;
        if ((*form)->Count() > 0) {
            EXPECT_TRUE((*form)->Show(0));
        }
        return std::move(*form);
    }
    Cell& At(const char* column) { return *widget_.grid().Cells().Item(column); }

    std::unique_ptr<Database> database_;
    quillgrid::qt::QuillgridWidget widget_;

private:
    static std::unique_ptr<PostgresServer> server_;
};

std::unique_ptr<PostgresServer> Postgres::server_;

TEST_F(Postgres, DeclarationsBecomeRules) {
    Execute(QStringLiteral("CREATE DOMAIN email AS varchar(80) CHECK (VALUE LIKE '%@%')"));
    Execute(QStringLiteral("CREATE DOMAIN share AS numeric(5,2) CHECK (VALUE >= 10 AND VALUE <= 90)"));
    Execute(QStringLiteral("CREATE TYPE mood AS ENUM ('glad', 'sad')"));
    Execute(QStringLiteral("CREATE TABLE lands (code char(2) PRIMARY KEY, rank int, name text)"));
    Execute(QStringLiteral("INSERT INTO lands VALUES ('DE', 1, 'Germany'), ('FR', 2, 'France')"));
    Execute(QStringLiteral(
        "CREATE TABLE t (id serial PRIMARY KEY, mail email, part share, feeling mood, land char(2) "
        "REFERENCES lands,"
        " n integer NOT NULL CHECK (n BETWEEN 1 AND 99), day date CHECK (day >= '2000-01-01'),"
        " kind text CHECK (kind IN ('a', 'b')), stamp timestamptz DEFAULT now(), yes boolean NOT NULL,"
        " twice int GENERATED ALWAYS AS (n * 2) STORED, raw bytea)"));
    const auto form = Open(QStringLiteral("t"));
    EXPECT_EQ(At("mail").Template(), qgctEmail);
    EXPECT_EQ(At("mail").MaxLength(), 80);
    EXPECT_EQ(At("part").Min().ToPlainText(), "10");
    EXPECT_EQ(At("part").Max().ToPlainText(), "90");
    EXPECT_EQ(At("feeling").Listitems().Count(), 3) << "two moods and none";
    EXPECT_EQ(At("land").Listitems().Item(1)->Text(), "France (FR)");
    EXPECT_EQ(At("n").Min().ToPlainText(), "1");
    EXPECT_EQ(At("n").Max().ToPlainText(), "99");
    EXPECT_FALSE(At("n").AllowEmpty());
    EXPECT_EQ(At("day").Min().ToPlainText(), "2000-01-01");
    EXPECT_EQ(At("kind").Listitems().Count(), 3);
    EXPECT_EQ(At("yes").Template(), qgctboolean);
    for (const char* column : {"id", "stamp", "twice", "raw"})
        EXPECT_TRUE(At(column).Locked()) << column;
}

TEST_F(Postgres, RecordsAreReadAndWrittenWithoutLoss) {
    Execute(QStringLiteral(
        "CREATE TABLE t (id int PRIMARY KEY, amount numeric, big bigint, f float8, day date, at time,"
        " yes boolean, no boolean NOT NULL, word text, cash money, far date, many int[])"));
    Execute(QStringLiteral(
        "INSERT INTO t VALUES (1, 12345678901234.5678, 9007199254740993, 0.1, '2026-11-03', '08:05', true,"
        " false, 'it''s', '$1.50', 'infinity', '{1,2}')"));
    const auto form = Open(QStringLiteral("t"));
    EXPECT_EQ(At("amount").Value().ToPlainText(), "12345678901234.5678");
    EXPECT_EQ(At("big").Text(), "9007199254740993");
    EXPECT_EQ(At("far").Text(), "infinity");
    EXPECT_EQ(At("many").Text(), "{1,2}");
    EXPECT_EQ(At("yes").Text(), "yes");
    At("amount").SetValue(Variant("0.0001"));
    At("big").SetValue(Variant("9007199254740995"));
    At("f").SetValue(Variant(2.5));
    At("day").SetValue(Variant("12/24/2026"));
    At("at").SetValue(Variant("9:30"));
    At("yes").SetValue(Variant("0"));
    At("no").SetValue(Variant(true));
    At("word").SetValue(Variant("o'neil \\ ?"));
    At("cash").SetValue(Variant("2.25"));
    EXPECT_EQ(form->Save().Message().toStdString(), "");
    EXPECT_EQ(Ask(QStringLiteral("SELECT concat_ws('|', amount, big, f, day, at, yes, no, word, "
                                 "cash::numeric, far, many) FROM t")),
              "0.0001|9007199254740995|2.5|2026-12-24|09:30:00|f|t|o'neil \\ ?|2.25|infinity|{1,2}");
    EXPECT_FALSE(form->IsModified());
}

TEST_F(Postgres, OnlyChangedColumnsAreWrittenAndRefusalsKeepTheInput) {
    Execute(QStringLiteral("CREATE TABLE t (a text, b int CHECK (b <> 13), c text, PRIMARY KEY (a, b))"));
    Execute(QStringLiteral("INSERT INTO t VALUES ('x', 1, 'one'), ('x', 2, 'two')"));
    Execute(QStringLiteral("CREATE FUNCTION refuse() RETURNS trigger LANGUAGE plpgsql AS $$ BEGIN RAISE 'a "
                           "was written'; END $$"));
    Execute(
        QStringLiteral("CREATE TRIGGER r BEFORE UPDATE OF a ON t FOR EACH ROW EXECUTE FUNCTION refuse()"));
    const auto form = Open(QStringLiteral("t"));
    At("c").SetValue(Variant("uno"));
    EXPECT_EQ(form->Save().Message().toStdString(), "");
    At("b").SetValue(Variant("13"));
    const std::string refused = form->Save().Message().toStdString();
    EXPECT_NE(refused.find("check"), std::string::npos) << refused;
    EXPECT_EQ(At("b").Value().ToPlainText(), "13");
    At("b").SetValue(Variant("14"));
    EXPECT_EQ(form->Save().Message().toStdString(), "");
    EXPECT_EQ(Ask(QStringLiteral("SELECT string_agg(a || b || c, ',' ORDER BY b) FROM t")), "x2two,x14uno");
    const auto other = Connect();
    ASSERT_TRUE(other->Run(QStringLiteral("DELETE FROM t WHERE b = 14")));
    At("c").SetValue(Variant("late"));
    EXPECT_NE(form->Save().Message().toStdString().find("deleted"), std::string::npos);
}

TEST_F(Postgres, NewRecordsAndHostileNames) {
    const QString name = SqlDialect::Quote(QStringLiteral("t\"; DROP TABLE x; ?:a [1] %1"));
    Execute(u"CREATE TABLE " + name +
            u" (\"the id\" int GENERATED ALWAYS AS IDENTITY PRIMARY KEY, \"c'?\"\"\" text,"
            " d int DEFAULT 4, e boolean)");
    const auto form = Open(QStringLiteral("t\"; DROP TABLE x; ?:a [1] %1"));
    form->ShowNew();
    EXPECT_EQ(At("d").Text(), "4");
    At("c'?\"").SetValue(Variant("v'"));
    EXPECT_EQ(form->Save().Message().toStdString(), "");
    EXPECT_EQ(At("the id").Text(), "1");
    EXPECT_EQ(Ask(u"SELECT concat_ws('|', \"c'?\"\"\", d, coalesce(e::text, 'null')) FROM " + name),
              "v'|4|null");
}

TEST_F(Postgres, DataDictionaryConfiguresTheForm) {
    for (const QString& statement : DictionaryStatements().split(QStringLiteral(";\n"), Qt::SkipEmptyParts))
        Execute(statement);
    const auto form = Open(QStringLiteral("t"));
    EXPECT_EQ(At("level").Text(), "40.0 l");
    form->ShowNew();
    ExpectAsTheDictionarySays(widget_.grid());
}

TEST_F(Postgres, MissingDatabaseIsAClearMessage) {
    auto address =
        *DatabaseAddress::Parse(u"postgresql://tester@localhost/nothing?host=" + QStringLiteral("/nowhere"));
    const auto opened = Database::Open(address);
    ASSERT_FALSE(opened);
    EXPECT_TRUE(opened.Message().contains(QStringLiteral("nothing on /nowhere")))
        << opened.Message().toStdString();
}

} // namespace
} // namespace quillgrid::editor
