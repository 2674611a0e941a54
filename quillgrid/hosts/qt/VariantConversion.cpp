#include "quillgrid/hosts/qt/VariantConversion.h"

#include "quillgrid/hosts/qt/Conversions.h"

#include <QDate>
#include <QDateTime>
#include <QTime>

#include <limits>

namespace quillgrid::qt {

namespace {

constexpr std::int64_t ExactInDouble = std::int64_t{1} << 53;
constexpr qint64 JulianDayOfDay0 = 2415019; // 30 December 1899
/// Fifteen significant digits survive the way through a double.
constexpr std::int64_t ExactCurrency = 999'999'999'999'999;

Variant FromInteger(qint64 number) {
    using Limits = std::numeric_limits<std::int32_t>;
    if (number >= Limits::min() && number <= Limits::max()) return static_cast<std::int32_t>(number);
    if (number >= -ExactInDouble && number <= ExactInDouble) return static_cast<double>(number);
    return std::to_string(number);
}

Variant FromUnsigned(quint64 number) {
    if (number <= static_cast<quint64>(ExactInDouble)) return FromInteger(static_cast<qint64>(number));
    return std::to_string(number);
}

std::optional<std::int32_t> DayFromQt(QDate date) {
    if (!date.isValid()) return std::nullopt;
    const qint64 day = date.toJulianDay() - JulianDayOfDay0;
    return IsValidDay(day) ? std::optional(static_cast<std::int32_t>(day)) : std::nullopt;
}

std::int32_t SecondsFromQt(QTime time) {
    return time.isValid() ? time.msecsSinceStartOfDay() / 1000 : 0;
}

Variant FromDate(const QVariant& value) {
    const QDate date = value.toDate();
    if (const auto day = DayFromQt(date)) return DateTime{*day, 0};
    return date.isValid() ? Variant(FromQString(date.toString(Qt::ISODate))) : Variant::Null();
}

Variant FromDateTime(const QVariant& value) {
    const QDateTime moment = value.toDateTime();
    if (const auto known = DateTimeFromQt(moment)) return *known;
    return moment.isValid() ? Variant(FromQString(moment.toString(Qt::ISODate))) : Variant::Null();
}

Variant FromTime(const QVariant& value) {
    const QTime time = value.toTime();
    return time.isValid() ? Variant(DateTime{0, SecondsFromQt(time)}) : Variant::Null();
}

QVariant FromVariantDate(DateTime value) {
    const QTime time = QTime::fromMSecsSinceStartOfDay(value.Second * 1000);
    if (value.Day == 0) return time;
    const QDate date = QDate::fromJulianDay(value.Day + JulianDayOfDay0);
    return value.Second == 0 ? QVariant(date) : QVariant(QDateTime(date, time));
}

QVariant FromVariantCurrency(Currency amount) {
    const std::int64_t scaled = amount.Scaled();
    if (scaled >= -ExactCurrency && scaled <= ExactCurrency) return amount.ToDouble();
    return ToQString(amount.ToText());
}

} // namespace

std::optional<DateTime> DateTimeFromQt(const QDateTime& value) {
    if (!value.isValid()) return std::nullopt;
    const QDateTime local = value.toLocalTime();
    const auto day = DayFromQt(local.date());
    return day ? std::optional(DateTime{*day, SecondsFromQt(local.time())}) : std::nullopt;
}

Variant VariantFromQt(const QVariant& value) {
    if (!value.isValid() || value.isNull()) return Variant::Null();
    switch (value.typeId()) {
    case QMetaType::Bool: return value.toBool();
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::LongLong: return FromInteger(value.toLongLong());
    case QMetaType::ULong:
    case QMetaType::ULongLong: return FromUnsigned(value.toULongLong());
    case QMetaType::Float:
    case QMetaType::Double: return value.toDouble();
    case QMetaType::QDate: return FromDate(value);
    case QMetaType::QTime: return FromTime(value);
    case QMetaType::QDateTime: return FromDateTime(value);
    default: return FromQString(value.toString());
    }
}

QVariant ToQVariant(const Variant& value) {
    switch (value.Kind()) {
    case Variant::Type::Integer: return static_cast<int>(*value.Get<std::int16_t>());
    case Variant::Type::Long: return *value.Get<std::int32_t>();
    case Variant::Type::Currency: return FromVariantCurrency(*value.Get<Currency>());
    case Variant::Type::Double: return *value.Get<double>();
    case Variant::Type::Date: return FromVariantDate(*value.Get<DateTime>());
    case Variant::Type::Boolean: return *value.Get<bool>();
    case Variant::Type::Text: return ToQString(*value.Get<std::string>());
    default: return {};
    }
}

} // namespace quillgrid::qt
