#include "quillgrid/hosts/qt/MomentConversion.h"

#include "quillgrid/hosts/qt/VariantConversion.h"
#include "quillgrid/locale/Coercion.h"

#include <QDateTime>
#include <QTimeZone>

namespace quillgrid::qt {

namespace {

QDate DateOf(DateTime moment) {
    return ToQVariant(Variant(DateTime{moment.Day, 0})).toDate();
}

/// Cells know no milliseconds: those of the same second stay.
QTime TimeOf(DateTime moment, QTime former) {
    const QTime time = QTime::fromMSecsSinceStartOfDay(moment.Second * 1000);
    return former.isValid() && former.msecsSinceStartOfDay() / 1000 == moment.Second ? former : time;
}

QDateTime InZoneOf(const QDateTime& former, const QDateTime& local) {
    switch (former.timeSpec()) {
    case Qt::UTC: return local.toUTC();
    case Qt::OffsetFromUTC: return local.toOffsetFromUtc(former.offsetFromUtc());
    case Qt::TimeZone: return local.toTimeZone(former.timeZone());
    default: return local;
    }
}

std::optional<QVariant> WholeMoment(DateTime moment, ValidationRuleConstants rule, const QVariant& former) {
    const QDateTime before = former.typeId() == QMetaType::QDateTime ? former.toDateTime() : QDateTime();
    const QDateTime local = before.toLocalTime();
    if (rule == qgvrTime && !before.isValid()) return std::nullopt;
    const QDate date = rule == qgvrTime ? local.date() : DateOf(moment);
    const bool keepsTime = rule == qgvrDate && before.isValid();
    const QTime time = keepsTime ? local.time() : TimeOf(moment, local.time());
    return before.isValid() ? InZoneOf(before, {date, time}) : QDateTime(date, time);
}

} // namespace

std::optional<DateTime> MomentInText(const QString& text) {
    const QDateTime moment = QDateTime::fromString(text, Qt::ISODate);
    if (moment.isValid()) return DateTimeFromQt(moment);
    const Variant time = VariantFromQt(QTime::fromString(text, Qt::ISODate));
    const auto* found = time.Get<DateTime>();
    return found ? std::optional(*found) : std::nullopt;
}

std::optional<QVariant> MomentFromCell(const Variant& value, ValidationRuleConstants rule, QMetaType type,
                                       const QVariant& former, const Locale& locale) {
    const auto moment = ToDateTime(value, locale);
    if (!moment || value.IsNumber()) return std::nullopt;
    if (type.id() == QMetaType::QDateTime) return WholeMoment(*moment, rule, former);
    if (type.id() == QMetaType::QTime)
        return moment->Day == 0 ? std::optional(QVariant(TimeOf(*moment, former.toTime()))) : std::nullopt;
    return moment->Second == 0 ? std::optional(QVariant(DateOf(*moment))) : std::nullopt;
}

} // namespace quillgrid::qt
