#include "apps/record_editor/FieldBinding.h"

#include "apps/record_editor/SqlDialect.h"

#include "quillgrid/base/Text.h"
#include "quillgrid/cells/OwnerServices.h"
#include "quillgrid/grid/CellRules.h"
#include "quillgrid/locale/Coercion.h"

#include <algorithm>

namespace quillgrid::editor {
namespace {

bool IsNothing(const Variant& value) {
    const auto* text = value.Get<std::string>();
    return value.IsEmpty() || value.IsNull() || (text && text->empty());
}

/// The edit box trims blanks when the user merely passes through; that is no change of the user's.
bool IsSameValue(const Variant& now, const Variant& before) {
    if (IsNothing(now) || IsNothing(before)) return IsNothing(now) == IsNothing(before);
    const auto* text = now.Get<std::string>();
    const auto* old = before.Get<std::string>();
    if (text && old) return *text == *old || *text == TrimBlanks(*old);
    // The data of a list's entry and the text read from the database mean the same value.
    return now == before || EqualAsText(now, before);
}

QString VisibleLineBreaks(QString text) {
    text.replace(QLatin1String("\r\n"), QStringLiteral("↵"));
    for (QChar& c : text) {
        if (c == u'\n' || c == u'\r')
            c = QChar(u'↵');
        else if (FieldCodec::HasControlCharacters(c))
            c = QChar(u'␣');
    }
    return text;
}

/// How input of numbers is checked; other kinds leave that to the template.
std::optional<ValidationRuleConstants> RuleFor(ValueKind kind) {
    switch (kind) {
    case ValueKind::Integer: return qgvrInteger;
    case ValueKind::Decimal: return qgvrCurrency;
    case ValueKind::Real: return qgvrDouble;
    default: return std::nullopt;
    }
}

bool MeansTheSame(ValidationRuleConstants one, ValidationRuleConstants other) {
    return one == other || (one == qgvrCurrency && other == qgvrEuro);
}

/// False where one of the bounds is none.
bool IsBelow(const Variant& bound, const Variant& other, const Locale& locale) {
    const auto left = ToDouble(bound, locale);
    const auto right = ToDouble(other, locale);
    return left && right && *left < *right;
}

const char* KindName(ValueKind kind) {
    switch (kind) {
    case ValueKind::Integer: return "a whole number";
    case ValueKind::Decimal: return "an amount";
    case ValueKind::Real: return "a number";
    case ValueKind::Date: return "a date";
    case ValueKind::Time: return "a time of day";
    case ValueKind::Boolean: return "yes or no";
    case ValueKind::Choice: return "one of the choices";
    case ValueKind::Text:
    case ValueKind::Unreadable: break;
    }
    return "text for this cell";
}

} // namespace

FieldBinding::FieldBinding(ColumnRule rule, std::shared_ptr<Cell> cell, FieldCodec codec, Locale locale,
                           bool readOnly)
    : rule_(std::move(rule)),
      cell_(std::move(cell)),
      codec_(codec),
      locale_(std::move(locale)),
      readOnly_(readOnly) {}

void FieldBinding::DefineCell(bool mayBeNothing) {
    const bool isList = !rule_.Choices.isEmpty();
    editable_ = true;
    cell_->Clear();
    // The group comes along: given later it would put the rows into order again for each record.
    cell_->Define({.NewCaption = Variant(rule_.Caption.toStdString()),
                   .NewCellTemplate = isList ? qgctlist : rule_.Template,
                   .NewGroup = Group()});
    if (isList) FillList();
    // Without such an entry a list cannot show "nothing", nor be set back to it.
    if (mayBeNothing && IsList()) cell_->Listitems().Add({.Text = "", .ItemData = Variant("")});
    DefineKind();
    cell_->SetAllowEmpty(rule_.AllowEmpty);
    Describe(rule_.Description);
}

void FieldBinding::DefineKind() {
    const auto check = RuleFor(rule_.Kind);
    if (check && !IsList() && !MeansTheSame(*check, cell_->ValidationRule()))
        cell_->SetValidationRule(*check);
    if (rule_.Kind == ValueKind::Decimal && cell_->Button() == qgbtNone) cell_->SetButton(qgbtCalc);
    if (!rule_.Min.IsNull()) cell_->SetMin(rule_.Min);
    if (!rule_.Max.IsNull()) cell_->SetMax(rule_.Max);
    if (rule_.Kind == ValueKind::Text) cell_->SetMaxLength(LongestText());
    if (rule_.Format) cell_->SetFormat(rule_.Format->toStdString());
    if (rule_.HidesImage) cell_->SetListImage(Variant::Null());
    if (IsForeignEuro()) cell_->SetFormat("Standard");
    if (rule_.Charlist) cell_->SetCharlist(rule_.Charlist->toStdString());
}

std::int32_t FieldBinding::LongestText() const {
    return rule_.MaxLength >= 0 ? rule_.MaxLength : SqlDialect::LongestText;
}

std::string FieldBinding::Group() const {
    return rule_.Description.Text(QStringLiteral("group")).toStdString();
}

void FieldBinding::Describe(const ColumnDescription& description) {
    {
        const CurrentCellScope current(*cell_);
        cell_->DefineFromDataDictionary(description);
    }
    KeepDemands();
    if (cell_->Locked() && !description.Has(QStringLiteral("forecolor"))) cell_->SetForeColor(ColourGreyText);
}

/// What the database demands holds whatever the dictionary says.
void FieldBinding::KeepDemands() {
    if (!IsWritten()) cell_->SetLocked(true);
    if (!fits_) return;
    if (!rule_.AllowEmpty) cell_->SetAllowEmpty(false);
    if (rule_.Kind == ValueKind::Text) cell_->SetMaxLength(std::min(cell_->MaxLength(), LongestText()));
    if (IsBelow(cell_->Min(), rule_.Min, locale_)) cell_->SetMin(rule_.Min);
    if (IsBelow(rule_.Max, cell_->Max(), locale_)) cell_->SetMax(rule_.Max);
}

/// Where people pay in another currency, its symbol beside euros would be wrong; the unit "EUR" is not.
bool FieldBinding::IsForeignEuro() const {
    return cell_->Template() == qgctEuro && !rule_.Format && locale_.CurrencySymbol != "€";
}

void FieldBinding::FillList() {
    for (const Choice& choice : rule_.Choices) {
        const Variant image = choice.Image.isEmpty() ? Variant::Null() : Variant(choice.Image.toStdString());
        cell_->Listitems().Add({.Text = choice.Text.toStdString(),
                                .ItemData = Variant(choice.Value.Text.toStdString()),
                                .ListImage = image});
    }
}

void FieldBinding::Prepare(const FieldValue& value) {
    loaded_ = value;
    forceNull_ = false;
    fits_ = true;
    DefineCell(rule_.NullAllowed);
    prepared_ = ForCell(loaded_);
}

void FieldBinding::Take() {
    fits_ = prepared_ && IsShownExactly(*prepared_);
    if (!fits_) ShowAsIs();
    shown_ = baseline_ = Current();
}

void FieldBinding::PrepareNew() {
    loaded_ = rule_.Default;
    forceNull_ = false;
    fits_ = true;
    DefineCell(true);
    prepared_ = ForCell(rule_.Default);
    cell_->SetDefault(StartValue());
}

/// The dictionary's default before the one that the database would put in itself.
Variant FieldBinding::StartValue() {
    const FieldValue own = rule_.Description.Default();
    const auto described = own.IsNull() || rule_.Locked ? std::nullopt : ForCell(own);
    hasOwnDefault_ = described.has_value();
    Variant start = described.value_or(prepared_.value_or(Variant::Null()));
    // A cell that knows only yes and no says no.
    const bool isBoolean = cell_->ValidationRule() == qgvrBoolean;
    return start.IsNull() && isBoolean ? Variant(false) : start;
}

void FieldBinding::TakeNew() {
    const bool taken = IsShownExactly(cell_->Default());
    if (!taken) { // a default that the cell cannot hold is none
        DefineCell(true);
        if (prepared_ && !prepared_->IsNull()) cell_->SetValue(*prepared_);
    }
    const bool own = taken && hasOwnDefault_;
    fits_ = own || rule_.Default.IsNull() || (prepared_ && IsShownExactly(*prepared_));
    if (!fits_) ShowAsIs();
    loaded_ = {};
    shown_ = Current();
    // What the database puts in itself need not be written; what only the form shows (yes or no too) must be.
    baseline_ = own ? prepared_.value_or(Variant::Null()) : shown_;
    if (rule_.Default.IsNull()) baseline_ = Variant::Null();
}

std::optional<Variant> FieldBinding::Decode(const FieldValue& value) const {
    if (rule_.Choices.isEmpty()) return FieldCodec::Decode(value, rule_.Kind);
    if (rule_.Kind != ValueKind::Boolean || value.IsNull())
        return FieldCodec::Decode(value, ValueKind::Choice);
    const auto answer = FieldCodec::Decode(value, ValueKind::Boolean);
    if (!answer) return std::nullopt;
    return Variant(*answer->Get<bool>() ? "1" : "0");
}

/// A list shows nothing through an entry of its own.
std::optional<Variant> FieldBinding::ForCell(const FieldValue& value) const {
    auto decoded = Decode(value);
    if (decoded && decoded->IsNull() && IsList()) return Variant("");
    return decoded;
}

bool FieldBinding::IsList() const {
    return cell_->Style() == qgcsList && cell_->ValidationRule() != qgvrBoolean;
}

bool FieldBinding::IsShownExactly(const Variant& value) const {
    if (IsNothing(value)) return cell_->Text().empty();
    const Variant shown = Current();
    if (IsList()) return cell_->ListIndex() >= 1 && EqualAsText(shown, value);
    if (const auto* text = value.Get<std::string>()) return shown.ToPlainText() == *text;
    return shown == value || (shown.IsNumber() && EqualAsText(shown, value));
}

void FieldBinding::ShowAsIs() {
    const bool expected = rule_.Kind == ValueKind::Unreadable && loaded_.IsWhole();
    const QString caption = expected || loaded_.IsNull() ? rule_.Caption : QString(rule_.Caption + u" ⚠");
    editable_ = loaded_.IsWhole() && rule_.Kind != ValueKind::Unreadable &&
                !FieldCodec::HasControlCharacters(loaded_.Text);
    cell_->Clear();
    // Secrets stay masked.
    cell_->Define({.NewCaption = Variant(caption.toStdString()),
                   .NewCellTemplate = rule_.Template == qgctPassword ? qgctPassword : qgctNone,
                   .NewGroup = Group()});
    cell_->SetMaxLength(2 * SqlDialect::LongestText);
    cell_->SetValue(Variant(VisibleLineBreaks(loaded_.Text).toStdString()));
    cell_->SetFontItalic(!expected);
    Describe(rule_.Description.ForAnyValue());
    if (!Hint().isEmpty()) cell_->SetTooltipText(Hint().toStdString());
}

QString FieldBinding::Hint() const {
    if (fits_ || loaded_.IsNull()) return {};
    if (loaded_.Kind == FieldValue::Storage::Binary) return QStringLiteral("Binary data are not shown.");
    if (loaded_.Kind == FieldValue::Storage::LongText)
        return QStringLiteral("Only the beginning of this text is shown.");
    if (rule_.Kind == ValueKind::Unreadable) return {};
    if (FieldCodec::HasControlCharacters(loaded_.Text)) {
        return QStringLiteral("Text of several lines is shown here but cannot be edited in one line.");
    }
    return QStringLiteral("“%1” is not %2; it is shown as the database has it.")
        .arg(loaded_.Text.left(60), QLatin1String(KindName(rule_.Kind)));
}

Variant FieldBinding::Current() const {
    const bool isBoolean = cell_->ValidationRule() == qgvrBoolean;
    if ((isBoolean || IsList()) && cell_->ListIndex() < 1) return Variant::Null();
    // The list's data of a boolean cell are numbers.
    return isBoolean ? Variant(cell_->ListIndex() == 1) : cell_->Value();
}

bool FieldBinding::Differs(const Variant& from) const {
    if (!IsWritten()) return false;
    const Variant now = Current();
    if (forceNull_ && IsNothing(now)) return !loaded_.IsNull();
    return !IsSameValue(now, from);
}

bool FieldBinding::IsTouched() const {
    return Differs(shown_);
}

bool FieldBinding::IsChanged() const {
    return Differs(baseline_);
}

void FieldBinding::SetNull() {
    if (!IsWritten() || !IsEditable(*cell_, 0) || !rule_.NullAllowed) return;
    cell_->SetValue(IsList() ? Variant("") : Variant::Null());
    forceNull_ = IsNothing(Current());
}

QVariant FieldBinding::Nothing() const {
    const bool text = rule_.Kind == ValueKind::Text && rule_.Choices.isEmpty();
    return text && !rule_.NullAllowed ? QVariant(QStringLiteral("")) : FieldCodec::SqlNull();
}

/// The entry's own value, so that it is bound in the type in which the other table keeps it.
QVariant FieldBinding::ChosenValue(const QString& text) const {
    for (const Choice& choice : rule_.Choices) {
        if (choice.Value.Text == text) return codec_.EncodeChoice(choice.Value);
    }
    return text;
}

Outcome<QVariant> FieldBinding::ToDatabase() const {
    const Variant now = Current();
    if (IsNothing(now)) return Nothing();
    const QString text = QString::fromStdString(now.ToPlainText());
    if (fits_ && !rule_.Choices.isEmpty()) return ChosenValue(text);
    if (fits_) return codec_.Encode(now, rule_.Kind, loaded_);
    if (const auto typed = codec_.EncodeTyped(text, rule_.Kind, locale_)) return *typed;
    return Failure{QStringLiteral("%1: “%2” is not %3.")
                       .arg(rule_.Caption, text.left(60), QLatin1String(KindName(rule_.Kind)))};
}

} // namespace quillgrid::editor
