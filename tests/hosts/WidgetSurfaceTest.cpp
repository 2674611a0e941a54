// What a program sees of the widget beside editing: signals, design mode, images, the about window.
#include "QtForm.h"

#include "quillgrid/hosts/qt/JsonPropertyBag.h"
#include "quillgrid/hosts/qt/QtImageSource.h"
#include "quillgrid/hosts/qt/QtPicture.h"

#include <QDialog>
#include <QImage>
#include <QLabel>
#include <QPointF>

#include <gtest/gtest.h>

namespace quillgrid::qt {
namespace {

using Names = std::vector<std::string>;

Names KeysReportedBy(QuillgridWidget& widget, const std::function<void()>& act) {
    Names keys;
    const auto connection =
        QObject::connect(&widget, &QuillgridWidget::propertyChanged,
                         [&keys](const QString& key) { keys.push_back(key.toStdString()); });
    act();
    QObject::disconnect(connection);
    return keys;
}

TEST(WidgetSurface, EventsOfTheCaptionBarAndOfCellsAreSignals) {
    QuillgridWidget widget;
    const auto cell = widget.grid().Add({.Key = "a"});
    Names seen;
    QObject::connect(&widget, &QuillgridWidget::dropDown, [&](Cell* from, const QPointF& corner) {
        seen.push_back("drop " + from->Key() + std::to_string(corner.toPoint().x()));
    });
    QObject::connect(&widget, &QuillgridWidget::closeBoxClick, [&] { seen.push_back("close"); });
    QObject::connect(&widget, &QuillgridWidget::menuClick,
                     [&](const QPointF& corner) { seen.push_back(std::to_string(corner.toPoint().y())); });
    widget.grid().DropDown.Raise(*cell, 7.0F, 8.0F);
    widget.grid().CloseBoxClick.Raise();
    widget.grid().MenuClick.Raise(1.0F, 2.0F);
    EXPECT_EQ(seen, (Names{"drop a7", "close", "2"}));
}

TEST(WidgetSurface, SettersReportTheirKeysAndASlotMayDeleteTheWidget) {
    auto* widget = new QuillgridWidget;
    EXPECT_EQ(KeysReportedBy(*widget,
                             [&] {
                                 widget->grid().SetTooltipText("x");
                                 widget->grid().SetGroupBoxColor(1);
                                 widget->grid().Properties().Item("style")->SetValue(0);
                                 widget->setObjectName(QStringLiteral("later"));
                             }),
              (Names{"ToolTipText", "GroupBoxColor", "Style"}));
    EXPECT_EQ(widget->grid().Caption(), "");
    QObject::connect(widget, &QuillgridWidget::propertyChanged, [widget] { delete widget; });
    const QPointer<QuillgridWidget> alive(widget);
    widget->grid().SetAlignment(qgalRightJustify);
    EXPECT_TRUE(alive.isNull());
}

TEST(WidgetSurface, DesignModeShowsSampleCellsAndEveryChangeAtOnce) {
    QuillgridWidget widget(nullptr, QuillgridWidget::DesignMode);
    widget.resize(200, 120);
    widget.grid().SetCellCount(3);
    EXPECT_EQ(widget.grid().RowCount(), 3);
    EXPECT_EQ(widget.grid().RowCell(3)->Text(), "Text3");
    const QImage before = widget.grab().toImage();
    widget.grid().SetStyle(qgstDefault);
    EXPECT_NE(widget.grab().toImage(), before);

    QuillgridWidget running;
    running.resize(200, 120);
    const QImage running_ = running.grab().toImage();
    running.grid().SetStyle(qgstDefault);
    EXPECT_EQ(running.grab().toImage(), running_);
}

TEST(WidgetSurface, DesignModeEditsNothingAndLeavesKeysToTheDesigner) {
    QuillgridWidget widget(nullptr, QuillgridWidget::DesignMode);
    widget.show();
    widget.activateWindow();
    widget.setFocus();
    QApplication::processEvents();
    for (QLineEdit* edit : widget.findChildren<QLineEdit*>())
        EXPECT_FALSE(edit->isVisible());
    for (const int key :
         {static_cast<int>('X'), static_cast<int>(Qt::Key_Down), static_cast<int>(Qt::Key_Tab)}) {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, QStringLiteral("x"));
        QApplication::sendEvent(&widget, &event);
        EXPECT_TRUE(!event.isAccepted() || key == Qt::Key_Tab) << key;
    }
    EXPECT_EQ(widget.grid().RowCell(1)->Text(), "Text1");
}

TEST(WidgetSurface, LoadedFormsFollowTheFontsTheyDoNotSet) {
    QuillgridWidget widget;
    JsonPropertyBag bag(QJsonObject{{QStringLiteral("CellFont"), QJsonObject{{QStringLiteral("size"), 20}}}});
    widget.grid().ReadProperties(bag);
    QFont font = widget.font();
    font.setPointSizeF(15);
    const Names keys = KeysReportedBy(widget, [&] { widget.setFont(font); });
    EXPECT_EQ(keys, Names());
    EXPECT_EQ(widget.grid().Font().Size, 15);
    EXPECT_EQ(widget.grid().CaptionFont().Size, 15);
    EXPECT_EQ(widget.grid().CellFont().Size, 20);
    JsonPropertyBag saved;
    widget.grid().WriteProperties(saved);
    EXPECT_EQ(saved.Values().keys(), QStringList(QStringLiteral("CellFont")));

    QuillgridWidget fresh;
    fresh.setFont(font);
    EXPECT_EQ(fresh.grid().CaptionFont().Size, 15);
    EXPECT_TRUE(fresh.grid().CaptionFont().Bold);
}

TEST(WidgetSurface, DatesOfTheLocaleCanBeTypedIntoALoadedForm) {
    QLocale::setDefault(QLocale(QStringLiteral("sv_SE")));
    QtForm form;
    QLocale::setDefault(QLocale(QStringLiteral("de_DE")));
    form.Grid().ReadProperties(JsonPropertyBag());
    form.Grid().Add({.Key = "d", .CellTemplate = qgctDate});
    form.Show();
    form.Type(QStringLiteral("2027-12-01"));
    form.Enter();
    EXPECT_EQ(form.Grid().RowCell(1)->Value(), Variant(DateTime{*DayFromParts(2027, 12, 1), 0}));
}

TEST(WidgetSurface, AProgramAddsItsOwnImages) {
    QuillgridWidget widget;
    const std::size_t ready = widget.grid().ImageList().ListImages().size();
    const ListedImage* first = widget.images().At(1);
    QImage red(16, 16, QImage::Format_RGB32);
    red.fill(Qt::red);
    EXPECT_TRUE(widget.images().Add("mine", QtPicture::FromImage(red), "tag"));
    EXPECT_FALSE(widget.images().Add("MINE", QtPicture::FromImage(red)));
    EXPECT_FALSE(widget.images().Add("none", nullptr));
    EXPECT_EQ(widget.grid().ImageList().ListImages().size(), ready + 1);
    EXPECT_EQ(widget.grid().ImageList().ListImages().back().Tag, Variant("tag"));
    EXPECT_EQ(widget.images().At(1), first);

    widget.resize(200, 120);
    widget.grid().Add({.Key = "a", .Value = "x"})->SetListImage("Mine");
    widget.grid().Refresh();
    const Rect value = widget.grid().ValueArea(*widget.grid().RowCell(1));
    const QImage shown = widget.grab().toImage();
    bool isRed = false;
    for (int x = value.Left; x < value.Right; ++x)
        isRed = isRed || shown.pixelColor(x, (value.Top + value.Bottom) / 2) == QColor(Qt::red);
    EXPECT_TRUE(isRed);
}

TEST(WidgetSurface, AboutIsOneWindowThatDoesNotWait) {
    QuillgridWidget widget;
    widget.grid().About();
    widget.grid().About();
    const auto windows = widget.findChildren<QDialog*>();
    ASSERT_EQ(windows.size(), 1);
    EXPECT_TRUE(windows[0]->isVisible());
    EXPECT_FALSE(windows[0]->isModal());
    QStringList texts;
    for (const QLabel* label : windows[0]->findChildren<QLabel*>())
        texts << label->text();
    EXPECT_TRUE(texts.contains(QStringLiteral("Quillgrid")));
    EXPECT_TRUE(texts.filter(QStringLiteral("MIT")).size() == 1);
    windows[0]->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(widget.findChildren<QDialog*>().size(), 0);
    widget.grid().About();
    EXPECT_EQ(widget.findChildren<QDialog*>().size(), 1);
}

/// The cursor of the edit box comes and goes.
QImage Shown(QtForm& form) {
    form.Before->setFocus();
    form.Settle();
    return form.Widget->grab().toImage();
}

// Programs dress their line edits; the one in a cell is part of the cell.
TEST(WidgetSurface, RulesForLineEditsLeaveCellsAlone) {
    QtForm form;
    form.Grid().Clear();
    form.Grid().Add({.Key = "name", .Caption = "Name", .Value = "Ulm"});
    form.Grid().Add({.Key = "word", .Caption = "Word", .Value = "secret", .CellTemplate = qgctPassword});
    form.Show();
    const QString rules = QStringLiteral(
        "QLineEdit, QLineEdit:focus { padding: 7px; border: 3px solid red; margin: 2px; font: italic 20pt;"
        "color: blue; background: yellow; min-height: 50px; selection-background-color: red }");
    for (const int row : {1, 2}) {
        form.Widget->setStyleSheet({});
        form.Widget->setFocus();
        if (row == 2) QtForm::Press(Qt::Key_Down);
        const QImage before = Shown(form);
        form.Widget->setStyleSheet(rules);
        const QImage after = Shown(form);
        EXPECT_EQ(after, before) << row;
    }
    form.Widget->setStyleSheet({});
    EXPECT_TRUE(form.Edit()->styleSheet().isEmpty());
}

} // namespace
} // namespace quillgrid::qt
