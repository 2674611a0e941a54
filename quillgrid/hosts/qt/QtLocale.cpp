#include "quillgrid/hosts/qt/QtLocale.h"

#include "quillgrid/hosts/qt/Conversions.h"

#include <QCollator>

#include <algorithm>

namespace quillgrid::qt {

namespace {

constexpr int DaysPerWeek = 7;
constexpr int MonthsPerYear = 12;

std::string NameOf(const QLocale& locale) {
    // Programs without a locale run in "C". It speaks American English, but has neither a currency nor a
    // short date.
    if (locale.language() == QLocale::C) return "en-US";
    return FromQString(locale.name().replace(u'_', u'-'));
}

/// The first punctuation between two letters of a pattern.
std::string SeparatorIn(const QString& pattern, const char* otherwise) {
    bool quoted = false;
    for (const QChar character : pattern) {
        if (character == u'\'') quoted = !quoted;
        if (!quoted && character != u'\'' && character.isPunct()) return FromQString(QString(character));
    }
    return otherwise;
}

DateOrder OrderIn(const QString& pattern) {
    const auto day = pattern.indexOf(u'd');
    const auto month = pattern.indexOf(u'M');
    const auto year = pattern.indexOf(u'y');
    if (year < day && year < month) return DateOrder::YearMonthDay;
    return month < day ? DateOrder::MonthDayYear : DateOrder::DayMonthYear;
}

std::string DatePart(const QString& pattern, QChar letter, char ours) {
    const bool padded = pattern.count(letter) != 1;
    return std::string(padded ? 2 : 1, ours);
}

std::string ShortDateFor(const QString& pattern, DateOrder order, const std::string& separator) {
    const std::string mark =
        separator == "/" ? separator : PatternFromQt(ToQString(separator), separator, ":");
    const std::string day = DatePart(pattern, u'd', 'd');
    const std::string month = DatePart(pattern, u'M', 'm');
    switch (order) {
    case DateOrder::YearMonthDay: return "yyyy" + mark + month + mark + day;
    case DateOrder::MonthDayYear: return month + mark + day + mark + "yyyy";
    default: return day + mark + month + mark + "yyyy";
    }
}

const char* MediumDateFor(DateOrder order) {
    switch (order) {
    case DateOrder::YearMonthDay: return "yyyy mmm d";
    case DateOrder::MonthDayYear: return "mmm d, yyyy";
    default: return "d mmm yyyy";
    }
}

void TakeNumbers(const QLocale& locale, Locale& result) {
    result.DecimalSeparator = FromQString(locale.decimalPoint());
    result.GroupSeparator = FromQString(locale.groupSeparator());
    result.CurrencySymbol = FromQString(locale.currencySymbol());
    const QString sample = locale.toCurrencyString(1.0);
    const auto symbol = sample.indexOf(locale.currencySymbol());
    const bool blank = std::any_of(sample.begin(), sample.end(), [](QChar one) { return one.isSpace(); });
    if (symbol == 0) {
        result.CurrencySymbolPlace = blank ? CurrencyPlace::BeforeWithBlank : CurrencyPlace::Before;
    } else {
        result.CurrencySymbolPlace = blank ? CurrencyPlace::AfterWithBlank : CurrencyPlace::After;
    }
    const auto point = sample.indexOf(locale.decimalPoint());
    result.CurrencyDecimals = 0;
    for (auto i = point + 1; point >= 0 && i < sample.size() && sample[i].isDigit(); ++i)
        ++result.CurrencyDecimals;
}

void TakePatterns(const QLocale& locale, Locale& result) {
    const QString shortDate = locale.dateFormat(QLocale::ShortFormat);
    const QString longTime = locale.timeFormat(QLocale::LongFormat);
    result.DateSeparator = SeparatorIn(shortDate, ".");
    result.TimeSeparator = SeparatorIn(longTime, ":");
    result.Order = OrderIn(shortDate);
    const auto convert = [&](const QString& pattern) {
        return PatternFromQt(pattern, result.DateSeparator, result.TimeSeparator);
    };
    result.ShortDate = ShortDateFor(shortDate, result.Order, result.DateSeparator);
    result.MediumDate = MediumDateFor(result.Order);
    result.LongDate = convert(locale.dateFormat(QLocale::LongFormat));
    result.LongTime = convert(longTime);
    result.ShortTime = convert(locale.timeFormat(QLocale::ShortFormat));
    result.MediumTime = "hh:nn AM/PM";
    result.Am = FromQString(locale.amText());
    result.Pm = FromQString(locale.pmText());
}

void TakeNames(const QLocale& locale, Locale& result) {
    for (int month = 1; month <= MonthsPerYear; ++month) {
        const auto at = static_cast<std::size_t>(month - 1);
        result.MonthNames[at] = FromQString(locale.monthName(month));
        result.ShortMonthNames[at] = FromQString(locale.monthName(month, QLocale::ShortFormat));
    }
    for (int day = 0; day < DaysPerWeek; ++day) {
        const int qtDay = day == 0 ? DaysPerWeek : day; // Monday is 1
        const auto at = static_cast<std::size_t>(day);
        result.DayNames[at] = FromQString(locale.dayName(qtDay));
        result.ShortDayNames[at] = FromQString(locale.dayName(qtDay, QLocale::ShortFormat));
    }
}

// Which week is a year's first is not among what Qt knows; it goes with the first day nearly everywhere.
void TakeWeek(const QLocale& locale, Locale& result) {
    const int first = static_cast<int>(locale.firstDayOfWeek()) % DaysPerWeek + 1; // Sunday is 1
    result.FirstDayOfWeek = static_cast<DayOfWeekConstants>(first);
    result.FirstWeekOfYear = result.FirstDayOfWeek == qgdwMonday ? qgfwFirstFourDays : qgfwFirstJan1;
}

Locale MadeFrom(const QLocale& locale) {
    Locale result = BuiltInLocale("en-US"); // the words for yes and no, which Qt does not know
    result.Name = NameOf(locale);
    TakeNumbers(locale, result);
    TakePatterns(locale, result);
    TakeNames(locale, result);
    TakeWeek(locale, result);
    return result;
}

} // namespace

Locale LocaleFromQt(const QLocale& locale) {
    const std::string name = NameOf(locale);
    Locale result = HasBuiltInLocale(name) ? BuiltInLocale(name) : MadeFrom(locale);
    QCollator order(locale);
    order.setCaseSensitivity(Qt::CaseInsensitive);
    result.CompareText = [order](std::string_view left, std::string_view right) {
        return order.compare(ToQString(left), ToQString(right));
    };
    return result;
}

} // namespace quillgrid::qt
