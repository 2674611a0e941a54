// The calculator by itself as a Qt widget.
#include "quillgrid/hosts/qt/CalculatorWidget.h"

#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace quillgrid::qt {
namespace {

class CalculatorShown : public testing::Test {
protected:
    CalculatorShown() {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(widget);
        QObject::connect(widget, &CalculatorWidget::closeUp, &window, [this] { ++closed; });
        window.show();
        widget->setFocus();
        QApplication::processEvents();
    }

    bool Press(int key, const QString& text = {}) {
        bool taken = false;
        for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier, text);
            event.ignore();
            if (widget) QApplication::sendEvent(widget, &event);
            taken = taken || event.isAccepted();
        }
        return taken;
    }
    void Type(const char* keys) {
        for (const char* key = keys; *key != 0; ++key)
            Press(QChar::fromLatin1(*key).unicode(), QString(QLatin1Char(*key)));
    }
    void Click(std::int32_t key) {
        const Rect& face = widget->pad().Layout().Keys[static_cast<std::size_t>(key)];
        const Point at{face.Left + face.Width() / 2, face.Top + face.Height() / 2};
        QWidget* target = widget->childAt(at.X, at.Y);
        ASSERT_TRUE(target);
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            const QPointF place(target->mapFrom(widget, QPoint(at.X, at.Y)));
            QMouseEvent event(type, place, target->mapToGlobal(place), Qt::LeftButton, Qt::LeftButton, {});
            QApplication::sendEvent(target, &event);
        }
    }
    Variant Value() const { return widget->pad().Value(); }

    QWidget window;
    QPointer<CalculatorWidget> widget = new CalculatorWidget;
    int closed = 0;
};

Variant Amount(const char* text) {
    return Variant(*Currency::FromDecimal(text));
}

TEST_F(CalculatorShown, KeysAndClicksComputeAndEnterOnAResultIsTheEnd) {
    Type("12*3");
    EXPECT_TRUE(Press(Qt::Key_Return, QStringLiteral("\r")));
    EXPECT_TRUE(Value() == Amount("36"));
    EXPECT_EQ(closed, 0);
    Press(Qt::Key_Enter, QStringLiteral("\r"));
    EXPECT_EQ(closed, 1);
    Press(Qt::Key_Escape);
    Type("116");
    EXPECT_TRUE(Press(Qt::Key_F7));
    EXPECT_TRUE(Value() == Amount("100"));
    Click(1);
    Click(19);
    Click(2);
    Click(15);
    EXPECT_TRUE(Value() == Amount("15")) << "7 + 8";
    EXPECT_FALSE(Press(Qt::Key_Tab, QStringLiteral("\t"))) << "leaves";
    EXPECT_FALSE(Press(Qt::Key_F1));
}

TEST_F(CalculatorShown, ASlotMayDeleteIt) {
    QObject::connect(widget, &CalculatorWidget::closeUp, &window, [this] { delete widget.data(); });
    Type("1+2=");
    Press(Qt::Key_Return, QStringLiteral("\r"));
    EXPECT_TRUE(widget.isNull());
}

TEST_F(CalculatorShown, ItFollowsThePalette) {
    const auto mean = [this] {
        const QImage picture = widget->grab().toImage();
        qint64 sum = 0;
        for (int x = 0; x < picture.width(); ++x)
            sum += qGray(picture.pixel(x, picture.height() / 2));
        return sum / picture.width();
    };
    widget->setPalette(QPalette(QColor(235, 235, 235)));
    const auto light = mean();
    widget->setPalette(QPalette(QColor(40, 42, 46)));
    EXPECT_LT(mean(), light / 2);
}

} // namespace
} // namespace quillgrid::qt
