#include "apps/record_editor/RecordForm.h"

#include "TestDatabase.h"

#include "quillgrid/hosts/qt/QuillgridWidget.h"

#include <gtest/gtest.h>

namespace quillgrid::editor {
namespace {

/// A table "t" in a form, first record shown.
struct Form {
    explicit Form(const QString& statements, const char* locale = "en-US")
        : File(statements), Connection(File.Open()) {
        auto form = RecordForm::Open(Widget.grid(), *Connection, Table(*Connection, QStringLiteral("t")),
                                     {BuiltInLocale(locale), qglgEnglish, QStringLiteral("en")});
        EXPECT_TRUE(form) << form.Message().toStdString();
        Shown = std::move(*form);
        if (Shown->Count() > 0) {
            EXPECT_TRUE(Shown->Show(0));
        }
    }
    Cell& At(const char* column) { return *Widget.grid().Cells().Item(column); }
    FieldBinding& Binding(const char* column) { return *Shown->BindingOf(At(column)); }
    std::string Type(const char* column, const char* text) {
        At(column).SetValue(Variant(text));
        return At(column).Text();
    }
    std::string Save() { return Shown->Save().Message().toStdString(); }

    TestDatabase File;
    std::unique_ptr<Database> Connection;
    quillgrid::qt::QuillgridWidget Widget;
    std::unique_ptr<RecordForm> Shown;
};

TEST(RecordForm, ShowsValuesInTheUsersWriting) {
    Form form(
        QStringLiteral("CREATE TABLE t (id INTEGER PRIMARY KEY, money CURRENCY_TEXT, day DATE, at TIME, yes "
                       "BOOLEAN NOT NULL,"
                       " kind TEXT CHECK (kind IN ('a', 'b')), word TEXT);\n"
                       "INSERT INTO t VALUES (1, '1234.50', '2026-11-03', '08:05', 1, 'b', 'Ärger');\n"),
        "de-DE");
    EXPECT_EQ(form.At("kind").Text(), "b");
    EXPECT_EQ(form.At("yes").Text(), "yes");
    EXPECT_EQ(form.At("word").Text(), "Ärger");
    EXPECT_TRUE(form.At("money").Value() == Variant(*Currency::FromDecimal("1234.5")));
    for (const char* column : {"money", "day", "at", "yes", "kind", "word"}) {
        EXPECT_TRUE(form.Binding(column).Fits()) << column;
    }
    EXPECT_FALSE(form.Shown->IsModified());
}

TEST(RecordForm, NumbersWithoutAScaleShowTheDecimalsTheyHave) {
    Form form(QStringLiteral("CREATE TABLE t (id INTEGER PRIMARY KEY, whole NUMERIC, half NUMERIC);\n"
                             "INSERT INTO t VALUES (1, 3, 1000.5);\n"));
    EXPECT_EQ(form.At("whole").Text(), "3");
    EXPECT_EQ(form.At("half").Text(), "1000.5");
    EXPECT_TRUE(form.Binding("half").Fits());
    EXPECT_EQ(form.Type("whole", "0.25"), "0.25");
}

TEST(RecordForm, ARecordThatATriggerMovesToAnotherKeyIsSaved) {
    Form form(QStringLiteral(
        "CREATE TABLE t (id INTEGER PRIMARY KEY, s TEXT);\nINSERT INTO t VALUES (1, 'x'), (2, 'y');\n"
        "CREATE TRIGGER mv AFTER UPDATE OF s ON t BEGIN UPDATE t SET id = id + 10 WHERE id = new.id; "
        "END;\n"));
    form.Type("s", "z");
    const auto saved = form.Shown->Save();
    ASSERT_TRUE(saved) << saved.Message().toStdString();
    EXPECT_TRUE(saved->contains(QStringLiteral("another key"))) << saved->toStdString();
    EXPECT_EQ(form.File.Ask(QStringLiteral("SELECT s FROM t WHERE id = 11")), QStringLiteral("z"));
    EXPECT_EQ(form.At("s").Text(), "y") << "the record that stands there now";
    EXPECT_FALSE(form.Shown->IsModified());
}

TEST(RecordForm, NobodyIsToldAPasswordThatSomeoneElseSetMeanwhile) {
    Form form(
        QStringLiteral("CREATE TABLE t (id INTEGER PRIMARY KEY, p TEXT);\nINSERT INTO t VALUES (1, 'old');\n"
                       "CREATE TABLE data_dictionary (table_name TEXT, column_name TEXT, Template INTEGER);\n"
                       "INSERT INTO data_dictionary VALUES ('t', 'p', 6);\n"));
    form.File.Execute(QStringLiteral("UPDATE t SET p = 'theirs'"));
    form.Type("p", "mine");
    const std::string refused = form.Save();
    EXPECT_NE(refused.find("“p”"), std::string::npos) << refused;
    EXPECT_EQ(refused.find("theirs"), std::string::npos) << refused;
}

TEST(RecordForm, SavesOnlyWhatTheUserChanged) {
    Form form(QStringLiteral(
        "CREATE TABLE t (id INTEGER PRIMARY KEY, n INTEGER, s TEXT, money CURRENCY_TEXT);\n"
        "INSERT INTO t VALUES (1, 5, 'x', '10.5');\n"
        "CREATE TRIGGER nos BEFORE UPDATE OF s ON t BEGIN SELECT RAISE(ABORT, 's was written'); END;\n"));
    form.Type("n", "7");
    form.Type("money", "99");
    EXPECT_TRUE(form.Shown->IsModified());
    EXPECT_EQ(form.Save(), "");
    EXPECT_FALSE(form.Shown->IsModified());
    EXPECT_EQ(form.File.Ask(QStringLiteral("SELECT n || typeof(n) || money || typeof(money) FROM t")),
              QStringLiteral("7integer99.00text"));
    form.Type("n", "8");
    form.Type("n", "7");
    EXPECT_FALSE(form.Shown->IsModified()) << "changed and changed back";
}

TEST(RecordForm, UnfitValuesAreShownAsTheyAreAndSurvive) {
    Form form(QStringLiteral("CREATE TABLE kinds (k TEXT PRIMARY KEY, label TEXT);\n"
                             "INSERT INTO kinds VALUES ('a', 'A');\n"
                             "CREATE TABLE t (id INTEGER PRIMARY KEY, n INTEGER, big INTEGER, day DATE, "
                             "money CURRENCY_TEXT, yes BOOLEAN NOT NULL,"
                             " kind TEXT REFERENCES kinds, phone PHONE_TEXT, lines TEXT, bytes TEXT, pct "
                             "PERCENT, small INTEGER CHECK (small < 9),"
                             " sal SALUTATION, colour COLOUR, blanks TEXT, other INTEGER);\n"
                             "PRAGMA ignore_check_constraints = ON;\n"
                             "INSERT INTO t VALUES (1, 'abc', 3000000000, 'tomorrow', '0.12345', 7, 'gone', "
                             "'ask Bob', 'a' || char(10) || 'b',"
                             " x'0102', 150, 20, 9, 12345, '  padded  ', 1);\n"));
    const QString before = form.File.Ask(
        QStringLiteral("SELECT quote(n) || quote(big) || quote(day) || quote(money) || quote(yes) ||"
                       " quote(kind) || quote(phone) || quote(lines) || quote(bytes) || quote(pct) ||"
                       " quote(small) || quote(sal) || quote(colour) || quote(blanks) FROM t"));
    EXPECT_EQ(form.At("n").Text(), "abc");
    EXPECT_EQ(form.At("big").Text(), "3000000000");
    EXPECT_EQ(form.At("day").Text(), "tomorrow");
    EXPECT_EQ(form.At("money").Text(), "0.12345");
    EXPECT_EQ(form.At("kind").Text(), "gone");
    EXPECT_EQ(form.At("small").Text(), "20");
    for (const char* column : {"n", "big", "day", "money", "yes", "kind", "phone", "lines", "bytes", "pct",
                               "small", "sal", "colour"}) {
        EXPECT_FALSE(form.Binding(column).Fits()) << column;
        EXPECT_FALSE(form.Binding(column).Hint().isEmpty()) << column;
        EXPECT_NE(form.At(column).Caption().find("⚠"), std::string::npos) << column;
    }
    EXPECT_TRUE(form.At("lines").Locked()) << "a one-line editor would lose the line break";
    EXPECT_TRUE(form.At("bytes").Locked());
    form.Type("blanks", "padded"); // what a visit of the edit box does
    form.Type("other", "2");
    EXPECT_EQ(form.Save(), "");
    EXPECT_EQ(form.File.Ask(QStringLiteral("SELECT other FROM t")), QStringLiteral("2"));
    EXPECT_EQ(form.File.Ask(QStringLiteral(
                  "SELECT quote(n) || quote(big) || quote(day) || quote(money) || quote(yes) ||"
                  " quote(kind) || quote(phone) || quote(lines) || quote(bytes) || quote(pct) ||"
                  " quote(small) || quote(sal) || quote(colour) || quote(blanks) FROM t")),
              before);
}

TEST(RecordForm, TypedTextInAnUnfitCellIsCheckedByTheColumn) {
    Form form(QStringLiteral("CREATE TABLE t (id INTEGER PRIMARY KEY, n INTEGER, day DATE);\n"
                             "INSERT INTO t VALUES (1, 'abc', 'tomorrow');\n"));
    form.Type("n", "abd");
    EXPECT_NE(form.Save().find("not a whole number"), std::string::npos);
    EXPECT_EQ(form.At("n").Text(), "abd") << "the input stays";
    form.Type("n", "4000000000");
    form.Type("day", "12/24/2026");
    EXPECT_EQ(form.Save(), "");
    EXPECT_EQ(form.File.Ask(QStringLiteral("SELECT n || typeof(n) || day FROM t")),
              QStringLiteral("4000000000integer2026-12-24"));
    EXPECT_TRUE(form.Binding("day").Fits());
    EXPECT_FALSE(form.Binding("n").Fits());
}

TEST(RecordForm, NullAndEmptyTextStayWhatTheyAre) {
    Form form(QStringLiteral(
        "CREATE TABLE t (id INTEGER PRIMARY KEY, a TEXT, b TEXT, c TEXT NOT NULL, d BOOLEAN, e INTEGER);\n"
        "INSERT INTO t VALUES (1, NULL, '', '', NULL, 1);\n"));
    EXPECT_EQ(form.At("d").Text(), "") << "no answer is not no";
    form.Type("e", "2");
    EXPECT_EQ(form.Save(), "");
    EXPECT_EQ(form.File.Ask(QStringLiteral("SELECT quote(a) || quote(b) || quote(c) || quote(d) FROM t")),
              QStringLiteral("NULL''''NULL"));
    form.Binding("b").SetNull();
    form.Binding("c").SetNull();
    form.Type("d", "0");
    EXPECT_EQ(form.Save(), "");
    EXPECT_EQ(form.File.Ask(QStringLiteral("SELECT quote(b) || quote(c) || quote(d) FROM t")),
              QStringLiteral("NULL''0"));
    form.Binding("d").SetNull();
    form.Binding("e").SetNull();
    EXPECT_EQ(form.Save(), "");
    EXPECT_EQ(form.File.Ask(QStringLiteral("SELECT quote(d) || quote(e) FROM t")),
              QStringLiteral("NULLNULL"));
}

TEST(RecordForm, RefusedSaveKeepsTheInput) {
    Form form(QStringLiteral(
        "CREATE TABLE t (id INTEGER PRIMARY KEY, a TEXT UNIQUE, b TEXT CHECK (b <> upper(b)));\n"
        "INSERT INTO t VALUES (1, 'x', 'low'), (2, 'y', 'low');\n"));
    form.Type("a", "y");
    EXPECT_NE(form.Save().find("UNIQUE"), std::string::npos);
    form.Type("b", "UP");
    form.Type("a", "z");
    EXPECT_NE(form.Save().find("CHECK"), std::string::npos);
    EXPECT_EQ(form.At("a").Text(), "z");
    EXPECT_EQ(form.At("b").Text(), "UP");
    EXPECT_TRUE(form.Shown->IsModified());
    EXPECT_EQ(form.File.Ask(QStringLiteral("SELECT a || b FROM t WHERE id = 1")), QStringLiteral("xlow"));
    ASSERT_TRUE(form.Shown->Revert());
    EXPECT_EQ(form.At("a").Text(), "x");
    EXPECT_FALSE(form.Shown->IsModified());
}

TEST(RecordForm, NewRecordsLeaveDefaultsToTheDatabase) {
    Form form(QStringLiteral(
        "CREATE TABLE t (id INTEGER PRIMARY KEY, a TEXT NOT NULL, n INTEGER DEFAULT 7, yes BOOLEAN NOT NULL,"
        " day TEXT DEFAULT (date('2026-01-02')));\n"
        "CREATE TABLE log (x);\n"));
    form.Shown->ShowNew();
    EXPECT_EQ(form.At("n").Text(), "7");
    EXPECT_EQ(form.At("yes").Text(), "no");
    EXPECT_FALSE(form.Shown->IsModified());
    EXPECT_NE(form.Save().find("NOT NULL"), std::string::npos);
    EXPECT_TRUE(form.Shown->IsNew());
    form.Type("a", "first");
    EXPECT_EQ(form.Save(), "");
    EXPECT_FALSE(form.Shown->IsNew());
    EXPECT_EQ(form.Shown->Count(), 1);
    EXPECT_EQ(form.At("day").Text(), "2026-01-02");
    EXPECT_EQ(form.File.Ask(QStringLiteral("SELECT id || a || n || yes || day FROM t")),
              QStringLiteral("1first702026-01-02"));
}

TEST(RecordForm, WithoutAKeyNothingCanBeChanged) {
    Form form(QStringLiteral("CREATE TABLE t (a TEXT);\nINSERT INTO t VALUES ('x');\n"));
    EXPECT_TRUE(form.Shown->Notice().contains(QStringLiteral("primary key")));
    EXPECT_TRUE(form.At("a").Locked());
    form.Type("a", "y");
    EXPECT_FALSE(form.Shown->IsModified());
}

TEST(RecordForm, FollowsAnEditedKey) {
    Form form(QStringLiteral(
        "CREATE TABLE t (k TEXT PRIMARY KEY, v TEXT);\nINSERT INTO t VALUES ('a''b', '1'), ('c', '2');\n"));
    form.Type("k", "z'?");
    EXPECT_EQ(form.Save(), "");
    form.Type("v", "9");
    EXPECT_EQ(form.Save(), "");
    EXPECT_EQ(form.File.Ask(QStringLiteral("SELECT v FROM t WHERE k = 'z''?'")), QStringLiteral("9"));
}

} // namespace
} // namespace quillgrid::editor
