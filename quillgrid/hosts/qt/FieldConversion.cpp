#include "quillgrid/hosts/qt/FieldConversion.h"

#include "quillgrid/cells/CellAccess.h"
#include "quillgrid/hosts/qt/Conversions.h"
#include "quillgrid/hosts/qt/MomentConversion.h"
#include "quillgrid/hosts/qt/QtTheme.h"
#include "quillgrid/hosts/qt/VariantConversion.h"
#include "quillgrid/locale/Coercion.h"

#include <QColor>
#include <QLocale>

#include <array>
#include <charconv>
#include <cmath>

namespace quillgrid::qt {

namespace {

constexpr double ExactInDouble = 9'007'199'254'740'992.0;
constexpr Colour LargestColour = 0xFFFFFF; ///< beyond are the colours of the desktop

bool IsNothing(const Variant& value) {
    const auto* text = value.Get<std::string>();
    return value.IsEmpty() || value.IsNull() || (text && text->empty());
}

bool IsNothing(const QVariant& source) {
    return source.isNull() || source == QVariant(source.metaType());
}

bool IsNumberRule(ValidationRuleConstants rule) {
    return rule == qgvrInteger || rule == qgvrCurrency || rule == qgvrEuro || rule == qgvrDouble;
}

QString PlainText(const Variant& value) {
    if (const bool* answer = value.Get<bool>()) return QVariant(*answer).toString();
    return ToQString(value.ToPlainText());
}

// To the cell.

/// 0.1 as it is written, not with the digits that a double has behind it.
Variant Shortest(float number) {
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
    return QByteArray(text.data(), end - text.data()).toDouble();
}

Variant ColourForCell(const QColor& colour, bool isList) {
    if (!colour.isValid()) return Variant::Null();
    if (!isList) return FromQString(colour.name());
    return static_cast<std::int32_t>(FromQColor(colour));
}

Variant EnumForCell(int number, const QMetaEnum& names, bool isList) {
    if (isList) return static_cast<std::int32_t>(number);
    const QByteArray keys = names.isFlag() ? names.valueToKeys(number) : QByteArray(names.valueToKey(number));
    return keys.isEmpty() ? std::to_string(number) : keys.toStdString();
}

std::optional<Variant> NumberInText(const QString& text) {
    bool isNumber = false;
    const double number = QLocale::c().toDouble(text.trimmed(), &isNumber);
    return isNumber ? std::optional(Variant(number)) : std::nullopt;
}

std::optional<Variant> TextForCell(const QString& text, const Cell& cell) {
    if (text.isEmpty()) return Variant(""); // a list may have an entry for it
    if (IsNumberRule(cell.ValidationRule())) return NumberInText(text);
    const bool isMoment = cell.ValidationRule() == qgvrDate || cell.ValidationRule() == qgvrTime;
    const auto moment = isMoment ? MomentInText(text) : std::nullopt;
    return moment ? Variant(*moment) : Variant(FromQString(text));
}

/// A colour that is not in the cell's list joins it.
void OfferColour(Cell& cell, const QVariant& source, const Variant& value) {
    const auto& items = std::as_const(cell).Listitems();
    if (cell.Style() != qgcsList || !value.Get<std::int32_t>() || items.PositionOfData(value) != 0) return;
    cell.Listitems().Add({.Text = FromQString(source.value<QColor>().name()), .ItemData = value});
}

// From the cell.

std::optional<QVariant> NothingOf(const FieldType& type) {
    if (!type.Type.isValid()) return QVariant();
    switch (type.Type.id()) {
    case QMetaType::QString:
        if (!type.Nullable) return QVariant(QString());
        break;
    case QMetaType::QDate:
    case QMetaType::QTime:
    case QMetaType::QDateTime:
    case QMetaType::QColor:
    case QMetaType::QUrl: break;
    default:
        if (!type.Nullable) return std::nullopt;
    }
    return QVariant(type.Type);
}

std::optional<QVariant> EnumFromCell(const Variant& value, const QMetaEnum& names, const Locale& locale) {
    if (const auto* text = value.Get<std::string>()) {
        bool known = false;
        const int number = names.isFlag() ? names.keysToValue(text->c_str(), &known)
                                          : names.keyToValue(text->c_str(), &known);
        if (known) return number;
    }
    const auto number = ToLong(value, locale);
    return number ? std::optional(QVariant(*number)) : std::nullopt;
}

/// Nothing where the type would round, cut or wrap the number.
std::optional<QVariant> Exactly(const QVariant& number, QMetaType type) {
    QVariant converted = number;
    if (!converted.convert(type)) return std::nullopt;
    QVariant back = converted;
    if (!back.convert(number.metaType()) || back != number) return std::nullopt;
    return converted;
}

std::optional<QVariant> WholeFromCell(const Variant& value, QMetaType type, const Locale& locale) {
    if (const bool* answer = value.Get<bool>()) return Exactly(static_cast<qlonglong>(*answer), type);
    if (value.IsText()) {
        const QString text = PlainText(value);
        bool fits = false;
        const qlonglong number = text.toLongLong(&fits);
        if (fits)
            return number < 0 && type == QMetaType::fromType<qulonglong>() ? std::nullopt
                                                                           : Exactly(number, type);
        const qulonglong large = text.toULongLong(&fits);
        if (fits)
            return type == QMetaType::fromType<qulonglong>() ? std::optional(QVariant(large)) : std::nullopt;
    }
    const auto number = ToDouble(value, locale);
    if (!number || std::floor(*number) != *number || std::abs(*number) > ExactInDouble) return std::nullopt;
    if (*number < 0 && type == QMetaType::fromType<qulonglong>()) return std::nullopt;
    return Exactly(static_cast<qlonglong>(*number), type);
}

std::optional<QVariant> DoubleFromCell(const Variant& value, QMetaType type, const Locale& locale) {
    const bool* answer = value.Get<bool>();
    const auto number = answer ? std::optional(*answer ? 1.0 : 0.0) : ToDouble(value, locale);
    if (!number) return std::nullopt;
    QVariant converted = *number;
    converted.convert(type);
    return converted;
}

std::optional<QVariant> ColourFromCell(const Variant& value, const QVariant& former) {
    QColor colour;
    if (const auto* number = value.Get<std::int32_t>()) {
        const auto whole = static_cast<Colour>(*number);
        if (whole > LargestColour) return std::nullopt;
        colour = QColor::fromRgb(static_cast<int>(whole & 0xFFU), static_cast<int>(whole >> 8U & 0xFFU),
                                 static_cast<int>(whole >> 16U & 0xFFU));
    } else {
        colour.setNamedColor(PlainText(value).trimmed());
    }
    const auto before = former.value<QColor>();
    if (colour.isValid() && before.isValid() && colour.alpha() == 255) colour.setAlpha(before.alpha());
    return colour.isValid() ? std::optional(QVariant(colour)) : std::nullopt;
}

std::optional<QVariant> AnythingFromCell(const Variant& value, QMetaType type) {
    QVariant converted = ToQVariant(value);
    return converted.convert(type) ? std::optional(converted) : std::nullopt;
}

} // namespace

Variant CellValue(const Cell& cell) {
    const bool isBoolean = cell.ValidationRule() == qgvrBoolean;
    if (isBoolean) return cell.ListIndex() < 1 ? Variant::Null() : Variant(cell.ListIndex() == 1);
    if (cell.Style() == qgcsList && cell.ListIndex() < 1 && cell.Listitems().Count() > 0)
        return Variant::Null();
    return cell.Value();
}

bool IsSameValue(const Variant& left, const Variant& right) {
    if (IsNothing(left) || IsNothing(right)) return IsNothing(left) == IsNothing(right);
    return left.IsText() && right.IsText() ? left == right : EqualAsText(left, right);
}

bool IsSameSource(const QVariant& left, const QVariant& right) {
    return left.isNull() == right.isNull() && left.isValid() == right.isValid() && left == right;
}

std::optional<Variant> ForCell(const QVariant& source, const FieldType& type, const Cell& cell) {
    const bool isList = cell.Style() == qgcsList;
    if (!source.isValid() || source.isNull()) return Variant::Null();
    if (type.Enum.isValid()) return EnumForCell(source.toInt(), type.Enum, isList);
    switch (source.typeId()) {
    case QMetaType::QColor: return ColourForCell(source.value<QColor>(), isList);
    case QMetaType::Float: return Shortest(source.toFloat());
    case QMetaType::QString: return TextForCell(source.toString(), cell);
    default: return VariantFromQt(source);
    }
}

std::optional<QVariant> FromCell(const Cell& cell, const FieldType& type, const QVariant& former,
                                 const Locale& locale) {
    const Variant value = CellValue(cell);
    if (IsNothing(value)) return NothingOf(type);
    if (type.Enum.isValid()) return EnumFromCell(value, type.Enum, locale);
    if (!type.Type.isValid()) return ToQVariant(value);
    switch (type.Type.id()) {
    case QMetaType::Bool: {
        const auto answer = ToBoolean(value, locale);
        return answer ? std::optional(QVariant(*answer)) : std::nullopt;
    }
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong: return WholeFromCell(value, type.Type, locale);
    case QMetaType::Float:
    case QMetaType::Double: return DoubleFromCell(value, type.Type, locale);
    case QMetaType::QString: return PlainText(value);
    case QMetaType::QDate:
    case QMetaType::QTime:
    case QMetaType::QDateTime: return MomentFromCell(value, cell.ValidationRule(), type.Type, former, locale);
    case QMetaType::QColor: return ColourFromCell(value, former);
    default: return AnythingFromCell(value, type.Type);
    }
}

bool ShowInCell(Cell& cell, const QVariant& source, const FieldType& type, const Locale& locale) {
    const auto value = ForCell(source, type, cell);
    if (value && source.typeId() == QMetaType::QColor) OfferColour(cell, source, *value);
    CellAccess::LoadValue(cell, value.value_or(Variant::Null()));
    if (value && !IsSameValue(CellValue(cell), *value)) {
        CellAccess::LoadValue(cell, Variant::Null()); // what the cell refuses leaves the value before
        CellAccess::LoadValue(cell, *value);
    }
    CellAccess::SetChanged(cell, false);
    cell.Refresh();
    if (!value || IsNothing(*value)) return IsNothing(source);
    const auto back = FromCell(cell, type, source, locale);
    return back && IsSameSource(*back, source);
}

} // namespace quillgrid::qt
