#include "apps/record_editor/CommandLine.h"

#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quillgrid::editor {
namespace {

struct EditorRun {
    int Status = -1;
    QString Errors;
};

EditorRun RunEditor(const QStringList& arguments) {
    QProcess process;
    process.start(QStringLiteral(RECORD_EDITOR), arguments);
    EXPECT_TRUE(process.waitForFinished(60'000));
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardError())};
}

TEST(CommandLine, RefusesWhatItCannotDo) {
    for (const QStringList& arguments : {QStringList{QStringLiteral("--tabel"), QStringLiteral("x")},
                                         {QStringLiteral("--table")},
                                         {QStringLiteral("--scale"), QStringLiteral("x")},
                                         {QStringLiteral("--scale"), QStringLiteral("99")},
                                         {QStringLiteral("--record"), QStringLiteral("0")},
                                         {QStringLiteral("a"), QStringLiteral("b")}}) {
        EXPECT_FALSE(CommandLine::Parse(arguments)) << arguments.join(u' ').toStdString();
    }
    const auto line = CommandLine::Parse(
        {QStringLiteral("--scale"), QStringLiteral("2"), QStringLiteral("a.db"), QStringLiteral("--dark")});
    ASSERT_TRUE(line);
    EXPECT_EQ(line->Scale, 2);
    EXPECT_EQ(line->Address, QStringLiteral("a.db"));
    EXPECT_TRUE(line->Dark);
}

TEST(CommandLine, EndsWithStatusTwoAndSaysWhy) {
    QTemporaryDir folder;
    const QString missing = folder.filePath(QStringLiteral("missing.sqlite"));
    const QString garbage = folder.filePath(QStringLiteral("garbage.sqlite"));
    QFile file(garbage);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(4096, 'x'));
    file.close();
    struct Case {
        QStringList Arguments;
        const char* Expected;
    };
    for (const Case& test : {Case{{missing}, "There is no file"}, Case{{garbage}, "not a database"},
                             Case{{folder.path()}, "is a folder"},
                             Case{{QStringLiteral("--table"), QStringLiteral("nope")}, "companies"},
                             Case{{QStringLiteral("--record"), QStringLiteral("999")}, "no record 999"},
                             Case{{QStringLiteral("postgresql://127.0.0.1:1/x")}, "127.0.0.1:1"},
                             Case{{QStringLiteral("--nonsense")}, "usage:"}}) {
        const EditorRun run = RunEditor(test.Arguments);
        EXPECT_EQ(run.Status, 2) << test.Expected;
        EXPECT_TRUE(run.Errors.contains(QLatin1String(test.Expected))) << run.Errors.toStdString();
    }
    EXPECT_FALSE(QFileInfo::exists(missing)) << "opening must not create a file";
}

TEST(CommandLine, WritesAPicture) {
    QTemporaryDir folder;
    const QString picture = folder.filePath(QStringLiteral("form.png"));
    const EditorRun run =
        RunEditor({QStringLiteral("--picture"), picture, QStringLiteral("--scale"), QStringLiteral("2")});
    EXPECT_EQ(run.Status, 0);
    EXPECT_EQ(run.Errors, QString()) << "nothing to complain about";
    EXPECT_GT(QFileInfo(picture).size(), 5000);
}

} // namespace
} // namespace quillgrid::editor
