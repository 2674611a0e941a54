#include "quillgrid/hosts/qt/ObjectBinding.h"

#include "quillgrid/hosts/qt/Conversions.h"
#include "tests/hosts/BoundForm.h"
#include "tests/hosts/Person.h"

#include <QTimeZone>

#include <gtest/gtest.h>

namespace quillgrid::qt {
namespace {

using Told = std::vector<std::string>;

class ObjectInAForm : public testing::Test {
protected:
    ObjectInAForm() {
        form.Listen(*binding);
        binding->setObject(person.get());
    }

    void AddAll() {
        binding->addCells();
        form.Show();
        form.TakeTold();
    }

    BoundForm form;
    std::unique_ptr<Person> person = std::make_unique<Person>();
    std::unique_ptr<ObjectBinding> binding = std::make_unique<ObjectBinding>(form.Widget);
};

TEST_F(ObjectInAForm, MakesCellsThatSuitTheProperties) {
    AddAll();
    struct Row {
        const char* Key;
        const char* Caption;
        CellTemplateConstants Template;
        bool Locked = false;
        bool AllowEmpty = false;
    };
    const Row rows[] = {
        {"name", "Name", qgctNone, false, true},
        {"isMember", "Is member", qgctboolean},
        {"quota", "Quota", qgctInteger},
        {"number", "Number", qgctNumber},
        {"birthDate", "Birth date", qgctDate, false, true},
        {"lastSeen", "Last seen", qgctNone, false, true},
        {"favourite", "Favourite", qgctColor, false, true},
        {"homeURL", "Home URL", qgctNone, false, true},
        {"mood", "Mood", qgctlist},
        {"rank", "Rank", qgctInteger, false, true},
        {"origin", "Origin", qgctNone, true, true},
    };
    for (const Row& row : rows) {
        const Cell& cell = form.At(row.Key);
        EXPECT_EQ(cell.Caption(), row.Caption);
        EXPECT_EQ(cell.Template(), row.Template) << row.Key;
        EXPECT_EQ(cell.Locked(), row.Locked) << row.Key;
        EXPECT_EQ(cell.AllowEmpty(), row.AllowEmpty) << row.Key;
    }
    EXPECT_EQ(form.At("mood").Listitems().Item(2)->Text(), "Very good");
    EXPECT_FALSE(form.Grid().Cells().Find("friendOf"));
    EXPECT_FALSE(form.Grid().Cells().Find("objectName"));
    EXPECT_EQ(form.Grid().Cells().Count(), binding->mappedCells().size());
}

TEST_F(ObjectInAForm, EveryTypeGoesToItsCellAndBack) {
    AddAll();
    struct Row {
        const char* Property;
        QVariant Outside;
        const char* Shown;
        Variant Typed;
        QVariant Written;
    };
    const QDateTime seen({2024, 2, 29}, {13, 5, 7, 250}, QTimeZone("America/New_York"));
    const std::string seenHere =
        FromQString(QLocale::c().toString(seen.toLocalTime(), u"dd.MM.yyyy HH:mm:ss"));
    const Row rows[] = {
        {"name", QStringLiteral("Müller"), "Müller", "Ada", QStringLiteral("Ada")},
        {"name", QStringLiteral("Ada"), "Ada", Variant::Null(), QString()},
        {"name", QString(200, u'x'), nullptr, "y", QStringLiteral("y")},
        {"age", 17, "17", 18, 18},
        {"isMember", true, "ja", false, false},
        {"height", 1.75, "1,75", "1,8", 1.8},
        {"height", 1e300, nullptr, 2.5, 2.5},
        {"weight", 0.1F, "0,1", "0,3", 0.3F},
        {"quota", short{-5}, "-5", 32767, short{32767}},
        {"number", -6'000'000'000LL, "-6000000000", 5'000'000'000.0, 5'000'000'000LL},
        {"serial", qulonglong{18}, "18", 19.0, 19ULL},
        {"birthDate", QDate(1815, 12, 10), "10.12.1815", "1.2.1900", QDate(1900, 2, 1)},
        {"birthDate", QDate(1815, 12, 10), "10.12.1815", Variant::Null(), QDate()},
        {"risesAt", QTime(6, 30, 15), "06:30:15", "7:00", QTime(7, 0)},
        {"lastSeen", seen, seenHere.c_str(), "1.3.2024 08:00:00",
         QDateTime({2024, 3, 1}, {8, 0}).toTimeZone(QTimeZone("America/New_York"))},
        {"favourite", QColor(Qt::red), nullptr, static_cast<std::int32_t>(Rgb(0, 0, 255)), QColor(0, 0, 255)},
        {"favourite", QColor(1, 2, 3, 40), "#010203", static_cast<std::int32_t>(Rgb(0, 0, 255)),
         QColor(0, 0, 255, 40)},
        {"homeURL", QUrl(QStringLiteral("https://a.b/")), "https://a.b/", "c:d", QUrl(QStringLiteral("c:d"))},
        {"mood", Person::VeryGood, "Very good", 3, QVariant::fromValue(Person::Calm)},
        {"rights", QVariant::fromValue(Person::Rights(Person::Read | Person::Write)), "Read|Write", "Write",
         QVariant::fromValue(Person::Rights(Person::Write))},
        {"rank", 4, "4", Variant::Null(), -1},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.Property);
        ASSERT_TRUE(person->setProperty(row.Property, row.Outside));
        binding->revert();
        EXPECT_EQ(form.TextAt(row.Property), row.Shown ? row.Shown : form.TextAt(row.Property));
        EXPECT_FALSE(binding->isDirty());
        form.At(row.Property).SetValue(row.Typed);
        EXPECT_TRUE(binding->isDirty(QString::fromLatin1(row.Property)));
        EXPECT_TRUE(binding->submit());
        EXPECT_EQ(person->property(row.Property), row.Written)
            << qPrintable(person->property(row.Property).toString());
        EXPECT_FALSE(binding->isDirty());
        for (const std::string& said : form.TakeTold())
            EXPECT_TRUE(said == "dirty" || said == "clean") << said;
    }
}

TEST_F(ObjectInAForm, WhatCellsCannotShowStaysInTheObject) {
    form.Grid().Add({.Key = "short", .CellTemplate = qgctNone})->SetMaxLength(3);
    form.Grid().Add({.Key = "early", .CellTemplate = qgctDate})->SetValue(DateTime{1000, 0});
    form.Grid().Add({.Key = "amount", .CellTemplate = qgctCurrency});
    form.Grid().Add({.Key = "list", .CellTemplate = qgctlist})->Listitems().Add({.Text = "a"});
    form.Grid().Add({.Key = "count", .CellTemplate = qgctInteger});
    form.Grid().Add({.Key = "day", .CellTemplate = qgctDate});
    person->Name = QStringLiteral("12.5 m");
    person->BirthDate = QDate(20000, 1, 1);
    person->Height = 1.23456;
    person->LastSeen = QDateTime({2024, 2, 29}, {13, 5});
    binding->addMapping(QStringLiteral("short"), QStringLiteral("name"));
    binding->addMapping(QStringLiteral("early"), QStringLiteral("birthDate"));
    binding->addMapping(QStringLiteral("amount"), QStringLiteral("height"));
    binding->addMapping(QStringLiteral("list"), QStringLiteral("name"));
    binding->addMapping(QStringLiteral("count"), QStringLiteral("name"));
    binding->addMapping(QStringLiteral("day"), QStringLiteral("lastSeen"));
    person->Number = 9'007'199'254'740'993; // one more than doubles count
    binding->addCells({QStringLiteral("number")});
    EXPECT_EQ(form.TakeTold(),
              (Told{"NotShown short 12.", "NotShown early ", "NotShown amount " + form.TextAt("amount"),
                    "NotShown list ", "NotShown count ", "NotShown number 9007199254740992"}));
    EXPECT_FALSE(binding->isDirty());
    EXPECT_TRUE(binding->submit());
    EXPECT_EQ(person->Name, QStringLiteral("12.5 m"));
    EXPECT_EQ(person->Height, 1.23456);
    EXPECT_EQ(person->Number, 9'007'199'254'740'993);
    form.At("day").SetText("1.3.2024");
    EXPECT_TRUE(binding->submit());
    EXPECT_EQ(person->LastSeen, QDateTime({2024, 3, 1}, {13, 5})); // the time that the cell does not show
}

TEST_F(ObjectInAForm, TypedInputIsWrittenAtOnceAndChangesOfTheObjectShow) {
    AddAll();
    form.EnterAt("age", QStringLiteral("150"));
    EXPECT_EQ(person->age(), 120);
    EXPECT_EQ(form.TextAt("age"), "120"); // as the object made of it
    EXPECT_EQ(person->Writes, 1);
    EXPECT_EQ(form.TakeTold(), (Told{"dirty", "clean"}));
    person->setProperty("name", QStringLiteral("Ada"));
    person->setProperty("mood", Person::VeryGood);
    EXPECT_EQ(form.TextAt("name"), "Ada");
    EXPECT_EQ(form.TextAt("mood"), "Very good");
    EXPECT_EQ(person->Writes, 1);
    EXPECT_TRUE(form.Told.empty());
}

TEST_F(ObjectInAForm, AChoiceThatIsTakenBackIsTakenBackInTheObjectToo) {
    AddAll();
    form.At("mood").SetFocus();
    form.Settle();
    form.Type(QStringLiteral("v"));
    EXPECT_EQ(person->MoodNow, Person::VeryGood);
    BoundForm::Escape();
    EXPECT_EQ(form.TextAt("mood"), "Calm");
    EXPECT_EQ(person->MoodNow, Person::Calm);
}

TEST_F(ObjectInAForm, AChangeUnderTypingIsAConflictThatTheUserDecides) {
    AddAll();
    form.TypeAt("name", QStringLiteral("mine"));
    EXPECT_TRUE(binding->isDirty());
    person->setProperty("name", QStringLiteral("theirs"));
    EXPECT_EQ(form.Edit()->text(), QStringLiteral("mine"));
    EXPECT_EQ(form.TakeTold(), (Told{"dirty", "conflict name"}));
    BoundForm::Escape();
    form.Settle();
    EXPECT_EQ(form.TextAt("name"), "theirs");
    EXPECT_EQ(form.Edit()->text(), QStringLiteral("theirs"));
    EXPECT_EQ(form.TakeTold(), Told{"clean"});
    form.TypeAt("name", QStringLiteral("mine"));
    person->setProperty("name", QStringLiteral("others"));
    EXPECT_TRUE(binding->commitPending());
    EXPECT_EQ(person->Name, QStringLiteral("mine"));
    EXPECT_EQ(form.TextAt("name"), "mine");
    EXPECT_FALSE(binding->isDirty());
}

TEST_F(ObjectInAForm, ManualInputWaitsForSubmit) {
    binding->setSubmitPolicy(FormBinding::ManualSubmit);
    AddAll();
    form.EnterAt("name", QStringLiteral("Ada"));
    form.TypeAt("age", QStringLiteral("36"));
    EXPECT_TRUE(binding->commitPending());
    EXPECT_EQ(person->Name, QString());
    EXPECT_TRUE(binding->isDirty());
    Person other;
    EXPECT_FALSE(binding->setObject(&other));
    EXPECT_EQ(binding->object(), person.get());
    person->setProperty("name", QStringLiteral("theirs"));
    EXPECT_EQ(form.TextAt("name"), "Ada");
    EXPECT_TRUE(binding->submit());
    EXPECT_EQ(person->Name, QStringLiteral("Ada"));
    EXPECT_EQ(person->age(), 36);
    EXPECT_EQ(form.TakeTold(), (Told{"dirty", "conflict name", "clean"}));
    form.TypeAt("age", QStringLiteral("99"));
    binding->revert();
    EXPECT_EQ(form.Edit()->text(), QStringLiteral("36"));
    EXPECT_FALSE(binding->isDirty());
    EXPECT_TRUE(binding->setObject(&other));
    EXPECT_EQ(form.TextAt("name"), "");
    EXPECT_TRUE(binding->setObject(nullptr));
}

TEST_F(ObjectInAForm, RefusalsAreTold) {
    form.Grid().Add({.Key = "origin"});
    form.Grid().Add({.Key = "stubborn"});
    form.Grid().Add({.Key = "quota"});
    for (const char* name : {"origin", "stubborn", "quota"})
        binding->addMapping(QString::fromLatin1(name), QString::fromLatin1(name));
    form.Show();
    struct Row {
        const char* Key;
        const char* Input;
        const char* Told;
        const char* Kept;
    };
    const Row rows[] = {{"origin", "Rome", "ReadOnly origin Rome", "Ulm"},
                        {"stubborn", "yes", "NotTaken stubborn yes", "no"},
                        {"quota", "40000", "NotConverted quota 40000", "0"},
                        {"quota", "1,5", "NotConverted quota 1,5", "0"},
                        {"quota", "", "NotConverted quota ", "0"}};
    for (const Row& row : rows) {
        form.At(row.Key).SetText(row.Input);
        EXPECT_FALSE(binding->submit());
        EXPECT_EQ(form.TakeTold(), Told{row.Told});
        EXPECT_EQ(form.TextAt(row.Key), row.Kept);
        EXPECT_TRUE(binding->submit());
    }
    form.TypeAt("stubborn", QStringLiteral("yes"));
    EXPECT_FALSE(binding->commitPending()); // refused while the typed text is taken over
    form.TakeTold();
    binding->setSubmitPolicy(FormBinding::ManualSubmit);
    form.At("quota").SetText("40000");
    EXPECT_FALSE(binding->submit());
    EXPECT_EQ(form.TextAt("quota"), "40000"); // to be mended
    EXPECT_TRUE(binding->isDirty());
}

TEST_F(ObjectInAForm, WithoutAnObjectCellsAreEmptyAndLocked) {
    AddAll();
    person->setProperty("name", QStringLiteral("Ada"));
    form.TypeAt("age", QStringLiteral("7"));
    person.reset();
    EXPECT_EQ(form.TakeTold(), (Told{"dirty", "SourceGone age 7", "clean"}));
    EXPECT_EQ(form.TextAt("name") + form.TextAt("isMember") + form.TextAt("mood"), "");
    EXPECT_EQ(form.Edit()->text(), QString());
    EXPECT_TRUE(form.At("name").Locked());
    EXPECT_TRUE(binding->submit());
    Person other;
    EXPECT_TRUE(binding->setObject(&other));
    EXPECT_FALSE(form.At("name").Locked());
    EXPECT_TRUE(form.At("origin").Locked());
    binding.reset();
    EXPECT_FALSE(form.At("origin").Locked());
}

TEST_F(ObjectInAForm, CellsMayComeAndGo) {
    person->Name = QStringLiteral("Ada");
    binding->addMapping(QStringLiteral("late"), QStringLiteral("name"));
    EXPECT_FALSE(binding->isDirty());
    form.Grid().Add({.Key = "late"});
    form.Grid().Add({.Key = "other"});
    form.Show();
    form.At("other").SetFocus();
    form.At("late").SetFocus(); // before anything can be typed into it
    EXPECT_EQ(form.TextAt("late"), "Ada");
    form.Grid().Cells().Remove("late");
    form.Grid().Add({.Key = "late", .Value = "old"});
    EXPECT_TRUE(binding->submit());
    EXPECT_EQ(person->Name, QStringLiteral("Ada"));
    person->setProperty("name", QStringLiteral("Eva"));
    EXPECT_EQ(form.TextAt("late"), "Eva");
    form.Grid().Clear();
    person->setProperty("name", QStringLiteral("Ida"));
    EXPECT_FALSE(binding->isDirty());
}

TEST(ObjectBinding, AFormTakesItsBindingAlong) {
    Person person;
    const auto form = std::make_unique<QuillgridWidget>();
    auto* binding = new ObjectBinding(form.get(), form.get());
    binding->setObject(&person);
    binding->addCells();
    EXPECT_TRUE(form->grid().Cells().Item("origin")->Locked());
}

/// Everything may end while any signal is on its way.
TEST(ObjectBinding, AnyoneMayEndAnyTime) {
    enum Victim { TheForm, TheBinding, TheObject, TheCells };
    enum Moment { AtChange, AtNotify, AtRefused, AtDirty, AtShown };
    for (const int victim : {TheForm, TheBinding, TheObject, TheCells}) {
        for (const int moment : {AtChange, AtNotify, AtRefused, AtDirty, AtShown}) {
            SCOPED_TRACE(victim * 10 + moment);
            auto form = std::make_unique<BoundForm>();
            QPointer<Person> person = new Person;
            QPointer<ObjectBinding> binding = new ObjectBinding(form->Widget);
            QPointer<QuillgridWidget> widget = form->Widget;
            binding->setObject(person);
            binding->addCells({QStringLiteral("age"), QStringLiteral("stubborn"), QStringLiteral("name")});
            form->Show();
            int ends = 0;
            const auto end = [&] {
                ++ends;
                if (victim == TheForm) delete widget;
                if (victim == TheBinding) delete binding;
                if (victim == TheObject) delete person;
                if (victim == TheCells && widget) widget->grid().Clear();
            };
            if (moment == AtChange) QObject::connect(widget, &QuillgridWidget::change, qApp, end);
            if (moment == AtNotify) QObject::connect(person, &Person::ageChanged, qApp, end);
            if (moment == AtRefused || moment == AtShown)
                QObject::connect(binding, &FormBinding::refused, qApp, end);
            if (moment == AtDirty) QObject::connect(binding, &FormBinding::dirtyChanged, qApp, end);
            if (moment == AtShown) {
                person->Name = QString(40'000, u'x');
                binding->revert();
            } else {
                form->EnterAt(moment == AtRefused ? "stubborn" : "age", QStringLiteral("5"));
            }
            EXPECT_GE(ends, 1);
            QApplication::processEvents();
            EXPECT_EQ(binding && binding->submit(), binding && widget);
            if (binding) binding->revert();
            delete person;
            delete binding;
            if (widget) form->Grid().Refresh();
        }
    }
}

} // namespace
} // namespace quillgrid::qt
