#include "DictionaryChecks.h"
#include "TestDatabase.h"
#include "apps/record_editor/RecordForm.h"

#include "quillgrid/hosts/qt/QuillgridWidget.h"

#include <gtest/gtest.h>

namespace quillgrid::editor {
namespace {

struct Form {
    explicit Form(const QString& statements, const char* locale = "en-US",
                  const QString& language = QStringLiteral("en"))
        : File(statements), Connection(File.Open()) {
        auto form = RecordForm::Open(Grid, *Connection, Table(*Connection, QStringLiteral("t")),
                                     {BuiltInLocale(locale), qglgEnglish, language});
        EXPECT_TRUE(form) << form.Message().toStdString();
        Shown = std::move(*form);
    }
    Cell& At(const char* column) { return *Grid.Cells().Item(column); }
    FieldBinding& Binding(const char* column) { return *Shown->BindingOf(At(column)); }
    std::string Save() { return Shown->Save().Message().toStdString(); }

    TestDatabase File;
    std::unique_ptr<Database> Connection;
    quillgrid::qt::QuillgridWidget Widget;
    Quillgrid& Grid = Widget.grid();
    std::unique_ptr<RecordForm> Shown;
};

/// A table of `columns` with one record, and a dictionary of texts about it.
QString Described(const char* columns, const char* record, const char* properties, const char* rows) {
    return QStringLiteral("CREATE TABLE t (%1);\nINSERT INTO t VALUES (%2);\n"
                          "CREATE TABLE data_dictionary (table_name TEXT, column_name TEXT, %3);\n"
                          "INSERT INTO data_dictionary VALUES %4;\n")
        .arg(QLatin1String(columns), QString::fromUtf8(record), QLatin1String(properties),
             QString::fromUtf8(rows));
}

TEST(DataDictionary, EveryPropertyOfACellCanBeAColumn) {
    Form form(DictionaryStatements());
    form.Shown->ShowNew();
    ExpectAsTheDictionarySays(form.Grid);
}

TEST(DataDictionary, DescribesHiddenAndForeignRowsWithoutTakingFocusOrRaisingEvents) {
    Form form(Described("id INTEGER PRIMARY KEY, a TEXT, b TEXT", "1, 'x', 'y'", "Visible TEXT, Caption TEXT",
                        "('t', 'a', '0', 'Hidden'), ('t', 'b', NULL, 'Seen')"));
    ASSERT_TRUE(form.Shown->Show(0));
    int events = 0;
    const auto count = [&](auto&&...) { ++events; };
    QObject::connect(&form.Widget, &quillgrid::qt::QuillgridWidget::selChange, count);
    QObject::connect(&form.Widget, &quillgrid::qt::QuillgridWidget::change, count);
    QObject::connect(&form.Widget, &quillgrid::qt::QuillgridWidget::validateCell, count);
    Cell* const current = form.Grid.Cell();
    ASSERT_TRUE(form.Shown->Show(0));
    EXPECT_EQ(events, 0);
    EXPECT_EQ(form.Grid.Cell(), current);
    EXPECT_EQ(form.At("a").Caption() + form.At("b").Caption(), "HiddenSeen");
    EXPECT_EQ(form.At("a").Text() + form.At("b").Text(), "xy");
    EXPECT_EQ(form.Grid.RowCount(), 2);
    EXPECT_EQ(form.Widget.focusWidget(), nullptr);
}

TEST(DataDictionary, TheDatabaseHasTheLastWord) {
    Form form(Described("id INTEGER PRIMARY KEY, n INTEGER NOT NULL CHECK (n BETWEEN 1 AND 9), "
                        "d DATE, s VARCHAR(5), twice AS (n * 2), f TEXT REFERENCES t (s)",
                        "1, 5, '2026-11-03', 'abc', NULL",
                        "AllowEmpty, Min, Max, MaxLength, Locked, Template, ValidationRule, Style, Value",
                        "('t', 'n', 1, -5, 50, NULL, NULL, 4, 5, 2, 7), ('t', 'd', NULL, '2000-02-30', "
                        "'2030-01-01', NULL, NULL, 1, 1, 1, 'today'), "
                        "('t', 's', NULL, NULL, NULL, 99, NULL, 7, 2, 0, 'zzz'), "
                        "('t', 'twice', 1, NULL, NULL, NULL, 0, NULL, NULL, NULL, NULL)")
                  .replace(QStringLiteral("INSERT INTO t VALUES"),
                           QStringLiteral("INSERT INTO t (id, n, d, s, f) VALUES")));
    ASSERT_TRUE(form.Shown->Show(0));
    EXPECT_EQ(form.At("n").Template(), qgctInteger);
    EXPECT_EQ(form.At("n").ValidationRule(), qgvrInteger);
    EXPECT_EQ(form.At("n").Style(), qgcsText);
    EXPECT_EQ(form.At("n").Min().ToPlainText() + form.At("n").Max().ToPlainText(), "19");
    EXPECT_FALSE(form.At("n").AllowEmpty());
    EXPECT_EQ(form.At("n").Text(), "5");
    EXPECT_EQ(form.At("d").Template(), qgctDate);
    EXPECT_TRUE(form.At("d").Min().IsNull()) << "no such day";
    EXPECT_EQ(form.At("d").Max().ToPlainText(), "2030-01-01");
    EXPECT_EQ(form.At("s").Template(), qgctNone);
    EXPECT_EQ(form.At("s").MaxLength(), 5);
    EXPECT_EQ(form.At("s").Text(), "abc");
    EXPECT_TRUE(form.At("twice").Locked());
    EXPECT_FALSE(form.Shown->IsModified());
}

TEST(DataDictionary, TextsThatFitNoPropertyArePassedOver) {
    const char* const locales[] = {"en-US", "de-DE"};
    for (const char* locale : locales) {
        Form form(
            Described("id INTEGER PRIMARY KEY, money CURRENCY_TEXT, f INTEGER, e TEXT", "1, '2.5', 3, 'x'",
                      "Alignment TEXT, Min TEXT, Max TEXT, FillColor TEXT, Visible TEXT, Template TEXT, "
                      "Caption TEXT",
                      "('t', 'money', 'right', 'little', '10.50', '#FF0000', 'perhaps', 'money', '1234567'),"
                      " ('t', 'f', '', '', '', '', '', '', ''), ('t', 'e', '99999999999', "
                      "'1e999', '-', '4294967295', '0', '99', '9,5'), ('nowhere', 'e', '1', '1', '1', '1', "
                      "'1', '1', '1')"),
            locale);
        ASSERT_TRUE(form.Shown->Show(0));
        const Cell& money = form.At("money");
        EXPECT_EQ(money.Alignment(), qgalRightJustify);
        EXPECT_EQ(money.Max(), Variant(*Currency::FromDecimal("10.5"))) << "as SQL writes numbers";
        EXPECT_EQ(money.Caption(), "1234567");
        EXPECT_TRUE(money.Visible());
        EXPECT_EQ(money.Template(), qgctCurrency);
        EXPECT_EQ(form.At("f").Caption(), "");
        EXPECT_EQ(form.At("f").Text(), "3");
        EXPECT_EQ(form.At("e").FillColor(), Colour{4294967295});
        EXPECT_EQ(form.At("e").Caption(), "9,5");
        EXPECT_FALSE(form.At("e").Visible());
    }
}

TEST(DataDictionary, SpeaksTheReadersLanguage) {
    const QString statements =
        Described("id INTEGER PRIMARY KEY, a TEXT, b TEXT", "1, 'x', 'y'",
                  "Caption TEXT, Caption_de TEXT, ToolTipText_DE TEXT, Unit TEXT, unit_de TEXT",
                  "('T2', 'a', '', '', '', '', ''), ('t', 'A', 'Born', 'Geboren', 'Tag', NULL, 'Stück'), "
                  "('t', 'b', 'Size', NULL, NULL, 'feet', NULL)");
    Form german(statements, "de-DE", QStringLiteral("de"));
    EXPECT_EQ(german.At("a").Caption() + german.At("a").TooltipText() + german.At("a").Unit(),
              "GeborenTagStück");
    EXPECT_EQ(german.At("b").Caption() + german.At("b").Unit(), "Sizefeet");
    Form english(statements);
    EXPECT_EQ(english.At("a").Caption() + english.At("a").TooltipText() + english.At("a").Unit(), "Born");
}

TEST(DataDictionary, TemplatesDressValuesUpAndReadThemBack) {
    Form form(
        Described("id INTEGER PRIMARY KEY, born TEXT, share INTEGER, yes INTEGER, colour INTEGER, word TEXT",
                  "1, '1999-12-31', 40, NULL, 255, 'secret'", "Template INTEGER, Max",
                  "('t', 'born', 4, '2020-01-01'), ('t', 'share', 21, 80), ('t', 'yes', 7, NULL), "
                  "('t', 'colour', 8, NULL), ('t', 'word', 6, NULL)"));
    ASSERT_TRUE(form.Shown->Show(0));
    EXPECT_EQ(form.At("born").Text(), "12/31/1999");
    EXPECT_EQ(form.At("share").Text(), "40.00 %");
    EXPECT_TRUE(form.At("share").ShowPercent());
    EXPECT_EQ(form.At("yes").Text(), "") << "no answer is not no";
    EXPECT_EQ(form.At("colour").Text(), "Red");
    form.At("born").SetValue(Variant("1/2/2003"));
    form.At("share").SetValue(Variant("41"));
    form.At("yes").SetValue(Variant("1"));
    form.At("colour").SetListIndex(1);
    EXPECT_EQ(form.Save(), "");
    EXPECT_EQ(
        form.File.Ask(QStringLiteral("SELECT born || share || typeof(share) || yes || typeof(yes) || colour "
                                     "FROM t")),
        QStringLiteral("2003-01-0241integer1integer0"));
    EXPECT_TRUE(form.Binding("share").Fits() && form.Binding("yes").Fits() && form.Binding("colour").Fits());
    form.Binding("yes").SetNull();
    EXPECT_EQ(form.Save(), "");
    EXPECT_EQ(form.File.Ask(QStringLiteral("SELECT yes FROM t")), QStringLiteral("NULL"));
    form.File.Execute(QStringLiteral("UPDATE t SET word = 'two' || char(10) || 'lines'"));
    ASSERT_TRUE(form.Shown->Revert());
    EXPECT_EQ(form.At("word").Template(), qgctPassword) << "unfit secrets are masked too";
}

TEST(DataDictionary, ListsStayListsAndAreNotMadeOutOfNothing) {
    Form form(Described("id INTEGER PRIMARY KEY, n INTEGER CHECK (n IN (1, 2)), s TEXT", "1, 2, 'free'",
                        "Template INTEGER, Alignment INTEGER", "('t', 'n', 0, 2), ('t', 's', 16, 1)"));
    ASSERT_TRUE(form.Shown->Show(0));
    EXPECT_EQ(form.At("n").ListIndex(), 2);
    EXPECT_EQ(form.At("n").Alignment(), qgalCenter);
    EXPECT_EQ(form.At("n").ValidationRule(), qgvrNone) << "entries are not checked as typed numbers are";
    EXPECT_EQ(form.At("s").Style(), qgcsText);
    EXPECT_TRUE(form.Binding("s").Fits());
}

TEST(DataDictionary, DefaultsOfNewRecordsAreWritten) {
    Form form(
        Described("id INTEGER PRIMARY KEY, a TEXT, n INTEGER DEFAULT 7, m INTEGER DEFAULT 8, b BOOLEAN, "
                  "k TEXT CHECK (k IN ('x', 'y')), bad INTEGER DEFAULT 3, l TEXT",
                  "1, 'x', 1, 1, 1, 'x', 1, ''", "'Default', Locked",
                  "('t', 'id', 99, NULL), ('t', 'a', 'new', NULL), ('t', 'n', 5, NULL), ('t', 'b', 1, NULL), "
                  "('t', 'k', 'z', NULL), ('t', 'bad', 'three', NULL), ('t', 'l', 'kept', 1)"));
    form.Shown->ShowNew();
    EXPECT_EQ(form.At("id").Text(), "") << "the database numbers records";
    EXPECT_EQ(form.At("a").Text() + form.At("n").Text() + form.At("m").Text() + form.At("b").Text() +
                  form.At("k").Text() + form.At("bad").Text() + form.At("l").Text(),
              "new58yes3kept");
    EXPECT_FALSE(form.Shown->IsModified());
    form.At("m").SetValue(Variant::Null());
    EXPECT_EQ(form.Save(), "");
    EXPECT_EQ(
        form.File.Ask(QStringLiteral("SELECT id || a || n || quote(m) || b || quote(k) || bad || l FROM t "
                                     "WHERE id > 1")),
        QStringLiteral("2new5NULL1NULL3kept"));
}

TEST(DataDictionary, AccessAlsoHoldsForValuesThatDoNotFit) {
    Form form(
        Described("id INTEGER PRIMARY KEY, n INTEGER, e INTEGER", "1, 'abc', 'def'",
                  "Caption TEXT, DataVisible TEXT, Enabled TEXT, Max TEXT, Alignment TEXT, \"Group\" TEXT",
                  "('t', 'n', 'Number', '0', NULL, '5', '2', 'G'), ('t', 'e', NULL, NULL, '0', NULL, NULL, "
                  "NULL)"));
    ASSERT_TRUE(form.Shown->Show(0));
    EXPECT_EQ(form.At("n").Caption(), "Number ⚠");
    EXPECT_FALSE(form.At("n").DataVisible());
    EXPECT_EQ(form.At("n").Text(), "abc");
    EXPECT_EQ(form.At("n").Group(), "G");
    form.Binding("e").SetNull();
    EXPECT_FALSE(form.Shown->IsModified()) << "a cell that the user may not change cannot be cleared";
}

TEST(DataDictionary, GroupsGatherRowsAndStayFoldedFromRecordToRecord) {
    Form form(Described("id INTEGER PRIMARY KEY, a TEXT, b TEXT, c TEXT, g TEXT", "1, 'a', 'b', 'c', 'g'",
                        "\"Group\" TEXT", "('t', 'a', 'G'), ('t', 'c', 'g')"));
    form.File.Execute(QStringLiteral("INSERT INTO t VALUES (2, 'A', 'B', 'C', 'G')"));
    ASSERT_TRUE(form.Shown->Revert());
    std::string order;
    for (std::int32_t row = 1; row <= form.Grid.RowCount(); ++row)
        order += form.Grid.RowCell(row)->Caption();
    EXPECT_EQ(order, "IdBGGAC");
    form.Grid.Groups().Item("G")->SetExpanded(false);
    form.Grid.Cells().Item("a")->SetGroup("");
    form.Grid.Cells().Item("a")->SetGroup("G");
    form.Grid.Refresh();
    EXPECT_EQ(form.Grid.RowCount(), 4);
    ASSERT_TRUE(form.Shown->Show(0));
    EXPECT_EQ(form.Grid.RowCount(), 4);
    Form plain(QStringLiteral("CREATE TABLE t (id INTEGER PRIMARY KEY, \"\" TEXT, x TEXT);\n"
                              "INSERT INTO t VALUES (1, 'nameless', 'named');\n"));
    ASSERT_TRUE(plain.Shown->Show(0));
    EXPECT_FALSE(plain.Grid.Grouped());
    EXPECT_EQ(plain.Grid.RowCell(2)->Text() + plain.Grid.RowCell(3)->Text(), "namelessnamed");
}

TEST(DataDictionary, ABrokenDictionaryIsWorthNoMoreThanNone) {
    Form form(
        QStringLiteral("CREATE TABLE t (id INTEGER PRIMARY KEY, a TEXT);\nINSERT INTO t VALUES (1, 'x');\n"
                       "CREATE TABLE data_dictionary (something);\n"
                       "INSERT INTO data_dictionary VALUES ('t');\n"));
    ASSERT_TRUE(form.Shown->Show(0));
    EXPECT_EQ(form.At("a").Text(), "x");
}

} // namespace
} // namespace quillgrid::editor
