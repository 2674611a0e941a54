#include "apps/record_editor/RecordStore.h"

#include "TestDatabase.h"

#include <gtest/gtest.h>

namespace quillgrid::editor {
namespace {

struct Opened {
    Opened(const TestDatabase& file, const QString& table, qsizetype most = RecordStore::MostRecords)
        : Connection(file.Open()), Store(*Connection, Schema(*Connection, table), most) {
        const auto opened = Store.Open();
        EXPECT_TRUE(opened) << opened.Message().toStdString();
    }
    FieldChange Change(qsizetype position, qsizetype column, const QVariant& value) {
        return {column, value, (*Store.Read(position))[column]};
    }

    std::unique_ptr<Database> Connection;
    RecordStore Store;
};

const QString Simple =
    QStringLiteral("CREATE TABLE t (id INTEGER PRIMARY KEY, a TEXT, b INTEGER CHECK (b < 10));\n"
                   "INSERT INTO t VALUES (3, 'three', 3), (1, 'one', 1), (2, 'two', 2);\n");

TEST(RecordStore, WalksInTheOrderOfTheKey) {
    const TestDatabase file(Simple);
    Opened opened(file, QStringLiteral("t"));
    ASSERT_EQ(opened.Store.Count(), 3);
    EXPECT_EQ((*opened.Store.Read(0))[1].Text, QStringLiteral("one"));
    EXPECT_EQ((*opened.Store.Read(2))[1].Text, QStringLiteral("three"));
    EXPECT_FALSE(opened.Store.Read(3));
    EXPECT_FALSE(opened.Store.Read(-1));
    Opened few(file, QStringLiteral("t"), 2);
    EXPECT_EQ(few.Store.Count(), 2);
    EXPECT_TRUE(few.Store.IsTruncated());
}

TEST(RecordStore, WritesOnlyTheGivenColumns) {
    const TestDatabase file(
        Simple + QStringLiteral(
                     "CREATE TABLE log (x);\n"
                     "CREATE TRIGGER ta AFTER UPDATE OF a ON t BEGIN INSERT INTO log VALUES ('a'); END;\n"
                     "CREATE TRIGGER tb AFTER UPDATE OF b ON t BEGIN INSERT INTO log VALUES ('b'); END;\n"));
    Opened opened(file, QStringLiteral("t"));
    ASSERT_TRUE(opened.Store.Update(1, {opened.Change(1, 1, QStringLiteral("it's \"two\"; DROP TABLE t"))}));
    EXPECT_EQ(file.Ask(QStringLiteral("SELECT group_concat(x) FROM log")), QStringLiteral("a"));
    EXPECT_EQ(file.Ask(QStringLiteral("SELECT a FROM t WHERE id = 2")),
              QStringLiteral("it's \"two\"; DROP TABLE t"));
    ASSERT_TRUE(opened.Store.Update(1, {}));
    EXPECT_EQ(file.Ask(QStringLiteral("SELECT count(*) FROM log")), QStringLiteral("1"));
}

TEST(RecordStore, LeavesEverythingAsItWasWhenRefused) {
    const TestDatabase file(Simple);
    Opened opened(file, QStringLiteral("t"));
    const auto refused =
        opened.Store.Update(0, {opened.Change(0, 1, QStringLiteral("new")), opened.Change(0, 2, 11)});
    ASSERT_FALSE(refused);
    EXPECT_TRUE(refused.Message().contains(QStringLiteral("CHECK"))) << refused.Message().toStdString();
    EXPECT_EQ(file.Ask(QStringLiteral("SELECT a FROM t WHERE id = 1")), QStringLiteral("one"));
    EXPECT_TRUE(opened.Store.Update(0, {opened.Change(0, 2, 9)})) << "the transaction must be over";
}

TEST(RecordStore, NoticesOthers) {
    const TestDatabase file(Simple);
    Opened opened(file, QStringLiteral("t"));
    const FieldChange change = opened.Change(0, 1, QStringLiteral("mine"));
    const FieldChange other = opened.Change(0, 2, 5);
    file.Execute(QStringLiteral("UPDATE t SET a = 'theirs' WHERE id = 1"));
    const auto changed = opened.Store.Update(0, {change});
    ASSERT_FALSE(changed);
    EXPECT_TRUE(changed.Message().contains(QStringLiteral("theirs"))) << changed.Message().toStdString();
    EXPECT_TRUE(opened.Store.Update(0, {other})) << "another column is no conflict";
    file.Execute(QStringLiteral("DELETE FROM t WHERE id = 1"));
    const auto gone = opened.Store.Update(0, {other});
    ASSERT_FALSE(gone);
    EXPECT_TRUE(gone.Message().contains(QStringLiteral("deleted"))) << gone.Message().toStdString();
    EXPECT_FALSE(opened.Store.Read(0));
}

TEST(RecordStore, NeverTakesAnUnknownColumnForAText) {
    const TestDatabase file(QStringLiteral("CREATE TABLE t (k TEXT PRIMARY KEY, a TEXT);\n"
                                           "INSERT INTO t VALUES ('k', 'one');\n"));
    Opened opened(file, QStringLiteral("t"));
    const FieldChange change = opened.Change(0, 1, QStringLiteral("two"));
    file.Execute(QStringLiteral("ALTER TABLE t RENAME COLUMN a TO b"));
    const auto row = opened.Store.Read(0);
    ASSERT_FALSE(row) << (*row)[1].Text.toStdString();
    EXPECT_TRUE(row.Message().contains(QStringLiteral("no such column"))) << row.Message().toStdString();
    file.Execute(QStringLiteral("ALTER TABLE t RENAME COLUMN b TO a"));
    file.Execute(QStringLiteral("ALTER TABLE t RENAME COLUMN k TO key"));
    EXPECT_FALSE(opened.Store.Update(0, {change}));
    EXPECT_EQ(file.Ask(QStringLiteral("SELECT a FROM t")), QStringLiteral("one"));
}

TEST(RecordStore, KeepsPasswordsToItself) {
    const TestDatabase file(QStringLiteral("CREATE TABLE t (id INTEGER PRIMARY KEY, p TEXT);\n"
                                           "INSERT INTO t VALUES (1, 'old');\n"));
    Opened opened(file, QStringLiteral("t"));
    FieldChange change = opened.Change(0, 1, QStringLiteral("mine"));
    change.Secret = true;
    file.Execute(QStringLiteral("UPDATE t SET p = 'theirs'"));
    const auto changed = opened.Store.Update(0, {change});
    ASSERT_FALSE(changed);
    EXPECT_FALSE(changed.Message().contains(QStringLiteral("theirs"))) << changed.Message().toStdString();
    EXPECT_TRUE(changed.Message().contains(QStringLiteral("“p”"))) << changed.Message().toStdString();
}

TEST(RecordStore, SaysThatTheFileIsLocked) {
    const TestDatabase file(Simple);
    Opened opened(file, QStringLiteral("t"));
    const FieldChange change = opened.Change(0, 1, QStringLiteral("mine"));
    file.Execute(QStringLiteral("BEGIN EXCLUSIVE"));
    const auto locked = opened.Store.Update(0, {change});
    file.Execute(QStringLiteral("COMMIT"));
    ASSERT_FALSE(locked);
    EXPECT_TRUE(locked.Message().contains(QStringLiteral("locked"))) << locked.Message().toStdString();
    EXPECT_TRUE(opened.Store.Update(0, {change})) << "free again";
}

TEST(RecordStore, FindsRowsByKeysOfAnyKind) {
    const TestDatabase file(
        QStringLiteral("CREATE TABLE pair (a TEXT, b INTEGER, v TEXT, PRIMARY KEY (b, a)) WITHOUT ROWID;\n"
                       "INSERT INTO pair VALUES ('x', 1, 'x1'), ('y', 1, 'y1'), ('x', 2, 'x2');\n"
                       "CREATE TABLE loose (k PRIMARY KEY, v TEXT);\n"
                       "INSERT INTO loose VALUES (1, 'int'), ('1', 'text'), (1.5, 'real'), (x'00ff', "
                       "'blob'), (NULL, 'null');\n"));
    Opened pair(file, QStringLiteral("pair"));
    EXPECT_EQ((*pair.Store.Read(1))[2].Text, QStringLiteral("y1"));
    ASSERT_TRUE(pair.Store.Update(1, {pair.Change(1, 0, QStringLiteral("o'z"))}));
    EXPECT_EQ((*pair.Store.Read(1))[2].Text, QStringLiteral("y1"))
        << "the row is followed when its key changes";
    Opened loose(file, QStringLiteral("loose"));
    for (qsizetype i = 0; i < loose.Store.Count(); ++i) {
        const QString before = (*loose.Store.Read(i))[1].Text;
        ASSERT_TRUE(loose.Store.Update(i, {loose.Change(i, 1, QString(before + u"!"))}));
    }
    EXPECT_EQ(file.Ask(QStringLiteral("SELECT group_concat(v, ',') FROM (SELECT v FROM loose ORDER BY k)")),
              QStringLiteral("null!,int!,real!,text!,blob!"));
}

TEST(RecordStore, TakesHostileNames) {
    const QString table = QStringLiteral("a \"b\"; DROP TABLE t; -- ?:x [%1]'");
    const QString column = QStringLiteral("c'\"]`; DELETE FROM t; ? :p %2");
    const QString quoted = SqlDialect::Quote(table);
    const TestDatabase file(u"CREATE TABLE " + quoted + u" (\"the key?\" TEXT PRIMARY KEY, " +
                            SqlDialect::Quote(column) + u" TEXT);\nINSERT INTO " + quoted +
                            u" VALUES ('k''?', 'v');\n");
    Opened opened(file, table);
    ASSERT_EQ(opened.Store.Count(), 1);
    ASSERT_TRUE(opened.Store.Update(0, {opened.Change(0, 1, QStringLiteral("new"))}));
    ASSERT_TRUE(opened.Store.Insert({{0, QStringLiteral("'; DROP"), {}}}));
    EXPECT_EQ(file.Ask(u"SELECT count(*) || max(" + SqlDialect::Quote(column) + u") FROM " + quoted),
              QStringLiteral("2new"));
}

TEST(RecordStore, InsertsAndKnowsTheNewKey) {
    const TestDatabase file(
        Simple + QStringLiteral("CREATE TABLE d (id INTEGER PRIMARY KEY, a TEXT DEFAULT 'dflt');\n"));
    Opened opened(file, QStringLiteral("t"));
    const auto position = opened.Store.Insert({{1, QStringLiteral("four"), {}}});
    ASSERT_TRUE(position) << position.Message().toStdString();
    EXPECT_EQ((*opened.Store.Read(*position))[0].Text, QStringLiteral("4"));
    EXPECT_FALSE(opened.Store.Insert({{0, 4, {}}}));
    EXPECT_EQ(opened.Store.Count(), 4);
    Opened defaults(file, QStringLiteral("d"));
    const auto empty = defaults.Store.Insert({});
    ASSERT_TRUE(empty) << empty.Message().toStdString();
    EXPECT_EQ((*defaults.Store.Read(*empty))[1].Text, QStringLiteral("dflt"));
}

TEST(RecordStore, TablesWithoutKeyAndViewsAreForReading) {
    const TestDatabase file(
        QStringLiteral("CREATE TABLE bare (a, b);\nINSERT INTO bare VALUES (1, 2), (3, 4);\n"
                       "CREATE VIEW seen AS SELECT a FROM bare;\n"));
    for (const QString& name : {QStringLiteral("bare"), QStringLiteral("seen")}) {
        Opened opened(file, name);
        EXPECT_EQ(opened.Store.Count(), 2);
        EXPECT_FALSE(opened.Store.CanWrite());
        EXPECT_EQ((*opened.Store.Read(1))[0].Text, QStringLiteral("3"));
        EXPECT_FALSE(opened.Store.Update(0, {opened.Change(0, 0, 9)}));
        EXPECT_FALSE(opened.Store.Insert({{0, 9, {}}}));
    }
}

TEST(RecordStore, HoldsBackWhatIsTooLarge) {
    const TestDatabase file(
        QStringLiteral("CREATE TABLE t (id INTEGER PRIMARY KEY, a TEXT, b BLOB);\n"
                       "INSERT INTO t VALUES (1, hex(zeroblob(100000)), zeroblob(5000000));\n"));
    Opened opened(file, QStringLiteral("t"));
    const auto row = opened.Store.Read(0);
    ASSERT_TRUE(row);
    EXPECT_EQ((*row)[1].Kind, FieldValue::Storage::LongText);
    EXPECT_LT((*row)[1].Text.size(), SqlDialect::LongestText + 10);
    EXPECT_EQ((*row)[2].Text, QStringLiteral("(5000000 bytes)"));
}

TEST(RecordStore, ShowsNoHalfOfATextAsTheWhole) {
    const TestDatabase file(QStringLiteral("CREATE TABLE t (id INTEGER PRIMARY KEY, a TEXT);\n"
                                           "INSERT INTO t VALUES (1, 'ä' || char(0) || 'b');\n"));
    Opened opened(file, QStringLiteral("t"));
    const auto row = opened.Store.Read(0);
    ASSERT_TRUE(row);
    EXPECT_EQ((*row)[1].Kind, FieldValue::Storage::Binary);
    EXPECT_EQ((*row)[1].Text, QStringLiteral("(4 bytes)"));
}

} // namespace
} // namespace quillgrid::editor
