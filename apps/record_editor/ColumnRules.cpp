#include "apps/record_editor/ColumnRules.h"

#include "apps/record_editor/FieldCodec.h"
#include "apps/record_editor/SqlTokenizer.h"

#include "quillgrid/cells/LanguageTexts.h"

#include <QLocale>

#include <cmath>
#include <limits>

namespace quillgrid::editor {
namespace {

using Storage = FieldValue::Storage;
using Fact = CheckFact::Type;

// The control's own lists for these leave out characters that real addresses have.
constexpr const char* EmailCharacters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ1234567890@.-_+'!#$%&*/=?^`{|}~ÄÖÜß";
constexpr const char* WebCharacters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ1234567890:/.-+_?=&%#~!$'()*,;@[]ÄÖÜß";

ColumnType TypeOf(const Column& column) {
    for (const QString& declared : column.Types) {
        if (const ColumnType type(declared); type.IsKnown()) return type;
    }
    return ColumnType(QString());
}

/// A whole number, or one that a currency cannot hold, gets the cell that can.
void ChooseNumberCell(ColumnRule& rule, const Column& column) {
    const ColumnType base(column.Types.last());
    if (!base.IsPlainDecimal() || rule.Kind != ValueKind::Decimal) return;
    if (base.Scale() == 0 && base.Precision() <= 9) {
        rule.Template = qgctInteger;
        rule.Kind = ValueKind::Integer;
    } else if (base.Scale() > 4) {
        rule.Template = qgctNumber;
        rule.Kind = ValueKind::Real;
    } else if (TypeOf(column).IsPlainDecimal()) {
        // Exact like money, but nothing says that it is money.
        rule.HidesImage = true;
        rule.Format =
            base.Scale() < 0 ? QStringLiteral("General Number") : u"#0." + QString(base.Scale(), u'0');
    }
}

/// Without a lower bound below zero a minus cannot be typed at all.
void AllowNegative(ColumnRule& rule) {
    if (rule.Template == qgctPercent) return;
    switch (rule.Kind) {
    case ValueKind::Integer: rule.Min = Variant(std::numeric_limits<std::int32_t>::min()); break;
    case ValueKind::Decimal:
        rule.Min = Variant(Currency::FromScaled(std::numeric_limits<std::int64_t>::min()));
        break;
    case ValueKind::Real: rule.Min = Variant(std::numeric_limits<double>::lowest()); break;
    default: break;
    }
}

/// The next value above (1) or below (-1) an excluded bound; Null where there is no next one.
Variant NextValue(const Variant& bound, int direction) {
    if (const auto* number = bound.Get<std::int32_t>()) return Variant(std::int32_t{*number + direction});
    if (const auto* amount = bound.Get<Currency>())
        return Variant(Currency::FromScaled(amount->Scaled() + direction));
    if (const auto* date = bound.Get<DateTime>()) {
        return Variant(date->Day != 0 ? DateTime{date->Day + direction, 0}
                                      : DateTime{0, date->Second + direction});
    }
    return Variant::Null();
}

bool IsAtTheEdge(const Variant& bound) {
    const auto* number = bound.Get<std::int32_t>();
    const auto* amount = bound.Get<Currency>();
    using Long = std::numeric_limits<std::int32_t>;
    using Wide = std::numeric_limits<std::int64_t>;
    return (number && (*number == Long::min() || *number == Long::max())) ||
           (amount && (amount->Scaled() == Wide::min() || amount->Scaled() == Wide::max()));
}

void ApplyBound(ColumnRule& rule, Fact kind, const SqlLiteral& literal) {
    Variant bound = BoundFromText(literal.Text, rule.Kind);
    if (bound.IsNull()) return;
    const bool strict = kind == Fact::MoreThan || kind == Fact::LessThan;
    const bool lower = kind == Fact::AtLeast || kind == Fact::MoreThan;
    if (strict && IsAtTheEdge(bound)) return;
    if (strict) bound = NextValue(bound, lower ? 1 : -1);
    if (!bound.IsNull()) (lower ? rule.Min : rule.Max) = bound;
}

FieldValue ConstantValue(const QString& text, ValueKind kind) {
    if (kind == ValueKind::Integer || kind == ValueKind::Choice) {
        bool whole = false;
        const qlonglong number = text.toLongLong(&whole);
        if (whole) return {Storage::Integer, number, text};
    }
    return {Storage::Text, text, text};
}

void ApplyChoices(ColumnRule& rule, const QList<SqlLiteral>& values) {
    const bool plain = rule.Template == qgctNone || rule.Template == qgctInteger;
    if (!plain || rule.Kind == ValueKind::Unreadable) return;
    rule.Choices.clear();
    for (const SqlLiteral& literal : values) {
        rule.Choices << Choice{ConstantValue(literal.Text, rule.Kind), literal.Text};
    }
}

void ApplyFact(ColumnRule& rule, const CheckFact& fact) {
    switch (fact.Kind) {
    case Fact::OneOf: ApplyChoices(rule, fact.Values); break;
    case Fact::LongestText: {
        const int length = fact.Values[0].Text.toInt();
        if (length > 0 && (rule.MaxLength < 0 || length < rule.MaxLength)) rule.MaxLength = length;
        break;
    }
    case Fact::IsNull: break;
    default: ApplyBound(rule, fact.Kind, fact.Values[0]); break;
    }
}

void ApplyCharacters(ColumnRule& rule) {
    if (rule.Template == qgctEmail) rule.Charlist = QString::fromUtf8(EmailCharacters);
    if (rule.Template == qgctwww) rule.Charlist = QString::fromUtf8(WebCharacters);
}

/// The constant that a DEFAULT gives; NULL for expressions, which only the database can evaluate.
FieldValue DefaultOf(const Column& column, ValueKind kind) {
    if (!column.Default || column.AutoNumber) return {};
    const QList<SqlToken> tokens = TokenizeSql(*column.Default);
    qsizetype first = 0;
    while (tokens[first].Is("("))
        ++first;
    const bool minus = tokens[first].Is("-");
    if (minus) ++first;
    const SqlToken& token = tokens[first];
    const SqlToken& next = tokens[std::min(first + 1, tokens.size() - 1)];
    if (next.Kind != SqlToken::Type::End && !next.Is(")") && !next.Is("::")) return {};
    if (token.Kind == SqlToken::Type::Number) {
        const QString text = minus ? u'-' + token.Text : token.Text;
        const bool boolean = kind == ValueKind::Boolean;
        return boolean ? FieldValue{Storage::Integer, text.toInt(), text} : ConstantValue(text, kind);
    }
    if (token.Kind == SqlToken::Type::Text && !minus) return ConstantValue(token.Text, kind);
    if (token.Is("TRUE") || token.Is("FALSE"))
        return {Storage::Text, token.Text.toLower(), token.Text.toLower()};
    return {};
}

} // namespace

QString CaptionFromName(const QString& columnName) {
    QString caption;
    for (qsizetype i = 0; i < columnName.size(); ++i) {
        const QChar c = columnName[i];
        const bool hump = i > 0 && c.isUpper() && columnName[i - 1].isLower();
        if (c == u'_' || c.isSpace())
            caption += u' ';
        else if (hump)
            caption += QString(u' ') + c.toLower();
        else
            caption += c;
    }
    caption = caption.simplified();
    if (!caption.isEmpty()) caption[0] = caption[0].toUpper();
    // An ampersand in a caption would mark an access key.
    return caption.remove(u'&');
}

Variant BoundFromText(const QString& text, ValueKind kind) {
    const auto decoded = FieldCodec::Decode({Storage::Text, text, text}, kind);
    const bool bounded = kind != ValueKind::Text && kind != ValueKind::Choice && kind != ValueKind::Boolean;
    if (decoded && bounded) return *decoded;
    bool isNumber = false;
    const double number = QLocale::c().toDouble(text, &isNumber);
    if (!isNumber || !std::isfinite(number)) return Variant::Null();
    if (kind == ValueKind::Real) return Variant(number);
    if (kind == ValueKind::Integer && std::abs(number) <= 2147483647.0 && std::floor(number) == number) {
        return Variant(static_cast<std::int32_t>(number));
    }
    if (kind != ValueKind::Decimal) return Variant::Null();
    const auto amount = Currency::FromDouble(number);
    return amount ? Variant(*amount) : Variant::Null();
}

void AllowNoAnswer(ColumnRule& rule, LanguageConstants language) {
    if (rule.Kind != ValueKind::Boolean || !rule.NullAllowed) return;
    const auto word = [&](std::int32_t number) {
        return QString::fromStdString(LocalText(language, number));
    };
    rule.Choices = {{{Storage::Integer, 1, QStringLiteral("1")}, word(1), QStringLiteral("checked")},
                    {{Storage::Integer, 0, QStringLiteral("0")}, word(2), QStringLiteral("unchecked")}};
}

ColumnRule RuleForColumn(const Column& column, const TableSchema& schema, LanguageConstants language) {
    const ColumnType type = TypeOf(column);
    const bool inKey = schema.PrimaryKey.contains(column.Name);
    ColumnRule rule;
    rule.Name = column.Name;
    rule.Caption = CaptionFromName(column.Name);
    rule.Template = type.Template();
    rule.Kind = type.Kind();
    rule.MaxLength = column.MaxLength;
    rule.NullAllowed = !column.NotNull && !inKey;
    rule.AllowEmpty = rule.NullAllowed || column.AutoNumber;
    rule.Locked = column.Generated || column.AutoNumber || rule.Kind == ValueKind::Unreadable;
    ChooseNumberCell(rule, column);
    AllowNegative(rule);
    for (const CheckFact& fact : column.Checks)
        ApplyFact(rule, fact);
    AllowNoAnswer(rule, language);
    ApplyCharacters(rule);
    rule.Default = DefaultOf(column, rule.Kind);
    return rule;
}

} // namespace quillgrid::editor
