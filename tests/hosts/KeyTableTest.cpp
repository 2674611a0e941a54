// The table of keys in the documents, walked through in the widget.
#include "QtForm.h"

#include "quillgrid/hosts/qt/CalculatorWidget.h"
#include "quillgrid/hosts/qt/CalendarWidget.h"

#include <QFile>
#include <QMenu>
#include <QRegularExpression>
#include <QShortcut>

#include <gtest/gtest.h>

#include <functional>
#include <set>

namespace quillgrid::qt {
namespace {

/// A form with a cell of each kind under a heading, more rows than it has room for, and both boxes.
class KeyForm : public QtForm {
public:
    KeyForm() {
        Widget->setLocale(QLocale(QStringLiteral("de_DE")));
        Grid().SetCaption("Keys");
        Grid().SetShowCaption(true);
        Grid().SetShowCloseBox(true);
        Grid().SetShowMenuBox(true);
        Grid().SetShowGroupBox(true);
        Grid().SetGrouped(true);
        Grid().AddGroup({.Key = "all", .Caption = "All"});
        Add("te&xt", "abc", qgctNone);
        Add("spin", -3, qgctSpin).SetMin(Variant(-10));
        Add("flag", true, qgctboolean);
        Add("date", Variant(DateTime{46114, 0}), qgctDate).SetButton(qgbtClock);
        Cell& list = Add("list", "b", qgctlist);
        list.Listitems().Clear();
        for (const char* entry : {"a", "b", "c"})
            list.Listitems().Add({.Text = entry});
        list.SetListIndex(2);
        Add("price", Variant(*Currency::FromDecimal("12.5")), qgctCurrency).SetButton(qgbtCalc);
        Add("phone", "0815", qgctPhone);
        for (int more = 0; more < 20; ++more)
            Add("more" + std::to_string(more), more, qgctInteger);
        Grid().Update();
        const auto note = [this](const char* what) { return [this, what] { Note(what); }; };
        QObject::connect(Widget, &QuillgridWidget::closeBoxClick, Widget, note("close"));
        QObject::connect(Widget, &QuillgridWidget::menuClick, Widget, note("menu"));
        QObject::connect(Widget, &QuillgridWidget::imageClick, Widget, note("image"));
        Show();
    }
    void Note(const char* what) { Events.push_back(what); }
    Cell& Add(const std::string& caption, const Variant& value, CellTemplateConstants kind) {
        std::string key = caption;
        std::erase(key, '&');
        return *Grid().Add(
            {.Key = key, .Caption = Variant(caption), .Value = value, .CellTemplate = kind, .Group = "all"});
    }
    void GoTo(const std::string& key) {
        Grid().HidePads();
        if (key == "heading") return Press(Qt::Key_Home, {}, Qt::ControlModifier);
        Grid().Cells().Item(key)->SetFocus();
        if (Edit()->isVisible()) Edit()->selectAll();
    }
    /// What there is to be seen: the events, the current cell and its text, the first row in view.
    std::string Seen() {
        std::string seen;
        for (const std::string& event : std::exchange(Events, {}))
            seen += event + ", ";
        const Cell& cell = *Grid().Cell();
        const bool typed = Edit()->isVisible();
        seen += (cell.Key().empty() ? "heading" : cell.Key()) + "=" +
                (typed ? Edit()->text().toStdString() : cell.Text());
        if (Grid().FirstVisibleRow() > 1) seen += " @" + std::to_string(Grid().FirstVisibleRow());
        return Grid().IsPadShown() ? seen + " pad" : seen;
    }
};

struct Row {
    const char* At;
    const char* Spelled; ///< as in the document
    int Key;
    Qt::KeyboardModifiers Held;
    const char* Typed;
    const char* Seen;
};

constexpr Qt::KeyboardModifiers None = Qt::NoModifier, Shift = Qt::ShiftModifier,
                                Control = Qt::ControlModifier, Alt = Qt::AltModifier;

const Row FormRows[] = {
    {"text", "Down", Qt::Key_Down, None, "", "select spin, spin=-3"},
    {"spin", "Up", Qt::Key_Up, None, "", "select text, text=abc"},
    {"text", "Enter", Qt::Key_Return, None, "\r", "select spin, spin=-3"},
    {"text", "Tab", Qt::Key_Tab, None, "\t", "select spin, spin=-3"},
    {"spin", "Shift+Tab", Qt::Key_Backtab, Shift, "", "select text, text=abc"},
    {"text", "End", Qt::Key_End, None, "", "text=abc"},
    {"list", "Home", Qt::Key_Home, None, "", "select , heading="},
    {"text", "Ctrl+Home", Qt::Key_Home, Control, "", "select , heading="},
    {"text", "Ctrl+Down", Qt::Key_Down, Control, "", "text=abc @2"},
    {"text", "Ctrl+Up", Qt::Key_Up, Control, "", "text=abc"},
    {"spin", "Shift+Up", Qt::Key_Up, Shift, "", "change spin, spin=-2"},
    {"spin", "Shift+Down", Qt::Key_Down, Shift, "", "change spin, spin=-3"},
    {"spin", "+", Qt::Key_Plus, None, "+", "change spin, spin=-2"},
    {"phone", "Alt+Enter", Qt::Key_Return, Alt, "\r", "image, phone=0815"},
    {"text", "F10", Qt::Key_F10, None, "", "menu, text=abc"},
    {"text", "Ctrl+F4", Qt::Key_F4, Control, "", "close, text=abc"},
    {"list", "F4", Qt::Key_F4, None, "", "list=b pad"},
    {"date", "Alt+Down", Qt::Key_Down, Alt, "", "date=02.04.2026 pad"},
    {"list", "Space", Qt::Key_Space, None, " ", "list=b pad"},
    {"flag", "F4", Qt::Key_F4, None, "", "change flag, flag=nein"},
    {"heading", "Left", Qt::Key_Left, None, "", "heading="},
    {"heading", "Right", Qt::Key_Right, None, "", "heading="},
};

TEST(KeyTable, FormsDoByKeysWhatTheyDoByClicks) {
    KeyForm form;
    for (const Row& row : FormRows) {
        form.GoTo(row.At);
        form.Settle();
        form.Events.clear();
        QtForm::Press(row.Key, QString::fromLatin1(row.Typed), row.Held);
        EXPECT_EQ(form.Seen(), row.Seen) << row.Spelled << " at " << row.At;
    }
}

TEST(KeyTable, PadsDoByKeysWhatTheyDoByClicks) {
    KeyForm form;
    const auto open = [&](const char* key) {
        form.GoTo(key);
        QtForm::Press(Qt::Key_F4);
    };
    open("date");
    QtForm::Press(Qt::Key_PageDown);
    QtForm::Press(Qt::Key_End);
    EXPECT_EQ(form.Grid().Cells().Item("date")->Text(), "02.05.2027");
    QtForm::Press(Qt::Key_Home, {}, Qt::ControlModifier);
    const QDate today = QDate::currentDate();
    EXPECT_EQ(form.Grid().Cells().Item("date")->Text(),
              today.toString(QStringLiteral("dd.MM.yyyy")).toStdString());
    QtForm::Enter();
    EXPECT_FALSE(form.Grid().IsPadShown());
    open("price");
    QtForm::Press(Qt::Key_F9);
    QtForm::Press(Qt::Key_Equal, QStringLiteral("="));
    EXPECT_EQ(form.Grid().Cells().Item("price")->Value(), Variant(*Currency::FromDecimal("-12.5")));
}

TEST(KeyTable, TheCalendarsMenusOpenOverIt) {
    for (const auto& [held, entries] : {std::pair(None, 12), std::pair(Shift, 5)}) {
        KeyForm form;
        form.GoTo("date");
        QtForm::Press(Qt::Key_F4);
        QtForm::Press(Qt::Key_F10, {}, held);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr) << entries;
        EXPECT_EQ(menu->actions().size(), entries);
        ASSERT_NE(menu->activeAction(), nullptr);
        EXPECT_TRUE(menu->activeAction()->isChecked());
        EXPECT_TRUE(form.Grid().IsPadShown());
        menu->close();
    }
}

TEST(KeyTable, KeysOfBoxesAreShortcutsOfTheWindowWhereThereAreNoBoxes) {
    KeyForm form;
    QShortcut menu(QKeySequence(Qt::Key_F10), &form.Window());
    const auto claimed = [&] {
        QKeyEvent event(QEvent::ShortcutOverride, Qt::Key_F10, Qt::NoModifier);
        event.ignore();
        QApplication::sendEvent(QApplication::focusWidget(), &event);
        return event.isAccepted();
    };
    EXPECT_TRUE(claimed());
    form.Grid().SetShowMenuBox(false);
    form.Grid().Refresh();
    EXPECT_FALSE(claimed());
}

TEST(KeyTable, StandAlonePadsTakeTheSameKeys) {
    CalendarWidget calendar;
    calendar.setCurrentDate({2020, 2, 2});
    calendar.show();
    calendar.activateWindow();
    calendar.setFocus();
    QApplication::processEvents();
    QtForm::Press(Qt::Key_Home, {}, Qt::ControlModifier);
    EXPECT_EQ(calendar.currentDate(), QDate::currentDate());
    QtForm::Press(Qt::Key_F10);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    QApplication::activePopupWidget()->close();
    CalculatorWidget calculator;
    calculator.show();
    calculator.activateWindow();
    calculator.setFocus();
    QApplication::processEvents();
    QtForm::Type(QStringLiteral("7"));
    QtForm::Press(Qt::Key_F9);
    EXPECT_EQ(calculator.pad().DisplayText(), "-7");
}

// A key that is added to the walk is written down too.
TEST(KeyTable, TheDocumentHasEveryKeyOfTheWalk) {
    QFile document(QStringLiteral(QUILLGRID_KEYBOARD_DOCUMENT));
    ASSERT_TRUE(document.open(QIODevice::ReadOnly | QIODevice::Text));
    std::set<QString> written;
    for (const QString& line : QString::fromUtf8(document.readAll()).split(u'\n')) {
        if (!line.startsWith(u'|')) continue;
        const QString keys = line.section(u'|', 1, 1);
        for (const QString& key : keys.split(QRegularExpression(QStringLiteral("[,;]")), Qt::SkipEmptyParts))
            written.insert(key.trimmed());
    }
    for (const Row& row : FormRows)
        EXPECT_TRUE(written.count(QString::fromLatin1(row.Spelled))) << row.Spelled;
    for (const char* key : {"Ctrl+Home", "Shift+F10", "F9"})
        EXPECT_TRUE(written.count(QString::fromLatin1(key))) << key;
}

} // namespace
} // namespace quillgrid::qt
