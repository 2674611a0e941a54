#include "QtForm.h"

#include "quillgrid/grid/Keys.h"
#include "quillgrid/hosts/qt/CellAddress.h"
#include "quillgrid/hosts/qt/DatePadWidget.h"
#include "quillgrid/hosts/qt/QtPadWindow.h"
#include "quillgrid/hosts/qt/ReadyDropDowns.h"

#include <QDialog>
#include <QFileDialog>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>
#include <QThread>
#include <QWindow>

#include <gtest/gtest.h>

namespace quillgrid::qt {
namespace {

/// A window manager takes its time.
void AwaitActive(const QWidget& window) {
    for (int i = 0; i < 200 && !window.isActiveWindow(); ++i) {
        QThread::msleep(10);
        QApplication::processEvents();
    }
}

/// A form with a cell for each pad.
class PadForm : public QtForm {
public:
    PadForm() {
        Grid()
            .Add({.Key = "date", .Value = Variant(DateTime{46114, 0}), .CellTemplate = qgctDate})
            ->SetButton(qgbtClock);
        const auto list = Grid().Add({.Key = "list", .Value = Variant("b"), .CellTemplate = qgctlist});
        for (int i = 0; i < 30; ++i)
            list->Listitems().Add({.Text = std::string(1, static_cast<char>('a' + i % 26))});
        Grid().Add({.Key = "price", .Value = Variant(), .CellTemplate = qgctCurrency})->SetButton(qgbtCalc);
        Show();
        AwaitActive(Window());
        Events.clear();
        Quiet = Windows();
    }
    /// Top-level windows, the hidden ones too; what waits to be deleted goes first.
    static qsizetype Windows() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return QApplication::topLevelWidgets().size();
    }
    static QWidget* Pad() {
        QWidget* pad = nullptr;
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (!window->isVisible() || window->windowType() != Qt::ToolTip) continue;
            EXPECT_EQ(pad, nullptr) << "two pads";
            pad = window;
        }
        return pad;
    }
    QWidget* Open(const char* key) {
        Grid().Cells().Item(key)->SetFocus();
        Press(Qt::Key_F4);
        Settle();
        return Pad();
    }
    QRect ValueOnScreen(const char* key) const {
        const QRect value = Widget->onWidget(Widget->grid().ValueArea(*Widget->grid().Cells().Item(key)));
        return {Widget->mapToGlobal(value.topLeft()), value.size()};
    }
    static void Click(QWidget& widget, QPoint place, Qt::MouseButton button = Qt::LeftButton) {
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QMouseEvent event(type, place, widget.mapToGlobal(place), button, button, {});
            QApplication::sendEvent(&widget, &event);
        }
    }

    static void Move(QWidget& widget, QPoint place) {
        QMouseEvent event(QEvent::MouseMove, place, widget.mapToGlobal(place), Qt::NoButton, Qt::NoButton,
                          {});
        QApplication::sendEvent(&widget, &event);
    }

    qsizetype Quiet = 0;
};

TEST(PadWindow, StandsBelowItsValueAndTheFocusStaysInTheEditBox) {
    PadForm form;
    for (const char* key : {"date", "list", "price"}) {
        QWidget* pad = form.Open(key);
        ASSERT_NE(pad, nullptr) << key;
        const QRect value = form.ValueOnScreen(key);
        EXPECT_EQ(pad->y(), value.bottom() + 1) << key;
        if (std::string(key) == "list") {
            EXPECT_EQ(pad->x(), value.left());
            EXPECT_EQ(pad->width(), value.width());
        } else {
            EXPECT_EQ(pad->x() + pad->width(), value.right() + 1) << key;
        }
        EXPECT_TRUE(form.Edit()->hasFocus()) << key;
        EXPECT_EQ(pad->windowHandle()->transientParent(), form.Window().windowHandle());
    }
    EXPECT_LE(form.Windows(), form.Quiet + 3);
}

TEST(PadWindow, StaysOnTheScreenAndGoesAboveTheValueWhereThereIsMoreRoom) {
    const QRect screen(0, 0, 800, 600);
    const QRect low(700, 560, 90, 20);
    const QRect high(-50, 10, 90, 20);
    const struct {
        QPoint Wanted;
        QSize Size;
        QRect Value;
        QPoint Place;
    } cases[] = {
        {{100, 120}, {200, 150}, {100, 100, 200, 20}, {100, 120}},
        {{700, 580}, {200, 150}, low, {600, 410}},
        {{-50, 30}, {200, 150}, high, {0, 30}},
        {{-50, 30}, {900, 590}, high, {0, 10}}, // larger than the screen is wide
        {{700, 580}, {200, 700}, low, {600, 0}},
    };
    for (const auto& expected : cases)
        EXPECT_EQ(QtPadWindow::PlaceFor(expected.Wanted, expected.Size, expected.Value, screen),
                  expected.Place);
}

TEST(PadWindow, ClosesWhenTheWindowMovesHidesRestsOrSomethingElseIsPressed) {
    const struct {
        const char* Name;
        void (*Act)(PadForm& form);
    } cases[] = {
        {"move", [](PadForm& form) { form.Window().move(form.Window().pos() + QPoint(7, 7)); }},
        {"resize", [](PadForm& form) { form.Window().resize(420, 310); }},
        {"press on another field",
         [](PadForm& form) {
             PadForm::Click(*form.After, {3, 3});
         }},
        {"press into the edit box",
         [](PadForm& form) {
             PadForm::Click(*form.Edit(), {3, 3});
         }},
        {"press on the window",
         [](PadForm& form) {
             PadForm::Click(form.Window(), {1, 1});
         }},
        {"press on a label",
         [](PadForm& form) {
             PadForm::Click(*form.Widget, {20, 20});
         }},
        {"disabled", [](PadForm& form) { form.Widget->setEnabled(false); }},
        {"another window",
         [](PadForm& form) {
             QDialog other;
             other.show();
             other.activateWindow();
             AwaitActive(other);
             form.Settle();
         }},
        {"hidden", [](PadForm& form) { form.Window().hide(); }},
        {"in another window", [](PadForm& form) { form.Widget->setParent(nullptr); }},
    };
    for (const char* key : {"list", "price"}) {
        for (const auto& way : cases) {
            PadForm form;
            ASSERT_NE(form.Open(key), nullptr) << way.Name << " " << key;
            way.Act(form);
            form.Settle();
            EXPECT_EQ(PadForm::Pad(), nullptr) << way.Name << " " << key;
            if (!form.Widget->parentWidget()) delete form.Widget;
        }
    }
}

TEST(PadWindow, MouseAndKeysReachThePadAndTheirResultsTheCell) {
    PadForm form;
    const QPoint resting = form.ValueOnScreen("list").bottomLeft() + QPoint(20, 70);
    QCursor::setPos(resting);
    QWidget* list = form.Open("list");
    ASSERT_NE(list, nullptr);
    const int row = list->height() / 6;
    PadForm::Move(*list, list->mapFromGlobal(resting)); // the pointer was there before the pad
    EXPECT_EQ(form.Edit()->text(), QStringLiteral("b"));
    PadForm::Move(*list, {20, row * 4 + row / 2});
    EXPECT_EQ(form.Edit()->text(), QStringLiteral("e"));
    PadForm::Click(*list, {10, row * 3 + row / 2});
    EXPECT_EQ(PadForm::Pad(), nullptr);
    EXPECT_EQ(form.Edit()->text(), QStringLiteral("d"));
    PadForm::Click(*form.Open("list"), {10, row * 3 + row / 2}, Qt::RightButton); // any button chooses
    EXPECT_EQ(PadForm::Pad(), nullptr);
    form.Open("price");
    PadForm::Type(QStringLiteral("116"));
    PadForm::Press(Qt::Key_F7);
    PadForm::Enter();
    EXPECT_EQ(PadForm::Pad(), nullptr);
    EXPECT_EQ(form.Grid().Cells().Item("price")->Value(), Variant(Currency::FromScaled(1000000)));
    form.Open("date");
    PadForm::Press(Qt::Key_Right);
    PadForm::Press(Qt::Key_Escape, QStringLiteral("\x1b"));
    EXPECT_EQ(form.Grid().Cells().Item("date")->Value(), Variant(DateTime{46115, 0}));
    EXPECT_EQ(form.Events,
              (std::vector<std::string>{"select list", "change list", "validate list", "change list",
                                        "select price", "change price", "select date", "change date"}));
}

TEST(PadWindow, TheCalendarWritesInTheLocaleOfItsForm) {
    PadForm form;
    for (const auto& [locale, month] :
         {std::pair("de_DE", "April 2026"), std::pair("it_IT", "aprile 2026")}) {
        form.Window().setLocale(QLocale(QString::fromLatin1(locale)));
        auto* pad = dynamic_cast<DatePadWidget*>(form.Open("date"));
        ASSERT_NE(pad, nullptr);
        EXPECT_EQ(pad->Pad().View().Caption, month);
        PadForm::Press(Qt::Key_Escape);
    }
}

/// What a slot may do while a pad is at work: take everything away.
TEST(PadWindow, NoPadOutlivesItsControl) {
    for (const char* key : {"list", "price", "date"}) {
        for (const bool fromInside : {false, true}) {
            PadForm form;
            const QPointer<QWidget> pad = form.Open(key);
            ASSERT_TRUE(pad);
            if (fromInside) {
                QObject::connect(form.Widget, &QuillgridWidget::change, form.Widget,
                                 [&form] { delete form.Widget; });
                if (std::string(key) == "list") {
                    PadForm::Click(*pad, {10, 10});
                } else if (std::string(key) == "price") {
                    PadForm::Type(QStringLiteral("5"));
                    PadForm::Enter();
                } else {
                    PadForm::Press(Qt::Key_Right);
                    PadForm::Enter();
                }
            } else {
                delete form.Widget;
            }
            EXPECT_EQ(PadForm::Windows(), form.Quiet) << key << fromInside;
            EXPECT_FALSE(pad) << key << fromInside;
        }
    }
}

TEST(ReadyDropDowns, OnlyAddressesOfThePhoneMailAndWebAreOpened) {
    const struct {
        CellTemplateConstants Template;
        const char* Text;
        const char* Address;
    } cases[] = {
        {qgctPhone, "+49 (30) 231-25/014", "tel:+493023125014"},
        {qgctPhone, "110;file", ""},
        {qgctEmail, "a.b@example.com", "mailto:a.b@example.com"},
        {qgctEmail, "a@b?attach=/etc/passwd", ""},
        {qgctEmail, "file:///etc/passwd", ""},
        {qgctwww, "www.example.com/x", "https://www.example.com/x"},
        {qgctwww, "HTTP://example.com", "http://example.com"},
        {qgctwww, "example.com:8080/x", "https://example.com:8080/x"},
        {qgctwww, "file:///bin/sh", ""},
        {qgctwww, "javascript:alert(1)", ""},
        {qgctwww, "/bin/sh", ""},
        {qgctwww, "https:///bin/sh", ""},
        {qgctwww, "https://bank.example.com@elsewhere.example.com", ""},
        {qgctwww, "", ""},
        {qgctFile, "https://example.com", ""},
    };
    for (const auto& expected : cases) {
        QtForm form;
        const auto cell = form.Grid().Add({.Key = "x", .CellTemplate = expected.Template});
        cell->SetCharlist("");
        cell->SetText(expected.Text);
        EXPECT_EQ(addressOf(*cell).toString(), QString::fromUtf8(expected.Address)) << expected.Text;
    }
}

TEST(ReadyDropDowns, AFileThatIsPickedComesInAsIfTyped) {
    QtForm form;
    form.Grid().Add({.Key = "file", .CellTemplate = qgctFile});
    offerFiles(*form.Widget);
    form.Show();
    AwaitActive(form.Window());
    QtForm::Press(Qt::Key_F4);
    const auto dialog = [&] { return form.Widget->findChild<QFileDialog*>(); };
    for (int i = 0; i < 100 && !dialog(); ++i) {
        QThread::msleep(10);
        form.Settle();
    }
    ASSERT_TRUE(dialog());
    Q_EMIT dialog()->fileSelected(QStringLiteral("/home/me/letter.txt"));
    EXPECT_EQ(form.Grid().Cells().Item("file")->Text(), "/home/me/letter.txt");
    EXPECT_EQ(form.Events.back(), "change file");
    delete dialog();
}

} // namespace
} // namespace quillgrid::qt
