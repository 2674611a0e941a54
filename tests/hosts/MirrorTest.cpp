// Forms that run from right to left, and forms whose colours change while they are shown.
#include "quillgrid/hosts/qt/ErrorBubble.h"
#include "quillgrid/hosts/qt/QuillgridWidget.h"

#include <QApplication>
#include <QImage>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QRegion>
#include <QScrollBar>

#include <gtest/gtest.h>

#include <memory>

namespace quillgrid::qt {
namespace {

constexpr QSize FormSize(300, 200);

class MirroredForm : public testing::Test {
protected:
    MirroredForm() {
        window.resize(FormSize);
        form->resize(FormSize);
        form->setLayoutDirection(Qt::RightToLeft);
    }

    void AddRows(int count) {
        for (int row = 1; row <= count; ++row) {
            const std::string number = std::to_string(row);
            form->grid().Add(
                {.Key = "r" + number, .Caption = Variant("Row " + number), .Value = Variant(number)});
        }
    }
    void Show() {
        form->grid().Refresh();
        window.show();
        window.activateWindow();
        form->setFocus();
        QApplication::processEvents();
    }
    QRect ValueOf(const char* key) {
        return form->onWidget(form->grid().ValueArea(*form->grid().Cells().Item(key)));
    }
    void Send(QWidget* target, QEvent::Type type, QPoint place) {
        QMouseEvent event(type, place, target->mapToGlobal(place), Qt::LeftButton, Qt::LeftButton,
                          Qt::NoModifier);
        QApplication::sendEvent(target, &event);
    }
    void Click(QPoint place) {
        Send(form, QEvent::MouseButtonPress, place);
        Send(form, QEvent::MouseButtonRelease, place);
    }
    QLineEdit* Edit() { return form->findChild<QLineEdit*>(); }
    QScrollBar* Bar() { return form->findChild<QScrollBar*>(); }

    QWidget window;
    QuillgridWidget* form = new QuillgridWidget(&window);
};

TEST_F(MirroredForm, IsTheMirrorImageOfTheOther) {
    for (const StyleConstants style : {qgstDefault, qgstPropertyList}) {
        const auto picture = [style](Qt::LayoutDirection direction) {
            QuillgridWidget widget;
            widget.setLayoutDirection(direction);
            widget.resize(FormSize);
            Quillgrid& grid = widget.grid();
            grid.SetStyle(style);
            grid.SetBorderStyle(qgbsNone);
            grid.SetUseSystemColors(false);
            grid.SetLabelBackColor(Rgb(200, 230, 200));
            grid.SetLabelWidth(90);
            grid.SetBevelOuter(qgboPanelLeft);
            for (int i = 0; i < 4; ++i)
                grid.Add({.CellTemplate = qgctGroup});
            grid.Refresh();
            return widget.grab().toImage();
        };
        EXPECT_EQ(picture(Qt::RightToLeft), picture(Qt::LeftToRight).mirrored(true, false)) << style;
        EXPECT_NE(picture(Qt::RightToLeft), picture(Qt::LeftToRight)) << style;
    }
}

TEST_F(MirroredForm, HasLabelsAtTheRightAndTheScrollBarAtTheLeft) {
    AddRows(30);
    Show();
    EXPECT_TRUE(Bar()->isVisible());
    EXPECT_LT(Bar()->geometry().right(), ValueOf("r1").left() + 2);
    EXPECT_LT(ValueOf("r1").right(), 260);
    EXPECT_TRUE(ValueOf("r1").contains(Edit()->geometry()));
    EXPECT_EQ(Edit()->alignment() & (Qt::AlignLeft | Qt::AlignRight), Qt::AlignRight);
    window.resize(420, 200);
    form->resize(420, 200); // everything stands elsewhere, though the control counts from the other side
    QApplication::processEvents();
    EXPECT_TRUE(ValueOf("r1").contains(Edit()->geometry()));
    EXPECT_LT(Bar()->geometry().left(), 20);
    form->setLayoutDirection(Qt::LeftToRight);
    EXPECT_GT(Bar()->geometry().left(), 380);
    EXPECT_TRUE(ValueOf("r1").contains(Edit()->geometry()));
    EXPECT_EQ(Edit()->alignment() & (Qt::AlignLeft | Qt::AlignRight), Qt::AlignLeft);
}

TEST_F(MirroredForm, TakesTheMouseWhereThingsAreSeen) {
    AddRows(3);
    form->grid().Add(
        {.Key = "spin", .Caption = Variant("Spin"), .Value = Variant(7), .CellTemplate = qgctSpin});
    Show();
    Click(ValueOf("r2").center());
    EXPECT_EQ(form->grid().Cell()->Key(), "r2");
    Click({form->width() - 20, ValueOf("r3").center().y()}); // its label
    EXPECT_EQ(form->grid().Cell()->Key(), "r3");
    const QRect value = ValueOf("spin");
    Click({value.right() - 6, value.top() + 4});
    EXPECT_EQ(form->grid().Cells().Item("spin")->Text(), "7");
    Click({value.left() + 6, value.top() + 4});
    EXPECT_EQ(form->grid().Cells().Item("spin")->Text(), "8");
    QPointF corner;
    const auto take = [&](const QPointF& place) { corner = place; };
    QObject::connect(form, &QuillgridWidget::dropDown, form,
                     [&](Cell*, const QPointF& place) { take(place); });
    QObject::connect(form, &QuillgridWidget::menuClick, form, take);
    form->grid().DropDown.Raise(*form->grid().Cells().Item("r1"), 100.0F, 8.0F);
    EXPECT_EQ(corner, QPointF(200, 8)); // the right corner of what has its left one at 100
    form->grid().MenuClick.Raise(20.0F, 9.0F);
    EXPECT_EQ(corner, QPointF(280, 9));
}

/// What was asked to be painted again.
class PaintedRegion : public QObject {
public:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) Region += static_cast<QPaintEvent*>(event)->region();
        return false;
    }
    QRegion Region;
};

TEST_F(MirroredForm, RepaintsWhereThingsAreSeen) {
    AddRows(30); // with a scroll bar rows do not lie in the middle
    Show();
    PaintedRegion painted;
    form->installEventFilter(&painted);
    form->grid().Cells().Item("r3")->SetValue(Variant("changed"));
    QApplication::processEvents();
    EXPECT_TRUE(painted.Region.contains(ValueOf("r3").topLeft()));
    EXPECT_TRUE(painted.Region.contains(ValueOf("r3").bottomRight() - QPoint(0, 1)));
    EXPECT_FALSE(painted.Region.contains(ValueOf("r5").center()));
    form->removeEventFilter(&painted);
    const QImage before = form->grab().toImage();
    form->grid().hdc().Fill(form->grid().ValueArea(*form->grid().Cells().Item("r4")), Rgb(255, 0, 0));
    EXPECT_EQ(form->grab().toImage().pixelColor(ValueOf("r4").center()), QColor(255, 0, 0));
    form->grid().Cells().Item("r4")->Refresh();
    EXPECT_EQ(form->grab().toImage(), before);
}

TEST_F(MirroredForm, ShowsItsMessagesAtTheValue) {
    AddRows(3);
    Show();
    form->showMessage(QStringLiteral("Not this one"));
    const auto* bubble = form->findChild<ErrorBubble*>();
    ASSERT_TRUE(bubble && bubble->isVisible());
    EXPECT_TRUE(form->rect().contains(bubble->geometry()));
    EXPECT_NEAR(bubble->geometry().right(), ValueOf("r1").right(), 4);
}

TEST(Direction, ComesFromTheLocaleUnlessTheProgramHasSetIt) {
    const QLocale before;
    QLocale::setDefault(QLocale(QStringLiteral("ar_EG")));
    EXPECT_TRUE(QuillgridWidget().isRightToLeft());
    QWidget window;
    window.setLayoutDirection(Qt::RightToLeft);
    QuillgridWidget set;
    set.setLayoutDirection(Qt::LeftToRight);
    EXPECT_FALSE(set.isRightToLeft());
    QLocale::setDefault(before);
    EXPECT_FALSE(QuillgridWidget().isRightToLeft());
    EXPECT_TRUE(QuillgridWidget(&window).isRightToLeft());
}

QPalette Dark() {
    QPalette palette(QColor(53, 53, 53));
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        palette.setColor(role, Qt::white);
    palette.setColor(QPalette::Base, QColor(35, 35, 35));
    return palette;
}

std::unique_ptr<QWidget> FullForm(const QPalette& palette) {
    auto window = std::make_unique<QWidget>();
    window->setPalette(palette);
    window->resize(FormSize);
    auto* form = new QuillgridWidget(window.get());
    form->resize(FormSize);
    form->setMessageDuration(0);
    for (const CellTemplateConstants kind :
         {qgctInteger, qgctboolean, qgctFile, qgctPhone, qgctDate, qgctTime})
        form->grid().Add({.Caption = Variant("Caption"), .CellTemplate = kind});
    for (int i = 0; i < 20; ++i)
        form->grid().Add({.Caption = Variant("More"), .Value = Variant("text")});
    form->grid().Refresh();
    window->show();
    window->activateWindow();
    form->setFocus();
    QApplication::processEvents();
    form->showMessage(QStringLiteral("Not this one"));
    if (auto* edit = form->findChild<QLineEdit*>()) edit->setReadOnly(true); // no blinking cursor
    return window;
}

TEST(PaletteSwitch, LeavesNothingInTheOldColours) {
    const QPalette light = QApplication::palette();
    const QImage dark = FullForm(Dark())->grab().toImage();
    const auto window = FullForm(light);
    const QImage before = window->grab().toImage();
    EXPECT_NE(before, dark);
    window->setPalette(Dark());
    QApplication::processEvents();
    window->findChild<QLineEdit*>()->setReadOnly(true);
    EXPECT_EQ(window->grab().toImage(), dark);
    window->setPalette(light);
    QApplication::processEvents();
    window->findChild<QLineEdit*>()->setReadOnly(true);
    EXPECT_EQ(window->grab().toImage(), before);
}

} // namespace
} // namespace quillgrid::qt
