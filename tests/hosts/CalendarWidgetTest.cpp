// The calendar by itself as a Qt widget.
#include "quillgrid/hosts/qt/CalendarWidget.h"

#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPointer>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillgrid::qt {
namespace {

using Names = std::vector<std::string>;

class CalendarWidgetShown : public testing::Test {
protected:
    CalendarWidgetShown() {
        widget->setLocale(QLocale(QStringLiteral("de_DE")));
        widget->setCurrentDate({2024, 12, 6});
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(widget);
        QObject::connect(widget, &CalendarWidget::dateChange, &window, [this](QDate date) {
            heard.push_back("change " + date.toString(Qt::ISODate).toStdString());
        });
        QObject::connect(widget, &CalendarWidget::dateClick, &window, [this](QDate date) {
            heard.push_back("click " + date.toString(Qt::ISODate).toStdString());
        });
        window.resize(300, 300);
        window.show();
        window.activateWindow();
        widget->setFocus();
        QApplication::processEvents();
    }

    bool Press(int key, const QString& text = {}, Qt::KeyboardModifiers held = Qt::NoModifier) {
        QKeyEvent event(QEvent::KeyPress, key, held, text);
        event.ignore();
        QApplication::sendEvent(widget, &event);
        return event.isAccepted();
    }
    static void Send(QWidget& to, QEvent::Type type, QPoint at, Qt::MouseButton button) {
        const auto held = type == QEvent::MouseButtonPress ? Qt::MouseButtons(button) : Qt::NoButton;
        QMouseEvent event(type, at, to.mapToGlobal(at), button, held, Qt::NoModifier);
        QApplication::sendEvent(&to, &event);
    }
    /// A press and a release on whatever lies there.
    void Click(Point at, Qt::MouseButton button = Qt::LeftButton) {
        const QPoint place(at.X, at.Y);
        QPointer<QWidget> target = widget->childAt(place);
        ASSERT_TRUE(target);
        Send(*target, QEvent::MouseButtonPress, target->mapFrom(widget, place), button);
        if (target) Send(*target, QEvent::MouseButtonRelease, target->mapFrom(widget, place), button);
    }
    Point MiddleOf(int day) {
        const Rect cell = widget->pad().Layout().Cell(widget->pad().View().CellOf(day));
        return {(cell.Left + cell.Right) / 2, (cell.Top + cell.Bottom) / 2};
    }
    Names Take() { return std::exchange(heard, {}); }

    QWidget window;
    QPointer<CalendarWidget> widget{new CalendarWidget};
    Names heard;
};

TEST_F(CalendarWidgetShown, KeysAndClicksBecomeSignals) {
    EXPECT_TRUE(Press(Qt::Key_Right));
    EXPECT_TRUE(Press(Qt::Key_PageDown));
    EXPECT_TRUE(Press(Qt::Key_Escape, QStringLiteral("\x1b")));
    EXPECT_EQ(Take(), (Names{"change 2024-12-07", "change 2025-01-07", "click 2025-01-07"}));
    EXPECT_FALSE(Press(Qt::Key_Tab, QStringLiteral("\t")));
    EXPECT_FALSE(Press(Qt::Key_S, QStringLiteral("\x13"), Qt::ControlModifier));
    Click(MiddleOf(20));
    EXPECT_EQ(Take(), (Names{"change 2025-01-20", "click 2025-01-20"}));
    Click(MiddleOf(22), Qt::MiddleButton);
    Click(MiddleOf(22), Qt::RightButton);
    EXPECT_EQ(Take(), Names{}); // the left button alone picks days
    widget->setCurrentDate({});
    widget->setCurrentDate({12024, 1, 1});
    EXPECT_EQ(widget->currentDate(), QDate(2025, 1, 20));
    widget->setEnabled(false);
    Press(Qt::Key_Right);
    Click(MiddleOf(3));
    EXPECT_EQ(Take(), Names{});
}

TEST_F(CalendarWidgetShown, FillsItsLayoutAndFollowsFontLocaleAndPalette) {
    EXPECT_EQ(widget->pad().Layout().Pad, (Rect{0, 0, widget->width(), widget->height()}));
    EXPECT_EQ(widget->pad().View().Caption, "Dezember 2024");
    const QSize before = widget->sizeHint();
    const QImage light = widget->grab().toImage();
    QFont large = window.font();
    large.setPixelSize(30);
    window.setFont(large);
    window.setLocale(QLocale(QStringLiteral("fr_FR"))); // the widget's own stays
    EXPECT_GT(widget->sizeHint().width(), before.width());
    EXPECT_EQ(widget->pad().View().Caption, "Dezember 2024");
    window.setFont({});
    widget->setLocale(QLocale(QStringLiteral("en_US")));
    EXPECT_EQ(widget->pad().View().Caption, "December 2024");
    EXPECT_EQ(widget->pad().View().DayNames[0], "Sun");
    widget->setLocale(QLocale(QStringLiteral("de_DE")));
    QPalette dark(QColor(40, 40, 40), QColor(30, 30, 30));
    window.setPalette(dark);
    EXPECT_NE(widget->grab().toImage(), light);
    widget->pad().SetFont({.Name = "DejaVu Sans", .Size = 20});
    window.setFont(large);
    EXPECT_EQ(widget->pad().Font().Size, 20);
}

TEST_F(CalendarWidgetShown, TheCaptionOpensMenusOfMonthsAndYears) {
    const Rect& caption = widget->pad().Layout().CaptionText;
    const auto menu = [] {
        QApplication::processEvents();
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    };
    Click({widget->pad().View().YearStart + 2, caption.Top + 3});
    ASSERT_TRUE(menu());
    ASSERT_EQ(menu()->actions().size(), 5);
    menu()->actions().at(4)->trigger();
    menu()->close();
    Click({widget->pad().View().YearStart - 4, caption.Top + 3});
    ASSERT_TRUE(menu());
    EXPECT_TRUE(menu()->actions().at(11)->isChecked());
    menu()->actions().at(1)->trigger();
    menu()->close();
    EXPECT_EQ(Take(), (Names{"change 2026-12-06", "change 2026-02-06"}));
}

TEST_F(CalendarWidgetShown, ASlotMayDeleteTheWidget) {
    QObject::connect(widget, &CalendarWidget::dateChange, [this] { delete widget.data(); });
    const Point place = MiddleOf(20);
    Click(place);
    EXPECT_FALSE(widget);
}

TEST(CalendarWidgetPopup, APressBesideIsTheEndOfThePopup) {
    CalendarWidget popup(nullptr, Qt::Popup);
    int clicks = 0;
    QObject::connect(&popup, &CalendarWidget::dateClick, [&] { ++clicks; });
    popup.show();
    const QPoint beside(-20, 5);
    QMouseEvent press(QEvent::MouseButtonPress, beside, popup.mapToGlobal(beside), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&popup, &press);
    EXPECT_EQ(clicks, 1);
}

} // namespace
} // namespace quillgrid::qt
