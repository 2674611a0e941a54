#include "apps/record_editor/EditorWindow.h"

#include "TestDatabase.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

namespace quillgrid::editor {
namespace {

using Answer = EditorWindow::Answer;

/// The window over a small table, its focus in the first row, driven by keys.
struct Window {
    explicit Window(const QString& statements)
        : File(statements),
          Connection(File.Open()),
          Tables(*SchemaReader::For(*Connection)->Tables()),
          Shown(std::move(Connection), Tables) {
        Shown.setQuestion([this](QWidget*) {
            ++Asked;
            return Reply;
        });
        EXPECT_TRUE(Shown.openTable(Tables.first()));
        Shown.show();
        Shown.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&Shown));
        Shown.widget().setFocus();
        QApplication::processEvents();
    }
    /// Types into the current cell: what stood there is selected and goes.
    void Type(const QString& text) {
        for (const QChar c : text) {
            QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key_unknown, QString(c),
                                Qt::NoModifier);
        }
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        QApplication::processEvents();
    }
    QString Status() const { return Shown.statusText(); }

    TestDatabase File;
    std::unique_ptr<Database> Connection;
    QList<TableName> Tables;
    int Asked = 0;
    Answer Reply = Answer::Cancel;
    EditorWindow Shown;
};

const QString TwoRows =
    QStringLiteral("CREATE TABLE a (name TEXT PRIMARY KEY, n INTEGER CHECK (n <> 13), s TEXT);\n"
                   "INSERT INTO a VALUES ('k1', 1, 'x'), ('k2', 2, 'y');\n"
                   "CREATE TABLE b (id INTEGER PRIMARY KEY);\n");

TEST(EditorWindow, TypingIsSavedWithoutLeavingTheRow) {
    Window window(TwoRows);
    EXPECT_EQ(window.Status(), QStringLiteral("Record 1 of 2 · a"));
    window.Press(Qt::Key_Return);
    window.Type(QStringLiteral("42"));
    window.Press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(window.File.Ask(QStringLiteral("SELECT n FROM a WHERE name = 'k1'")), QStringLiteral("42"));
    EXPECT_EQ(window.Status(), QStringLiteral("Record 1 of 2 · a"));
}

TEST(EditorWindow, UnsavedChangesAreAskedAbout) {
    Window window(TwoRows);
    window.Press(Qt::Key_Down);
    window.Type(QStringLiteral("5"));
    window.Press(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(window.Asked, 1);
    EXPECT_EQ(window.Status(), QStringLiteral("Record 1 of 2 · a · modified")) << "Cancel stays";
    window.Reply = Answer::Save;
    window.Press(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(window.Status(), QStringLiteral("Record 2 of 2 · a"));
    EXPECT_EQ(window.File.Ask(QStringLiteral("SELECT n FROM a WHERE name = 'k1'")), QStringLiteral("5"));
    window.Type(QStringLiteral("6"));
    window.Reply = Answer::Discard;
    window.Press(Qt::Key_PageUp, Qt::AltModifier);
    EXPECT_EQ(window.Status(), QStringLiteral("Record 1 of 2 · a"));
    EXPECT_EQ(window.File.Ask(QStringLiteral("SELECT n FROM a WHERE name = 'k2'")), QStringLiteral("2"));
    EXPECT_EQ(window.Asked, 3);
}

TEST(EditorWindow, ClosingAsksToo) {
    Window window(TwoRows);
    window.Press(Qt::Key_Down);
    window.Type(QStringLiteral("5"));
    EXPECT_FALSE(window.Shown.close());
    EXPECT_TRUE(window.Shown.isVisible());
    window.Reply = Answer::Discard;
    EXPECT_TRUE(window.Shown.close());
    EXPECT_EQ(window.Asked, 2);
}

TEST(EditorWindow, RefusalsOfTheDatabaseStandInTheWindow) {
    Window window(TwoRows);
    window.Press(Qt::Key_Down);
    window.Type(QStringLiteral("13"));
    window.Press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(window.Shown.message().contains(QStringLiteral("CHECK")))
        << window.Shown.message().toStdString();
    EXPECT_EQ(window.Shown.widget().grid().Cells().Item("n")->Text(), "13");
    window.Reply = Answer::Save;
    window.Shown.goNext();
    EXPECT_EQ(window.Status(), QStringLiteral("Record 1 of 2 · a · modified"))
        << "a failed save is no leave to go";
    window.Shown.revertRecord();
    EXPECT_TRUE(window.Shown.message().isEmpty());
    EXPECT_EQ(window.Status(), QStringLiteral("Record 1 of 2 · a"));
}

TEST(EditorWindow, RevertDropsWhatIsBeingTyped) {
    Window window(TwoRows);
    window.Press(Qt::Key_Down);
    window.Type(QStringLiteral("5"));
    window.Press(Qt::Key_R, Qt::ControlModifier);
    window.Press(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(window.Asked, 0);
    EXPECT_EQ(window.Status(), QStringLiteral("Record 2 of 2 · a"));
    EXPECT_EQ(window.File.Ask(QStringLiteral("SELECT n FROM a WHERE name = 'k1'")), QStringLiteral("1"));
}

TEST(EditorWindow, EscapeReturnsToTheLoadedValue) {
    Window window(TwoRows);
    window.Press(Qt::Key_Down);
    window.Press(Qt::Key_Escape);
    EXPECT_EQ(window.Shown.widget().grid().Cells().Item("n")->Text(), "1");
    window.Type(QStringLiteral("5"));
    window.Press(Qt::Key_Escape);
    window.Press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(window.File.Ask(QStringLiteral("SELECT n FROM a WHERE name = 'k1'")), QStringLiteral("1"));
}

TEST(EditorWindow, MarkOfAChangeShowsWhileTyping) {
    Window window(TwoRows);
    window.Press(Qt::Key_Down);
    window.Type(QStringLiteral("5"));
    QApplication::processEvents();
    EXPECT_EQ(window.Status(), QStringLiteral("Record 1 of 2 · a · modified"));
    EXPECT_TRUE(window.Shown.isWindowModified());
    window.Press(Qt::Key_Escape);
    EXPECT_EQ(window.Status(), QStringLiteral("Record 1 of 2 · a"));
    EXPECT_GE(window.Shown.minimumSizeHint().expandedTo(window.Shown.minimumSize()).width(), 250);
}

TEST(EditorWindow, ClearingAValueLeavesTheKeysOfTheTextAlone) {
    Window window(QStringLiteral("CREATE TABLE a (id INTEGER PRIMARY KEY, s TEXT);\n"
                                 "INSERT INTO a VALUES (1, 'two words');\n"));
    window.Press(Qt::Key_End);
    window.Press(Qt::Key_Backspace, Qt::ControlModifier);
    window.Press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(window.File.Ask(QStringLiteral("SELECT s FROM a")), QStringLiteral("two"));
    window.Press(Qt::Key_0, Qt::ControlModifier);
    window.Press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(window.File.Ask(QStringLiteral("SELECT s FROM a")), QStringLiteral("NULL"));
}

TEST(EditorWindow, LongFormsBeginAtTheTop) {
    QStringList columns{QStringLiteral("id INTEGER PRIMARY KEY")};
    for (int i = 0; i < 200; ++i)
        columns << QStringLiteral("c%1 TEXT").arg(i);
    Window window(u"CREATE TABLE a (" + columns.join(u", ") + u");\nINSERT INTO a (id) VALUES (1);\n");
    EXPECT_EQ(window.Shown.widget().grid().CurrentRow(), 2);
    EXPECT_EQ(window.Shown.widget().grid().FirstVisibleRow(), 1);
}

TEST(EditorWindow, NothingInTheDatabaseStretchesTheWindow) {
    const QString endless(3000, u'W');
    Window window(u"CREATE TABLE a (id INTEGER PRIMARY KEY, s TEXT);\n"
                  "INSERT INTO a VALUES (1, 'x');\n"
                  "CREATE TRIGGER refuse BEFORE UPDATE ON a BEGIN SELECT RAISE(ABORT, '" +
                  endless + u"'); END;\nCREATE TABLE " + endless + u" (id INTEGER PRIMARY KEY);\n");
    window.Shown.resize(560, 640);
    window.Type(QStringLiteral("y"));
    window.Press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(window.Shown.message().contains(QStringLiteral("WWW")));
    EXPECT_LT(window.Shown.message().size(), 1000);
    window.Reply = Answer::Discard;
    window.Shown.openTable(window.Tables.last());
    QApplication::processEvents();
    EXPECT_EQ(window.Shown.size(), QSize(560, 640));
    EXPECT_TRUE(window.Shown.findChild<QComboBox*>()->isVisible());
}

TEST(EditorWindow, WalksPastRecordsThatAreGone) {
    Window window(
        QStringLiteral("CREATE TABLE a (id INTEGER PRIMARY KEY, s TEXT);\n"
                       "INSERT INTO a VALUES (1, 'r1'), (2, 'r2'), (3, 'r3'), (4, 'r4'), (5, 'r5');\n"));
    const auto shown = [&] { return window.Shown.widget().grid().Cells().Item("s")->Text(); };
    window.File.Execute(QStringLiteral("DELETE FROM a WHERE id IN (2, 3, 5)"));
    window.Shown.goNext();
    EXPECT_EQ(shown(), "r4");
    window.Shown.goNext();
    EXPECT_EQ(shown(), "r4") << "none is left behind it";
    EXPECT_TRUE(window.Shown.message().contains(QStringLiteral("deleted")));
    window.Shown.goPrevious();
    EXPECT_EQ(shown(), "r1");
    EXPECT_TRUE(window.Shown.message().isEmpty());
    window.Shown.goLast();
    EXPECT_EQ(shown(), "r4");
}

TEST(EditorWindow, TitleNamesTheTableWhateverItIsCalled) {
    Window window(QStringLiteral("CREATE TABLE \"[*] %1 [*]\" (id INTEGER PRIMARY KEY, s TEXT);\n"));
    EXPECT_EQ(window.Shown.windowHandle()->title(), QStringLiteral("[*] %1 [*] – test.sqlite"));
    window.Type(QStringLiteral("x"));
    window.Press(Qt::Key_Return);
    EXPECT_EQ(window.Shown.windowHandle()->title(), QStringLiteral("[*] %1 [*] – test.sqlite*"));
}

TEST(EditorWindow, NewRecordByKeys) {
    Window window(TwoRows);
    window.Press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(window.Status(), QStringLiteral("New record · a"));
    window.Press(Qt::Key_Up); // wraps to the last row, and on to the first
    window.Press(Qt::Key_Down);
    window.Shown.widget().grid().Cells().Item("name")->SetFocus();
    window.Type(QStringLiteral("k3"));
    window.Press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(window.Status(), QStringLiteral("Record 3 of 3 · a")) << window.Shown.message().toStdString();
    EXPECT_EQ(window.File.Ask(QStringLiteral("SELECT count(*) FROM a WHERE name = 'k3' AND n IS NULL")),
              QStringLiteral("1"));
}

TEST(EditorWindow, TablesAreChosenAndKeptOnCancel) {
    Window window(TwoRows);
    auto* chooser = window.Shown.findChild<QComboBox*>();
    ASSERT_TRUE(chooser);
    window.Press(Qt::Key_Down);
    window.Type(QStringLiteral("5"));
    chooser->setCurrentIndex(1);
    Q_EMIT chooser->activated(1);
    EXPECT_EQ(chooser->currentText(), QStringLiteral("a"));
    window.Reply = Answer::Discard;
    chooser->setCurrentIndex(1);
    Q_EMIT chooser->activated(1);
    EXPECT_EQ(window.Status(), QStringLiteral("New record · b")) << "an empty table begins with a new record";
}

TEST(EditorWindow, UnfitValueKeepsTheUserInTheCellUntilItIsRight) {
    Window window(QStringLiteral("CREATE TABLE a (id INTEGER PRIMARY KEY, n INTEGER, s TEXT);\n"
                                 "INSERT INTO a VALUES (1, 'abc', 'x');\n"));
    EXPECT_TRUE(window.Shown.message().contains(QStringLiteral("abc"))) << "the hint of the row";
    window.Type(QStringLiteral("xyz"));
    window.Press(Qt::Key_Down);
    EXPECT_EQ(window.Shown.widget().grid().CurrentRow(), 2);
    EXPECT_FALSE(window.Shown.widget().shownMessage().isEmpty());
    window.Type(QStringLiteral("77"));
    window.Press(Qt::Key_Down);
    EXPECT_EQ(window.Shown.widget().grid().CurrentRow(), 3);
    window.Press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(window.File.Ask(QStringLiteral("SELECT n FROM a")), QStringLiteral("77"));
}

} // namespace
} // namespace quillgrid::editor
