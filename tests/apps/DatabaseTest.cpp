#include "apps/record_editor/Database.h"

#include "TestDatabase.h"

#include <QFile>

#include <gtest/gtest.h>

namespace quillgrid::editor {
namespace {

std::string WhyNot(const QString& file) {
    DatabaseAddress address;
    address.File = file;
    const auto opened = Database::Open(address);
    return opened ? "opened" : opened.Message().toStdString();
}

TEST(Database, SaysWhatIsWrongWithAFile) {
    QTemporaryDir folder;
    const QString missing = folder.filePath(QStringLiteral("no.sqlite"));
    EXPECT_NE(WhyNot(missing).find("no file"), std::string::npos);
    EXPECT_FALSE(QFile::exists(missing));
    EXPECT_NE(WhyNot(folder.path()).find("folder"), std::string::npos);
}

TEST(Database, SeesDamage) {
    const TestDatabase whole(
        QStringLiteral("CREATE TABLE t (id INTEGER PRIMARY KEY, a TEXT);\n"
                       "WITH RECURSIVE n(v) AS (SELECT 1 UNION ALL SELECT v + 1 FROM n WHERE v < 200) INSERT "
                       "INTO t SELECT v, hex(zeroblob(500)) || v FROM n;\n"
                       "CREATE INDEX i ON t (a);\n"));
    QTemporaryDir folder;
    const QString copy = folder.filePath(QStringLiteral("damaged.sqlite"));
    ASSERT_TRUE(QFile::copy(whole.File(), copy));
    QFile file(copy);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_GT(file.size(), 3 * 4096);
    file.seek(2 * 4096);
    file.write(QByteArray(static_cast<qsizetype>(file.size()) - 2 * 4096, '\x5a'));
    file.close();
    EXPECT_NE(WhyNot(copy).find("damaged"), std::string::npos) << WhyNot(copy);
}

TEST(Database, RowsThatBreakARuleAreNoDamage) {
    const TestDatabase source(
        QStringLiteral("CREATE TABLE t (id INTEGER PRIMARY KEY, a INTEGER CHECK (a < 5));\n"
                       "PRAGMA ignore_check_constraints = ON;\nINSERT INTO t VALUES (1, 9);\n"));
    EXPECT_EQ(WhyNot(source.File()), "opened");
}

TEST(Database, OpensAFileThatMayNotBeWrittenForReading) {
    const TestDatabase source(
        QStringLiteral("CREATE TABLE t (id INTEGER PRIMARY KEY);\nINSERT INTO t VALUES (1);\n"));
    ASSERT_TRUE(QFile::setPermissions(source.File(), QFile::ReadOwner));
    const auto database = source.Open();
    ASSERT_TRUE(database);
    EXPECT_TRUE(database->IsReadOnly());
    const auto refused = database->Run(QStringLiteral("INSERT INTO t VALUES (2)"));
    ASSERT_FALSE(refused);
    EXPECT_TRUE(refused.Message().contains(QStringLiteral("read-only"))) << refused.Message().toStdString();
    EXPECT_TRUE(database->Run(QStringLiteral("SELECT * FROM t")));
}

TEST(Database, ChecksReferences) {
    const TestDatabase source(
        QStringLiteral("CREATE TABLE a (id INTEGER PRIMARY KEY);\n"
                       "CREATE TABLE b (id INTEGER PRIMARY KEY, a INTEGER REFERENCES a);\n"));
    EXPECT_FALSE(source.Open()->Run(QStringLiteral("INSERT INTO b VALUES (1, 99)")));
}

} // namespace
} // namespace quillgrid::editor
