#include "quillgrid/hosts/qt/BagValues.h"

#include "quillgrid/hosts/qt/Conversions.h"
#include "quillgrid/hosts/qt/VariantConversion.h"

#include <any>
#include <cmath>
#include <limits>
#include <optional>

namespace quillgrid::qt {

namespace {

std::optional<double> NumberIn(const Variant& value) {
    if (const auto* flag = value.Get<bool>()) return *flag ? -1.0 : 0.0;
    if (const auto* number = value.Get<std::int16_t>()) return *number;
    if (const auto* number = value.Get<std::int32_t>()) return *number;
    if (const auto* number = value.Get<double>()) return *number;
    if (const auto* amount = value.Get<Currency>()) return amount->ToDouble();
    return std::nullopt;
}

Variant FromNumber(double number, const Variant& fallback) {
    using Limits = std::numeric_limits<std::int32_t>;
    if (!std::isfinite(number)) return fallback;
    const bool whole = number >= Limits::min() && number <= Limits::max() && std::trunc(number) == number;
    return whole ? Variant(static_cast<std::int32_t>(number)) : Variant(number);
}

std::optional<bool> TruthIn(const QVariant& stored) {
    if (stored.typeId() == QMetaType::Bool) return stored.toBool();
    if (stored.typeId() != QMetaType::QString) return std::nullopt;
    const QString word = stored.toString();
    if (word.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0) return true;
    if (word.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0) return false;
    return std::nullopt;
}

Variant FromText(const QVariant& stored, const Variant& fallback) {
    const QString text = stored.toString();
    if (!fallback.IsText()) {
        if (const auto truth = TruthIn(stored)) return *truth;
        bool isNumber = false;
        const double number = text.toDouble(&isNumber);
        if (isNumber) return FromNumber(number, fallback);
    }
    return FromQString(text);
}

double SizeIn(const QVariant& stored, double fallback) {
    bool isNumber = false;
    const double size = stored.typeId() == QMetaType::Bool ? 0.0 : stored.toDouble(&isNumber);
    return isNumber && std::isfinite(size) && size > 0 ? size : fallback;
}

} // namespace

bool MeansTheSame(const Variant& value, const Variant& fallback) {
    const Font* font = FontIn(value);
    const Font* other = FontIn(fallback);
    if (font && other) return *font == *other;
    const auto number = NumberIn(value);
    const auto otherNumber = NumberIn(fallback);
    if (number && otherNumber) return *number == *otherNumber;
    return value == fallback;
}

Variant FromStored(const QVariant& stored, const Variant& fallback) {
    switch (stored.typeId()) {
    case QMetaType::Bool: return stored.toBool();
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double: return FromNumber(stored.toDouble(), fallback);
    case QMetaType::QString: return FromText(stored, fallback);
    default: return fallback;
    }
}

QVariant ToStored(const Variant& value) {
    const auto* number = value.Get<double>();
    return number && !std::isfinite(*number) ? QVariant() : ToQVariant(value);
}

const Font* FontIn(const Variant& value) {
    const auto* object = value.Get<ObjectReference>();
    return object && *object ? std::any_cast<Font>(object->get()) : nullptr;
}

Variant ToVariant(const Font& font) {
    return std::make_shared<std::any>(font);
}

Font FontFromFields(const std::function<QVariant(const QString& name)>& field, const Font& fallback) {
    Font font = fallback;
    const QVariant family = field(QStringLiteral("family"));
    if (family.typeId() == QMetaType::QString) font.Name = FromQString(family.toString());
    font.Size = SizeIn(field(QStringLiteral("size")), fallback.Size);
    font.Bold = TruthIn(field(QStringLiteral("bold"))).value_or(fallback.Bold);
    font.Italic = TruthIn(field(QStringLiteral("italic"))).value_or(fallback.Italic);
    return font;
}

void FieldsOf(const Font& font, const std::function<void(const QString& name, const QVariant& value)>& take) {
    take(QStringLiteral("family"), ToQString(font.Name));
    take(QStringLiteral("size"), font.Size);
    take(QStringLiteral("bold"), font.Bold);
    take(QStringLiteral("italic"), font.Italic);
}

} // namespace quillgrid::qt
