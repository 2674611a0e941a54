#pragma once

#include "quillgrid/base/Export.h"

#ifndef Q_MOC_RUN // moc cannot read the concepts of the standard headers
#include "quillgrid/base/Colour.h"
#include "quillgrid/base/DateTime.h"
#include "quillgrid/base/Variant.h"
#include "quillgrid/platform/Font.h"
#include "quillgrid/platform/PropertyBag.h"
#endif

#include <QColor>
#include <QDate>
#include <QFont>
#include <QString>
#include <QVariant>
#include <QWidget>

#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

/// A property of a widget that its control keeps as `Kept`. A class that uses this has the control as
/// `Control()`.
#define QUILLGRID_PROPERTY(Type, lower, Upper, Kept)                                                         \
    Q_PROPERTY(Type lower READ lower WRITE set##Upper RESET reset##Upper NOTIFY lower##Changed)              \
public:                                                                                                      \
    Type lower() const {                                                                                     \
        return static_cast<Type>(FromControl(Control().Kept()));                                             \
    }                                                                                                        \
    void set##Upper(Type value) {                                                                            \
        using Keeps = std::remove_cvref_t<decltype(Control().Kept())>;                                       \
        if (!IsGiven(value)) return reset##Upper();                                                          \
        Assign([&] { Control().Set##Kept(static_cast<Keeps>(ToControl(value))); });                          \
    }                                                                                                        \
    void reset##Upper() {                                                                                    \
        using Keeps = std::remove_cvref_t<decltype(Control().Kept())>;                                       \
        Assign([this] { Control().Set##Kept(DefaultOf<Keeps>(#Kept)); });                                    \
    }                                                                                                        \
    Q_SIGNAL void lower##Changed();

namespace quillgrid::qt {

/// What the widgets have in common whose control keeps its properties: the control's values as Qt's, and who
/// is told when one changes.
class QUILLGRID_EXPORT SavedProperties : public QWidget {
    Q_OBJECT

public:
    // A fixed type: what is set by name or from a file may be any number.

    /// The day with which a week begins; SystemDay follows the locale.
    enum DayOfWeek : int {
        SystemDay,
        Sunday,
        Monday,
        Tuesday,
        Wednesday,
        Thursday,
        Friday,
        Saturday,
    };
    Q_ENUM(DayOfWeek)

    /// The week with which a year begins; SystemWeek follows the locale.
    enum FirstWeekOfYear : int { SystemWeek, WeekOfJanuary1, FirstWeekOfFourDays, FirstFullWeek };
    Q_ENUM(FirstWeekOfYear)

    /// Whose public holidays a calendar knows by itself.
    enum HolidayPreset : int {
        NoHolidays = 0,
        GermanHolidays = 1,
        AustrianHolidays = 2,
        SwissHolidays = 3,
        InternationalHolidays = 99,
    };
    Q_ENUM(HolidayPreset)

protected:
    /// `own` has the properties to watch.
    SavedProperties(const QMetaObject& own, QWidget* parent, Qt::WindowFlags flags = {});

    QString FromControl(const std::string& text) const;
    QColor FromControl(Colour colour) const; ///< as the widget's palette has it
    QFont FromControl(const quillgrid::Font& font) const;
    QDate FromControl(DateTime date) const;
    template <typename Number>
    Number FromControl(Number value) const {
        return value;
    }

    static std::string ToControl(const QString& text);
    static Colour ToControl(const QColor& colour);
    static quillgrid::Font ToControl(const QFont& font);
    static DateTime ToControl(QDate date);
    template <typename Number>
    static Number ToControl(Number value) {
        return value;
    }

    /// Colours and dates that are invalid stand for the default.
    static bool IsGiven(const QColor& colour) { return colour.isValid(); }
    static bool IsGiven(QDate date) { return date.isValid(); }
    template <typename T>
    static bool IsGiven(const T&) {
        return true;
    }

    /// Sets, then shows and tells what is different. What the control refuses is a warning on the console, as
    /// for other properties of Qt.
    template <typename Setting>
    void Assign(const Setting& set) {
        Attempt([](const void* made) { (*static_cast<const Setting*>(made))(); }, &set);
    }

    /// What a new control has under a name.
    template <typename T>
    T DefaultOf(std::string_view name) const {
        T value{};
        TakeDefault(DefaultUnder(name), value);
        return value;
    }

    /// Emits the signal of every property that is different from what was seen last; the first time it only
    /// looks. A slot may delete the widget, as far as Qt allows it then.
    void TellChanges();

private:
    virtual void WriteControl(PropertyBag& bag) const = 0;
    virtual void ShowControl() = 0;

    void Attempt(void (*set)(const void* made), const void* made);
    void ShowSoon();
    Variant DefaultUnder(std::string_view name) const;
    static void TakeDefault(const Variant& kept, std::string& text);
    static void TakeDefault(const Variant& kept, quillgrid::Font& font);
    static void TakeDefault(const Variant& kept, DateTime& date);
    static std::int32_t NumberIn(const Variant& kept);
    template <typename Number>
    static void TakeDefault(const Variant& kept, Number& value) {
        value = static_cast<Number>(NumberIn(kept));
    }

    const QMetaObject& own_;
    std::vector<QVariant> seen_; ///< empty until the first look
    bool showsSoon_ = false;
};

} // namespace quillgrid::qt
