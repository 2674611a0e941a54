// The saved properties as Qt's, over whatever list of them the meta object has.
#include "QtForm.h"

#include "quillgrid/hosts/qt/CalendarWidget.h"
#include "quillgrid/hosts/qt/JsonPropertyBag.h"

#include <QMetaProperty>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace quillgrid::qt {
namespace {

QJsonObject Saved(const QuillgridWidget& form) {
    JsonPropertyBag bag;
    form.grid().WriteProperties(bag);
    return bag.Values();
}
QJsonObject Saved(const CalendarWidget& calendar) {
    JsonPropertyBag bag;
    calendar.pad().WriteProperties(bag);
    return bag.Values();
}

QVariant AnotherEnumerator(const QMetaEnum& list, int now) {
    for (int i = 0; i < list.keyCount(); ++i) {
        if (list.value(i) != now) return list.value(i);
    }
    return {};
}

QVariant Another(const QMetaProperty& property, const QVariant& now) {
    if (property.isEnumType()) return AnotherEnumerator(property.enumerator(), now.toInt());
    switch (now.typeId()) {
    case QMetaType::Bool: return !now.toBool();
    case QMetaType::Int: return now.toInt() + 3;
    case QMetaType::QString: return QString(QStringLiteral("x") + now.toString());
    case QMetaType::QColor: return QColor(1, 2, 3);
    case QMetaType::QDate: return now.toDate().addDays(now.toDate().year() > 9000 ? -40 : 40);
    case QMetaType::QFont: {
        auto font = now.value<QFont>();
        font.setItalic(true);
        font.setPointSizeF(font.pointSizeF() + 2);
        return font;
    }
    default: return {};
    }
}

QStringList KeysThatDiffer(const QJsonObject& left, const QJsonObject& right) {
    QStringList keys;
    for (const QString& key : (left.keys() + right.keys())) {
        if (left[key] != right[key] && !keys.contains(key)) keys.append(key);
    }
    return keys;
}

/// Sets and resets every property of `meta`; the keys under which they were saved.
template <typename Widget>
QStringList KeysOf(Widget& widget, const QMetaObject& meta) {
    QStringList keys;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        SCOPED_TRACE(property.name());
        EXPECT_TRUE(property.isResettable() && property.hasNotifySignal() && property.isStored());
        const QSignalSpy told(&widget, property.notifySignal());
        const QJsonObject before = Saved(widget);
        const QVariant usual = property.read(&widget);
        const QVariant other = Another(property, usual);
        EXPECT_TRUE(property.write(&widget, other));
        EXPECT_TRUE(property.write(&widget, other));
        EXPECT_EQ(told.count(), 1);
        EXPECT_NE(property.read(&widget), usual);
        const QVariant now = property.read(&widget);
        EXPECT_TRUE(other.typeId() == QMetaType::QString || now == other || now.toInt() == other);
        const QStringList differing = KeysThatDiffer(before, Saved(widget));
        EXPECT_EQ(differing.size(), 1) << differing.join(u' ').toStdString();
        keys += differing;
        EXPECT_TRUE(property.reset(&widget));
        EXPECT_EQ(told.count(), 2);
        EXPECT_EQ(property.read(&widget), usual);
        EXPECT_EQ(Saved(widget), before);
    }
    return keys;
}

/// What a bag is asked to keep.
class KeyList : public PropertyBag {
public:
    Variant Read(std::string_view, const Variant& fallback) const override { return fallback; }
    void Write(std::string_view key, const Variant&, const Variant&) override {
        Keys.append(QString::fromUtf8(key.data(), static_cast<qsizetype>(key.size())));
    }
    QStringList Keys;
};

TEST(SavedProperties, FormHasAllOfThem) {
    QuillgridWidget form;
    QStringList keys = KeysOf(form, QuillgridProperties::staticMetaObject);
    KeyList wanted;
    form.grid().WriteProperties(wanted);
    keys.sort();
    wanted.Keys.sort();
    EXPECT_EQ(keys, wanted.Keys);
}

TEST(SavedProperties, CalendarHasAllThatItsWidgetHasNot) {
    CalendarWidget calendar;
    QStringList keys = KeysOf(calendar, CalendarProperties::staticMetaObject);
    KeyList wanted;
    calendar.pad().WriteProperties(wanted);
    keys += {QStringLiteral("Enabled"), QStringLiteral("Font"), QStringLiteral("CurrentDate")};
    keys.sort();
    wanted.Keys.sort();
    EXPECT_EQ(keys, wanted.Keys);
}

TEST(SavedProperties, ChangesOfTheControlAreToldOnce) {
    QuillgridWidget form;
    const QSignalSpy caption(&form, &QuillgridWidget::captionChanged);
    const QSignalSpy colour(&form, &QuillgridWidget::cellBackColorChanged);
    form.grid().SetCaption("Address");
    form.grid().SetCaption("Address");
    EXPECT_EQ(caption.count(), 1);
    EXPECT_EQ(form.caption(), QStringLiteral("Address"));
    JsonPropertyBag saved(QJsonObject{{QStringLiteral("Caption"), QStringLiteral("Order")}});
    form.grid().ReadProperties(saved);
    QApplication::processEvents();
    EXPECT_EQ(caption.count(), 2);
    QPalette dark;
    dark.setColor(QPalette::Base, Qt::black);
    form.setPalette(dark);
    EXPECT_EQ(form.cellBackColor(), QColor(Qt::black));
    EXPECT_EQ(colour.count(), 1);
    CalendarWidget calendar;
    const QSignalSpy weeks(&calendar, &CalendarWidget::firstDayOfWeekChanged);
    calendar.pad().SetFirstDayOfWeek(qgdwSunday);
    EXPECT_EQ(weeks.count(), 1);
}

TEST(SavedProperties, FontsFollowTheWidgetUntilTheyAreSet) {
    QuillgridWidget form;
    QFont large = form.font();
    large.setPointSizeF(20);
    const QSignalSpy labels(&form, &QuillgridWidget::labelFontChanged);
    form.setFont(large);
    EXPECT_EQ(labels.count(), 1);
    EXPECT_EQ(form.labelFont().pointSizeF(), 20);
    EXPECT_TRUE(form.captionFont().bold());
    QFont own = large;
    own.setItalic(true);
    form.setCaptionFont(own);
    large.setPointSizeF(10);
    form.setFont(large);
    EXPECT_EQ(form.captionFont().pointSizeF(), 20);
    form.resetCaptionFont();
    EXPECT_EQ(form.captionFont().pointSizeF(), 10);
    EXPECT_TRUE(form.captionFont().bold());
}

TEST(SavedProperties, WhatMakesNoSenseHurtsNobody) {
    QuillgridWidget form;
    form.setBackColor(QColor(200, 0, 0));
    form.setBackColor(QColor());
    EXPECT_EQ(form.grid().BackColor(), ColourButtonFace); // the system's, not one colour of it
    EXPECT_TRUE(form.setProperty("gridStyle", 7));        // refused with a warning, as for any enumeration
    EXPECT_EQ(form.gridStyle(), QuillgridWidget::PropertyListStyle);
    form.setBorderWidth(5000);
    EXPECT_EQ(form.borderWidth(), 999);
    CalendarWidget calendar;
    calendar.setMinDate(QDate(2025, 1, 1));
    calendar.setMinDate({});
    EXPECT_EQ(calendar.minDate(), QDate(1601, 1, 1));
    calendar.setMaxDate(QDate(20000, 1, 1));
    EXPECT_EQ(calendar.maxDate(), QDate(9999, 12, 31));
    calendar.setAutoHolidays(CalendarWidget::AustrianHolidays);
    calendar.setConfigAustria(QStringLiteral("0")); // New Year's Day
    calendar.setCurrentDate(QDate(2026, 1, 2));
    EXPECT_TRUE(calendar.pad().Calendar().IsWorkDay(DateTime{*DayFromDate(2026, 1, 1)}));
    EXPECT_FALSE(calendar.pad().Calendar().IsWorkDay(DateTime{*DayFromDate(2026, 1, 6)}));
}

// Also in the midst of typing, and for a slot that ends the form.
TEST(SavedProperties, ShowSoonAndKeepWhatIsTyped) {
    QtForm form;
    form.Grid().Clear();
    form.Grid().Add({.Key = "name", .Caption = "Name"});
    form.Show();
    QtForm::Type(QStringLiteral("abc"));
    const QImage before = form.Widget->grab().toImage();
    form.Widget->setGridStyle(QuillgridWidget::FormStyle);
    form.Widget->setShowCaption(true);
    form.Settle();
    EXPECT_NE(form.Widget->grab().toImage(), before);
    ASSERT_TRUE(form.Edit());
    EXPECT_EQ(form.Edit()->text(), QStringLiteral("abc"));
    QObject::connect(form.Widget, &QuillgridWidget::captionChanged, form.Widget,
                     [&form] { delete std::exchange(form.Widget, nullptr); });
    form.Widget->setCaption(QStringLiteral("gone"));
    form.Settle();
    EXPECT_FALSE(form.Widget);
}

TEST(SavedProperties, KeysAreToldOfAndMayBeChanged) {
    QtForm form;
    form.Grid().Clear();
    form.Grid().Add({.Key = "name", .Caption = "Name"});
    std::vector<std::string> heard;
    QObject::connect(form.Widget, &QuillgridWidget::keyWentDown, form.Widget,
                     [&](Cell* cell, std::int16_t* code, std::int16_t*) {
                         heard.push_back("down " + cell->Key() + " " + std::to_string(*code));
                         if (*code == 'B') *code = 0;
                     });
    QObject::connect(form.Widget, &QuillgridWidget::keyPressed, form.Widget,
                     [&](Cell*, std::int16_t* character) {
                         heard.push_back("press " + std::to_string(*character));
                         if (*character == 'a') *character = 'z';
                     });
    QObject::connect(
        form.Widget, &QuillgridWidget::keyWentUp, form.Widget,
        [&](Cell*, std::int16_t* code, std::int16_t*) { heard.push_back("up " + std::to_string(*code)); });
    form.Show();
    heard.clear();
    QtForm::Type(QStringLiteral("ab"));
    EXPECT_EQ(form.Edit()->text(), QStringLiteral("z"));
    const std::vector<std::string> wanted{"down name 65", "press 97", "up 65", "down name 66", "up 66"};
    EXPECT_EQ(heard, wanted);
}

} // namespace
} // namespace quillgrid::qt
