#include "examples/property_sheet/PropertySheet.h"

#include <QApplication>
#include <QKeyEvent>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace quillgrid::example {
namespace {

class SheetOfAForm : public testing::Test {
protected:
    SheetOfAForm() {
        form.grid().Add({.Key = "a", .Value = "1"});
        form.grid().Update();
        sheet = new PropertySheet(form);
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(sheet);
        window.resize(400, 500);
        window.show();
        window.activateWindow();
        sheet->setFocus();
        QApplication::processEvents();
    }

    Cell& Row(const char* property) { return *sheet->grid().Cells().Item(property); }
    static void Press(int key, const QString& text = {}) {
        for (const QEvent::Type type : {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier, text);
            if (QWidget* focus = QApplication::focusWidget()) QApplication::sendEvent(focus, &event);
        }
    }
    void Type(const char* property, const char* text) {
        Row(property).SetFocus();
        for (const char* one = text; *one; ++one)
            Press(*one, QString(QLatin1Char(*one)));
        Press(Qt::Key_Return, QStringLiteral("\r"));
    }

    qt::QuillgridWidget form;
    QWidget window;
    PropertySheet* sheet = nullptr;
};

TEST_F(SheetOfAForm, EveryPropertyHasARowWithItsValue) {
    Properties& properties = form.grid().Properties();
    int rows = 0;
    for (const auto& property : properties) {
        const auto cell = sheet->grid().Cells().Find(property->Key());
        ASSERT_TRUE(cell) << property->Key();
        ++rows;
        const Variant value = properties.Item(property->Key())->Value();
        EXPECT_TRUE(EqualAsText(cell->Value(), value) ||
                    value == Variant(cell->Value() == Variant(std::int16_t{-1})))
            << property->Key() << " " << cell->Text() << " for " << value.ToPlainText();
        EXPECT_EQ(cell->Text().empty(), value == Variant("")) << property->Key();
    }
    EXPECT_EQ(rows, 51);
}

TEST_F(SheetOfAForm, WhatIsTypedIsSetAndShownAsTheFormHoldsIt) {
    Type("BorderWidth", "12");
    EXPECT_EQ(form.grid().BorderWidth(), 12);
    Type("Caption", "New");
    EXPECT_EQ(form.grid().Caption(), "New");
    Type("DateSeparators", "-");
    EXPECT_EQ(form.grid().DateSeparators(), "./-");
    EXPECT_EQ(Row("DateSeparators").Text(), "./-");
    Type("ShowTips", " ");
    EXPECT_TRUE(form.grid().ShowTips());
    EXPECT_EQ(form.grid().Cells().Count(), 1);
}

TEST_F(SheetOfAForm, TextsCanBeEmptied) {
    form.grid().SetCaption("Old");
    Row("Caption").SetFocus();
    Press(Qt::Key_Delete);
    Press(Qt::Key_Return, QStringLiteral("\r"));
    EXPECT_EQ(form.grid().Caption(), "");
}

TEST_F(SheetOfAForm, ChangesElsewhereShow) {
    form.grid().SetBevelWidth(500);
    EXPECT_EQ(Row("BevelWidth").Text(), "99");
    form.grid().SetStyle(qgstDefault);
    EXPECT_EQ(Row("Style").Text(), "Form");
    form.grid().SetCellBackColor(Rgb(255, 250, 225));
    EXPECT_EQ(Row("CellBackColor").Text(), "Ivory");
    form.grid().SetFont({"Serif", 12});
    form.grid().SetUseSystemColors(false);
    EXPECT_EQ(Row("UseSystemColors").Text(), "no");
}

} // namespace
} // namespace quillgrid::example
