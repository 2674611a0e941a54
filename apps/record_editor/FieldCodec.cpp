#include "apps/record_editor/FieldCodec.h"

#include "quillgrid/base/DateTime.h"
#include "quillgrid/base/Decimal.h"
#include "quillgrid/base/Text.h"
#include "quillgrid/cells/LanguageTexts.h"
#include "quillgrid/locale/Coercion.h"
#include "quillgrid/locale/DateReader.h"

#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace quillgrid::editor {
namespace {

using Storage = FieldValue::Storage;
using Decoded = std::optional<Variant>;

bool Matches(const QString& text, const char* pattern) {
    return QRegularExpression(QRegularExpression::anchoredPattern(QLatin1String(pattern)))
        .match(text)
        .hasMatch();
}

bool IsDecimal(const QString& text) {
    return Matches(text, "-?[0-9]+(\\.[0-9]+)?");
}

/// Without what does not change a number: zeros in front and behind, the sign of zero.
QString Canonical(QString number) {
    const bool negative = number.startsWith(u'-');
    if (negative) number.remove(0, 1);
    if (number.contains(u'.')) {
        while (number.endsWith(u'0'))
            number.chop(1);
        if (number.endsWith(u'.')) number.chop(1);
    }
    while (number.size() > 1 && number.startsWith(u'0') && number[1] != u'.')
        number.remove(0, 1);
    return negative && number != u"0" ? u'-' + number : number;
}

Decoded DecodeInteger(const QString& text) {
    bool fits = false;
    const int number = text.toInt(&fits);
    if (!fits || QString::number(number) != text) return std::nullopt;
    return Variant(std::int32_t{number});
}

Decoded DecodeDecimal(const QString& text) {
    if (!IsDecimal(text)) return std::nullopt;
    const auto amount = Currency::FromDecimal(text.toStdString());
    if (!amount || Canonical(QString::fromStdString(amount->ToText())) != Canonical(text))
        return std::nullopt;
    return Variant(*amount);
}

Decoded DecodeReal(const QString& text) {
    if (!Matches(text, "-?[0-9]+(\\.[0-9]+)?([eE][-+]?[0-9]+)?")) return std::nullopt;
    bool fits = false;
    const double number = QLocale::c().toDouble(text, &fits);
    if (!fits || !std::isfinite(number)) return std::nullopt;
    const bool exact =
        !IsDecimal(text) || Canonical(QString::fromStdString(PlainDecimal(number))) == Canonical(text);
    return exact ? Decoded(Variant(number)) : std::nullopt;
}

Decoded DecodeDate(const QString& text) {
    if (!Matches(text, "[0-9]{4}-[0-9]{2}-[0-9]{2}")) return std::nullopt;
    const auto day = DayFromDate(text.first(4).toInt(), text.sliced(5, 2).toInt(), text.sliced(8, 2).toInt());
    if (!day) return std::nullopt;
    return Variant(DateTime{*day, 0});
}

Decoded DecodeTime(const QString& text) {
    if (!Matches(text, "[0-9]{2}:[0-9]{2}(:[0-9]{2})?")) return std::nullopt;
    const auto seconds = SecondsFromParts(text.first(2).toInt(), text.sliced(3, 2).toInt(),
                                          text.size() > 5 ? text.sliced(6).toInt() : 0);
    if (!seconds) return std::nullopt;
    return Variant(DateTime{0, *seconds});
}

Decoded DecodeBoolean(const FieldValue& value) {
    const bool number = value.Kind == Storage::Integer;
    if (value.Text == (number ? u"1" : u"true")) return Variant(true);
    if (value.Text == (number ? u"0" : u"false")) return Variant(false);
    return std::nullopt;
}

Decoded DecodeText(const QString& text) {
    if (FieldCodec::HasControlCharacters(text)) return std::nullopt;
    return Variant(text.toStdString());
}

QString IsoDate(const DateTime& date) {
    const CivilDate parts = PartsFromDay(date.Day);
    return QStringLiteral("%1-%2-%3")
        .arg(parts.Year, 4, 10, QLatin1Char('0'))
        .arg(parts.Month, 2, 10, QLatin1Char('0'))
        .arg(parts.Day, 2, 10, QLatin1Char('0'));
}

QString IsoTime(const DateTime& time) {
    return QStringLiteral("%1:%2:%3")
        .arg(time.Second / 3600, 2, 10, QLatin1Char('0'))
        .arg(time.Second / 60 % 60, 2, 10, QLatin1Char('0'))
        .arg(time.Second % 60, 2, 10, QLatin1Char('0'));
}

QString PlainText(const Variant& value) {
    return QString::fromStdString(value.ToPlainText());
}

/// Money as text keeps at least two decimals, so that a column of them stays in line.
QString MoneyText(const Variant& value) {
    QString text = PlainText(value);
    const auto point = text.indexOf(u'.');
    const auto decimals = point < 0 ? 0 : text.size() - point - 1;
    if (point < 0) text += u'.';
    return text + QString(std::max<qsizetype>(0, 2 - decimals), u'0');
}

std::optional<QString> NumberAsTyped(const QString& text, const Locale& locale) {
    if (IsDecimal(text)) return text;
    const auto number = NumberFromText(text.toStdString(), locale);
    return number ? std::optional(QString::fromStdString(PlainDecimal(*number))) : std::nullopt;
}

std::optional<QString> DateAsTyped(const QString& text, bool wantDate, const Locale& locale) {
    const auto read = RecogniseDateTime(text.toStdString(), locale);
    if (!read || read->HasDate != wantDate || read->HasTime == wantDate) return std::nullopt;
    return wantDate ? IsoDate(read->Value) : IsoTime(read->Value);
}

/// The form says yes and no in its own language, whatever the locale is.
std::optional<bool> TruthAsTyped(const QString& text, const Locale& locale) {
    const std::string word = text.trimmed().toStdString();
    for (const LanguageConstants language : {qglgGerman, qglgEnglish, qglgFrench, qglgItalian, qglgSpanish}) {
        if (EqualIgnoreCase(word, LocalText(language, 1))) return true;
        if (EqualIgnoreCase(word, LocalText(language, 2))) return false;
    }
    return ToBoolean(Variant(word), locale);
}

} // namespace

QVariant FieldCodec::SqlNull() {
    return QVariant(QMetaType::fromType<QString>());
}

bool FieldCodec::HasControlCharacters(const QString& text) {
    return std::any_of(text.begin(), text.end(), [](QChar c) {
        return c.unicode() < 32 || c.unicode() == 127 || c == QChar::LineSeparator ||
               c == QChar::ParagraphSeparator;
    });
}

Decoded FieldCodec::Decode(const FieldValue& value, ValueKind kind) {
    if (value.IsNull()) return Variant::Null();
    if (!value.IsWhole()) return std::nullopt;
    switch (kind) {
    case ValueKind::Integer: return DecodeInteger(value.Text);
    case ValueKind::Decimal: return DecodeDecimal(value.Text);
    case ValueKind::Real: return DecodeReal(value.Text);
    case ValueKind::Date: return DecodeDate(value.Text);
    case ValueKind::Time: return DecodeTime(value.Text);
    case ValueKind::Boolean: return DecodeBoolean(value);
    case ValueKind::Text:
    case ValueKind::Choice: return DecodeText(value.Text);
    case ValueKind::Unreadable: break;
    }
    return std::nullopt;
}

QVariant FieldCodec::EncodeNumber(qlonglong number, const FieldValue& loaded) const {
    if (postgres_ || loaded.Kind == Storage::Text) return QString::number(number);
    return number;
}

QVariant FieldCodec::EncodeDecimal(const Variant& value, const FieldValue& loaded) const {
    if (!postgres_ && loaded.Kind == Storage::Real) return PlainText(value).toDouble();
    bool whole = false;
    const qlonglong number = PlainText(value).toLongLong(&whole);
    if (!postgres_ && loaded.Kind == Storage::Integer && whole) return number;
    return MoneyText(value);
}

QVariant FieldCodec::EncodeReal(const Variant& value, const FieldValue& loaded) const {
    if (postgres_ || loaded.Kind == Storage::Text) return PlainText(value);
    return PlainText(value).toDouble();
}

QVariant FieldCodec::Encode(const Variant& value, ValueKind kind, const FieldValue& loaded) const {
    const DateTime* date = value.Get<DateTime>();
    const bool* boolean = value.Get<bool>();
    if (kind == ValueKind::Date && date) return IsoDate(*date);
    if (kind == ValueKind::Time && date) return IsoTime(*date);
    if (kind == ValueKind::Decimal) return EncodeDecimal(value, loaded);
    if (kind == ValueKind::Real) return EncodeReal(value, loaded);
    if (boolean && postgres_) return *boolean ? QStringLiteral("true") : QStringLiteral("false");
    if (boolean) return EncodeNumber(*boolean ? 1 : 0, loaded);
    bool whole = false;
    const qlonglong number = PlainText(value).toLongLong(&whole);
    if (whole && (kind == ValueKind::Integer || value.IsNumber())) return EncodeNumber(number, loaded);
    return PlainText(value);
}

std::optional<QVariant> FieldCodec::EncodeTyped(const QString& text, ValueKind kind,
                                                const Locale& locale) const {
    std::optional<QString> written;
    switch (kind) {
    case ValueKind::Integer: {
        bool fits = false;
        const qlonglong number = text.toLongLong(&fits);
        return fits ? std::optional(EncodeNumber(number, {})) : std::nullopt;
    }
    case ValueKind::Decimal:
    case ValueKind::Real: written = NumberAsTyped(text, locale); break;
    case ValueKind::Date: written = DecodeDate(text) ? text : DateAsTyped(text, true, locale); break;
    case ValueKind::Time: written = DecodeTime(text) ? text : DateAsTyped(text, false, locale); break;
    case ValueKind::Boolean: {
        const auto truth = TruthAsTyped(text, locale);
        return truth ? std::optional(Encode(Variant(*truth), kind, {})) : std::nullopt;
    }
    case ValueKind::Text:
    case ValueKind::Choice: written = text; break;
    case ValueKind::Unreadable: break;
    }
    return written ? std::optional<QVariant>(*written) : std::nullopt;
}

} // namespace quillgrid::editor
