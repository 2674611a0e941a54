#include "QtForm.h"

#include <QAccessible>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <tuple>
#include <vector>

namespace quillgrid::qt {
namespace {

class Accessibility : public testing::Test {
public:
    Accessibility() {
        Quillgrid& grid = form->Grid();
        grid.Add({.Key = "name", .Caption = "&Name", .Value = "Müller"});
        grid.Add({.Key = "count", .Caption = "Count", .Value = 5, .CellTemplate = qgctSpin});
        grid.Add({.Key = "password", .Caption = "Password", .Value = "geheim", .CellTemplate = qgctPassword});
        grid.Add({.Key = "paid", .Caption = "Paid", .Value = true, .CellTemplate = qgctboolean});
        grid.Add({.Key = "greeting", .Caption = "Greeting", .CellTemplate = qgctSalutation});
        grid.Add({.Key = "date", .Caption = "Date", .Value = "3.5.2026", .CellTemplate = qgctDate});
        grid.Cells().Item("name")->SetTooltipText("As in the passport");
        grid.SetLanguage(qglgEnglish);
        form->Show();
    }

    QAccessibleInterface* Control() { return QAccessible::queryAccessibleInterface(form->Widget); }
    QAccessibleInterface* Row(const char* key) {
        QAccessibleInterface* control = Control();
        for (int index = 0; index < form->Grid().RowCount(); ++index) {
            QAccessibleInterface* row = control->child(index);
            if (row->text(QAccessible::Name).toLower() == QLatin1String(key)) return row;
        }
        return control->child(-1);
    }
    std::shared_ptr<Cell> CellOf(const char* key) { return form->Grid().Cells().Item(key); }
    static std::string Text(QAccessibleInterface* of, QAccessible::Text which) {
        return of->text(which).toStdString();
    }
    std::unique_ptr<QtForm> form = std::make_unique<QtForm>();
};

TEST_F(Accessibility, RowsSayWhatTheyAre) {
    const std::vector<std::tuple<const char*, QAccessible::Role, std::string, std::string>> expected{
        {"name", QAccessible::EditableText, "Name", "Müller"},
        {"count", QAccessible::SpinBox, "Count", "5"},
        {"password", QAccessible::EditableText, "Password", "******"},
        {"paid", QAccessible::CheckBox, "Paid", "yes"},
        {"greeting", QAccessible::ComboBox, "Greeting", CellOf("greeting")->Text()},
        {"date", QAccessible::EditableText, "Date", CellOf("date")->Text()},
    };
    EXPECT_EQ(Control()->role(), QAccessible::Form);
    for (const auto& [key, role, name, value] : expected) {
        QAccessibleInterface* row = Row(key);
        EXPECT_EQ(row->role(), role) << key;
        EXPECT_EQ(Text(row, QAccessible::Name), name);
        EXPECT_EQ(Text(row, QAccessible::Value), value);
        EXPECT_EQ(row->parent(), Control());
        EXPECT_EQ(Control()->child(Control()->indexOfChild(row)), row);
        EXPECT_EQ(Control()->childAt(row->rect().center().x(), row->rect().center().y()), row) << key;
        QAccessibleTextInterface* text = row->textInterface();
        if (text) {
            EXPECT_EQ(text->text(0, text->characterCount()).toStdString(), value);
        }
    }
    EXPECT_EQ(Text(Row("name"), QAccessible::Description), "As in the passport");
    EXPECT_EQ(Text(Row("name"), QAccessible::Accelerator), "Alt+N");
}

TEST_F(Accessibility, StatesFollowTheCell) {
    EXPECT_TRUE(Row("name")->state().focused);
    form->Edit()->setFocus();
    form->Settle();
    ASSERT_TRUE(form->Edit()->hasFocus());
    EXPECT_EQ(Control()->focusChild()->object(), form->Edit());
    EXPECT_TRUE(Row("password")->state().passwordEdit);
    EXPECT_TRUE(Row("paid")->state().checked);
    CellOf("date")->SetLocked(true);
    CellOf("count")->SetEnabled(false);
    CellOf("password")->SetDataVisible(false);
    CellOf("name")->SetAllowEmpty(false);
    form->Grid().Refresh();
    EXPECT_TRUE(Row("date")->state().readOnly);
    EXPECT_FALSE(Row("date")->state().disabled);
    EXPECT_TRUE(Row("count")->state().disabled);
    EXPECT_EQ(Row("count")->actionInterface()->actionNames().size(), 1) << "only to go there";
    EXPECT_EQ(Text(Row("password"), QAccessible::Value), "") << "what may not be seen is not read either";
    EXPECT_GT(Text(Row("name"), QAccessible::Description).size(), std::string("As in the passport").size());
}

TEST_F(Accessibility, RefusalsAreStatesUntilTheMessageGoes) {
    Row("date")->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(form->Grid().Cell(), CellOf("date").get());
    form->Cancel = true;
    form->Edit()->selectAll();
    form->Type("31.02.2026");
    form->Enter();
    EXPECT_TRUE(Row("date")->state().invalid);
    EXPECT_EQ(Text(Row("date"), QAccessible::Description), form->Widget->shownMessage().toStdString());
    EXPECT_FALSE(Row("name")->state().invalid);
    form->Cancel = false;
    form->Press(Qt::Key_Up);
    EXPECT_FALSE(Row("date")->state().invalid) << "the old value counts, and the message has gone";
}

TEST_F(Accessibility, ActionsDoWhatKeysDo) {
    using Action = QAccessibleActionInterface;
    Row("paid")->actionInterface()->doAction(Action::toggleAction());
    EXPECT_FALSE(Row("paid")->state().checked);
    Row("count")->actionInterface()->doAction(Action::increaseAction());
    EXPECT_EQ(CellOf("count")->Text(), "6");
    Row("greeting")->actionInterface()->doAction(Action::showMenuAction());
    EXPECT_TRUE(form->Grid().IsPadShown());
    form->Grid().HidePads();
    CellOf("paid")->SetLocked(true);
    Row("paid")->actionInterface()->doAction(Action::toggleAction());
    EXPECT_FALSE(Row("paid")->state().checked);
}

TEST_F(Accessibility, HeadingsFold) {
    form->Grid().AddGroup({.Key = "more", .Caption = "More"});
    form->Grid().Add({.Key = "inner", .Caption = "Inner", .Group = "more"});
    form->Grid().SetGrouped(true);
    form->Grid().SetShowGroupBox(true);
    form->Grid().Refresh();
    const int rows = form->Grid().RowCount();
    QAccessibleInterface* inner = Row("inner");
    ASSERT_TRUE(inner->isValid());
    QAccessibleInterface* heading = Control()->child(Control()->indexOfChild(inner) - 1);
    EXPECT_EQ(heading->role(), QAccessible::Heading);
    EXPECT_TRUE(heading->state().expanded);
    heading->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(heading->state().collapsed);
    EXPECT_EQ(form->Grid().RowCount(), rows - 1);
    EXPECT_FALSE(inner->isValid()) << "it has no row now";
}

TEST_F(Accessibility, HeldRowsOutliveTheirCells) {
    QAccessibleInterface* removed = Row("date");
    form->Grid().Cells().Remove("date");
    for (const bool refreshed : {false, true}) {
        if (refreshed) form->Grid().Refresh();
        (void)removed->state();
        EXPECT_NE(removed->parent(), nullptr);
    }
    EXPECT_FALSE(removed->isValid());
    EXPECT_TRUE(removed->state().invalid);
    EXPECT_EQ(Text(removed, QAccessible::Name), "");
    removed->interface_cast(QAccessible::ActionInterface);
    removed->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QAccessibleInterface* cleared = Row("name");
    form->Grid().Clear();
    EXPECT_FALSE(cleared->isValid());
    EXPECT_TRUE(cleared->rect().isNull());
    for (const int index : {-1, 0, 5, 1'000'000})
        ASSERT_NE(Control()->child(index), nullptr);
    const QAccessible::Id id = QAccessible::uniqueId(cleared);
    form.reset();
    EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr) << "the rows go with the control";
}

TEST_F(Accessibility, ManyRowsCostNothingUntilAskedFor) {
    for (int row = 0; row < 20'000; ++row)
        form->Grid().Cells().Add({.Caption = "Row"});
    form->Grid().Refresh();
    const QAccessible::Id before = QAccessible::uniqueId(Control()->child(0));
    EXPECT_GT(Control()->childCount(), 20'000);
    QAccessibleInterface* last = Control()->child(19'999);
    EXPECT_TRUE(last->state().offscreen);
    EXPECT_LT(QAccessible::uniqueId(last) - before, 100U) << "none was made for the rows between";
}

} // namespace
} // namespace quillgrid::qt
