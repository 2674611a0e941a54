// What a screen reader finds in the pads, and that it may hold on to what has gone.
#include "QtForm.h"

#include "quillgrid/hosts/qt/CalculatorWidget.h"
#include "quillgrid/hosts/qt/CalendarWidget.h"

#include <QAccessible>
#include <QLocale>
#include <QMenu>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace quillgrid::qt {
namespace {

using Action = QAccessibleActionInterface;
using Names = std::vector<std::string>;

std::string Name(const QAccessibleInterface* of) {
    return of->text(QAccessible::Name).toStdString();
}

void Do(QAccessibleInterface* with, const QString& action) {
    ASSERT_NE(with->actionInterface(), nullptr);
    with->actionInterface()->doAction(action);
}

/// Whatever a reader may ask of an object must have an answer, and lead back where it came from.
int Walk(QAccessibleInterface* from, int depth = 0) {
    EXPECT_LT(depth, 6);
    int seen = 1;
    (void)from->state();
    (void)from->rect();
    for (int index = 0; index < from->childCount(); ++index) {
        QAccessibleInterface* child = from->child(index);
        if (!child) {
            ADD_FAILURE() << "null child " << index << " of " << Name(from);
            continue;
        }
        EXPECT_TRUE(child->isValid()) << Name(from) << " " << index;
        EXPECT_EQ(child->parent(), from) << Name(child);
        EXPECT_EQ(from->indexOfChild(child), index) << Name(child);
        EXPECT_FALSE(Name(child).empty()) << index << " of " << Name(from);
        seen += Walk(child, depth + 1);
    }
    EXPECT_NE(from->child(-1), from);
    EXPECT_EQ(from->indexOfChild(nullptr), -1);
    return seen;
}

class PadAccessibility : public testing::Test {
public:
    PadAccessibility() {
        form->Widget->setLocale(QLocale(QLocale::English, QLocale::UnitedKingdom));
        Quillgrid& grid = form->Grid();
        const auto fruit = grid.Add({.Key = "fruit", .Caption = "Fruit", .CellTemplate = qgctlist});
        fruit->Listitems().Clear();
        for (int entry = 0; entry < 40; ++entry)
            fruit->Listitems().Add({.Text = "Fruit " + std::to_string(entry)});
        fruit->SetListIndex(3);
        grid.Add({.Key = "due",
                  .Caption = "Due",
                  .Value = Variant(DateTime{46145, 0}),
                  .CellTemplate = qgctDate})
            ->SetButton(qgbtClock);
        grid.Add({.Key = "price",
                  .Caption = "Price",
                  .Value = Variant(*Currency::FromDecimal("12.5")),
                  .CellTemplate = qgctCurrency})
            ->SetButton(qgbtCalc);
        form->Show();
    }
    QAccessibleInterface* Row(const char* key) {
        const Cell& cell = *form->Grid().Cells().Item(key);
        return QAccessible::queryAccessibleInterface(form->Widget)->child(cell.Index() - 1);
    }
    /// By the row's own action.
    QAccessibleInterface* Open(const char* key) {
        Do(Row(key), Action::showMenuAction());
        form->Settle();
        EXPECT_EQ(Row(key)->childCount(), 1) << key;
        return Row(key)->child(0);
    }
    QAccessibleInterface* Focus() {
        return QAccessible::queryAccessibleInterface(form->Widget)->focusChild();
    }
    std::string Text(const char* key) { return form->Grid().Cells().Item(key)->Text(); }

    std::unique_ptr<QtForm> form = std::make_unique<QtForm>();
};

TEST_F(PadAccessibility, EveryPadHangsFromItsRowAndCanBeWalkedThrough) {
    struct {
        const char* Key;
        QAccessible::Role Role;
        const char* Name;
        const char* Value;
        int Objects;
    } const pads[] = {
        {"fruit", QAccessible::List, "Fruit", "Fruit 2", 41},
        {"due", QAccessible::Grouping, "May 2026", "Sunday, 3 May 2026", 1 + 8 + 42},
        {"price", QAccessible::Grouping, "Calculator", "12.5", 1 + 1 + 23},
    };
    for (const auto& [key, role, name, value, objects] : pads) {
        EXPECT_EQ(Row(key)->childCount(), 0);
        EXPECT_TRUE(Row(key)->state().collapsed) << key;
        QAccessibleInterface* pad = Open(key);
        EXPECT_TRUE(Row(key)->state().expanded) << key;
        EXPECT_EQ(pad->parent(), Row(key));
        EXPECT_EQ(pad->role(), role);
        EXPECT_EQ(Name(pad), name);
        EXPECT_EQ(pad->text(QAccessible::Value).toStdString(), value);
        EXPECT_EQ(Walk(pad), objects);
        EXPECT_EQ(Focus(), pad->focusChild());
        EXPECT_TRUE(Focus()->state().focused) << key;
        const QRect focus = Focus()->rect();
        QAccessibleInterface* under = pad->childAt(focus.center().x(), focus.center().y());
        while (under && under->childAt(focus.center().x(), focus.center().y()))
            under = under->childAt(focus.center().x(), focus.center().y());
        EXPECT_EQ(under, Focus()) << key;
        form->Press(Qt::Key_F4);
        EXPECT_FALSE(Row(key)->state().expanded);
        EXPECT_EQ(Row(key)->indexOfChild(pad), -1);
    }
}

TEST_F(PadAccessibility, EntriesAreChosenInViewOrOut) {
    QAccessibleInterface* list = Open("fruit");
    EXPECT_EQ(list->focusChild(), list->child(2));
    QAccessibleInterface* last = list->child(39);
    EXPECT_TRUE(last->state().offscreen);
    EXPECT_FALSE(last->state().selected);
    Do(last, Action::setFocusAction());
    EXPECT_TRUE(last->state().selected);
    EXPECT_FALSE(last->state().offscreen);
    EXPECT_TRUE(form->Grid().IsPadShown()) << "still to be confirmed";
    QAccessibleInterface* tenth = list->child(9);
    Do(tenth, Action::pressAction());
    EXPECT_EQ(Text("fruit"), "Fruit 9");
    EXPECT_FALSE(form->Grid().IsPadShown());
    EXPECT_FALSE(tenth->isValid());
    Do(tenth, Action::pressAction());
    EXPECT_EQ(list->childCount(), 0);
    EXPECT_FALSE(list->child(0)->isValid()) << "never null, also when asked too late";
    Open("fruit");
    EXPECT_TRUE(tenth->state().selected);
}

TEST_F(PadAccessibility, DaysAreATableWithHolidaysAndAPressPicksOne) {
    form->Grid().SetAutoHolidays(qgahdGermany);
    QAccessibleInterface* pad = Open("due");
    QAccessibleInterface* month = pad->child(6);
    QAccessibleTableInterface* table = month->tableInterface();
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->rowCount() * table->columnCount(), month->childCount());
    ASSERT_EQ(table->selectedCellCount(), 1);
    QAccessibleInterface* selected = table->selectedCells().first();
    EXPECT_EQ(Name(selected), "Sunday, 3 May 2026");
    QAccessibleTableCellInterface* cell = selected->tableCellInterface();
    EXPECT_EQ(table->cellAt(cell->rowIndex(), cell->columnIndex()), selected);
    EXPECT_EQ(cell->table(), month);
    EXPECT_EQ(table->columnDescription(cell->columnIndex()).toStdString(), "Sunday");
    EXPECT_EQ(table->rowDescription(1).toStdString().substr(0, 5), "Week ");
    for (const int wrong : {-1, 6, 7, 1'000'000})
        EXPECT_FALSE(table->cellAt(wrong, wrong)->isValid());
    Names holidays;
    for (int index = 0; index < month->childCount(); ++index) {
        const QString holiday = month->child(index)->text(QAccessible::Description);
        if (!holiday.isEmpty()) holidays.push_back(Name(month->child(index)));
    }
    EXPECT_EQ(holidays.front(), "Friday, 1 May 2026");
    const auto press = [&](int part) { Do(pad->child(part), Action::pressAction()); };
    press(1);
    EXPECT_EQ(Name(pad), "June 2026");
    press(0);
    press(4);
    EXPECT_EQ(Name(pad), "May 2025");
    press(5);
    press(2);
    EXPECT_FALSE(form->Window().findChildren<QMenu*>().isEmpty() && !QApplication::activePopupWidget());
    if (QWidget* menu = QApplication::activePopupWidget()) menu->close();
    const QString first = month->child(11)->text(QAccessible::Name);
    Do(month->child(11), Action::pressAction());
    EXPECT_FALSE(form->Grid().IsPadShown());
    EXPECT_FALSE(month->isValid());
    EXPECT_EQ(table->rowCount(), 0);
    EXPECT_FALSE(table->cellAt(0, 0)->isValid());
    const Variant taken = form->Grid().Cells().Item("due")->Value();
    const auto* day = taken.Get<DateTime>();
    ASSERT_TRUE(day);
    EXPECT_EQ(QLocale(QLocale::English, QLocale::UnitedKingdom)
                  .toString(QDate(1899, 12, 30).addDays(day->Day), QLocale::LongFormat),
              first);
}

TEST_F(PadAccessibility, DaysThatMayNotBePickedAreDisabled) {
    form->Grid().Cells().Item("due")->SetAllowSunday(false);
    QAccessibleInterface* month = Open("due")->child(6);
    int disabled = 0;
    for (int index = 0; index < month->childCount(); ++index) {
        QAccessibleInterface* day = month->child(index);
        if (!day->state().disabled) continue;
        ++disabled;
        EXPECT_EQ(Name(day).substr(0, 6), "Sunday");
        Do(day, Action::pressAction());
        ASSERT_TRUE(form->Grid().IsPadShown());
    }
    EXPECT_EQ(disabled, 6);
}

TEST_F(PadAccessibility, TheCalculatorComputesByItsButtons) {
    QAccessibleInterface* pad = Open("price");
    Names names;
    for (int index = 1; index < pad->childCount(); ++index) {
        EXPECT_EQ(pad->child(index)->role(), QAccessible::Button);
        EXPECT_FALSE(
            pad->child(index)->actionInterface()->keyBindingsForAction(Action::pressAction()).isEmpty());
        names.push_back(Name(pad->child(index)));
    }
    EXPECT_EQ(names, (Names{"7",
                            "8",
                            "9",
                            "divided by",
                            "clear",
                            "4",
                            "5",
                            "6",
                            "times",
                            "delete last digit",
                            "1",
                            "2",
                            "3",
                            "minus",
                            "equals",
                            "0",
                            "decimal point",
                            "change sign",
                            "plus",
                            "F5 Euro/DM",
                            "F6 DM/Euro",
                            "F7 Netto",
                            "F8 Brutto"}));
    const auto press = [&](const char* name) {
        for (int index = 1; index < pad->childCount(); ++index)
            if (Name(pad->child(index)) == name) return Do(pad->child(index), Action::pressAction());
        FAIL() << name;
    };
    for (const char* key : {"clear", "7", "change sign", "times", "6", "equals"})
        press(key);
    QAccessibleInterface* display = pad->child(0);
    EXPECT_EQ(Name(display), "-42");
    EXPECT_EQ(pad->text(QAccessible::Value), display->text(QAccessible::Name));
    EXPECT_EQ(pad->focusChild(), display);
    press("equals");
    EXPECT_FALSE(form->Grid().IsPadShown());
    EXPECT_EQ(Name(display), "") << "it has gone";
    EXPECT_EQ(form->Grid().Cells().Item("price")->Value(), Variant(*Currency::FromDecimal("-42")));
}

TEST_F(PadAccessibility, HeldPartsOutliveTheirCellAndGoWithTheControl) {
    std::vector<QAccessibleInterface*> held;
    for (const char* key : {"fruit", "due", "price"}) {
        QAccessibleInterface* pad = Open(key);
        held.insert(held.end(), {pad, pad->child(1), pad->child(6)});
        form->Grid().Cells().Remove(key);
        for (const bool refreshed : {false, true}) {
            if (refreshed) form->Grid().Refresh();
            for (QAccessibleInterface* one : held) {
                (void)one->state();
                (void)one->rect();
                (void)one->text(QAccessible::Name);
                EXPECT_EQ(one->childCount(), 0);
                EXPECT_NE(one->parent(), nullptr);
                EXPECT_NE(one->child(0), nullptr);
            }
        }
        EXPECT_FALSE(held.back()->isValid());
        EXPECT_TRUE(held.back()->state().invalid);
        EXPECT_TRUE(held.back()->actionInterface()->actionNames().isEmpty());
    }
    std::vector<QAccessible::Id> ids;
    for (QAccessibleInterface* one : held)
        ids.push_back(QAccessible::uniqueId(one));
    form.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    for (const QAccessible::Id id : ids)
        EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
}

TEST_F(PadAccessibility, AHandlerMayEndTheControlInTheMidstOfAPress) {
    QAccessibleInterface* list = Open("fruit");
    QObject::connect(form->Widget, &QuillgridWidget::change, form->Widget, [this] {
        delete form->Widget;
        form->Widget = nullptr;
    });
    Do(list->child(5), Action::pressAction());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(form->Widget, nullptr);
}

TEST_F(PadAccessibility, LongListsCostNothingUntilAskedFor) {
    auto& items = form->Grid().Cells().Item("fruit")->Listitems();
    for (int entry = 0; entry < 50'000; ++entry)
        items.Add({.Text = "more"});
    QAccessibleInterface* list = Open("fruit");
    EXPECT_EQ(list->childCount(), 50'040);
    const QAccessible::Id before = QAccessible::uniqueId(list->child(0));
    EXPECT_LT(QAccessible::uniqueId(list->child(50'000)) - before, 10U);
}

TEST(StandAlonePads, AreWhatIsInThemAndShowTheFocus) {
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* calendar = new CalendarWidget;
    auto* calculator = new CalculatorWidget;
    layout->addWidget(calendar);
    layout->addWidget(calculator);
    calendar->setLocale(QLocale(QLocale::English, QLocale::UnitedKingdom));
    calculator->setLocale(calendar->locale());
    calendar->setCurrentDate({2026, 5, 3});
    window.show();
    window.activateWindow();
    calendar->setFocus();
    QApplication::processEvents();
    QAccessibleInterface* month = QAccessible::queryAccessibleInterface(calendar);
    EXPECT_EQ(Walk(month), 51);
    EXPECT_EQ(Name(month), "May 2026");
    ASSERT_NE(month->focusChild(), nullptr);
    EXPECT_EQ(Name(month->focusChild()), "Sunday, 3 May 2026");
    int picked = 0;
    QObject::connect(calendar, &CalendarWidget::dateClick, calendar, [&] { ++picked; });
    Do(month->child(6)->child(20), Action::pressAction());
    EXPECT_EQ(picked, 1);
    QAccessibleInterface* sums = QAccessible::queryAccessibleInterface(calculator);
    EXPECT_EQ(Walk(sums), 25);
    EXPECT_EQ(sums->focusChild(), nullptr) << "the keys are at the calendar";
    const auto edgeOf = [](QWidget* of) { return of->grab().toImage().pixelColor(of->width() / 2, 0); };
    const QColor mark = window.palette().color(QPalette::Active, QPalette::Highlight);
    EXPECT_EQ(edgeOf(calendar), mark);
    EXPECT_NE(edgeOf(calculator), mark);
    calculator->setFocus();
    QApplication::processEvents();
    EXPECT_EQ(edgeOf(calculator), mark);
    EXPECT_NE(edgeOf(calendar), mark);
    EXPECT_EQ(Name(sums->focusChild()), "0");
    calendar->setEnabled(false);
    EXPECT_TRUE(month->child(6)->child(20)->state().disabled);
    QObject::connect(calculator, &CalculatorWidget::valueChange, calculator, [&] { delete calculator; });
    const QPointer<QWidget> alive(calculator);
    Do(sums->child(1), Action::pressAction());
    EXPECT_TRUE(alive.isNull());
}

} // namespace
} // namespace quillgrid::qt
