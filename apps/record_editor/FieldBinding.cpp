#include "apps/record_editor/FieldBinding.h"

#include "apps/record_editor/SqlDialect.h"

#include "quillgrid/base/Text.h"

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
    cell_->Clear();
    cell_->Define({.NewCaption = Variant(rule_.Caption.toStdString()),
                   .NewCellTemplate = isList ? qgctlist : rule_.Template});
    if (isList) FillList();
    // Without such an entry a list cannot show "nothing", nor be set back to it.
    if (mayBeNothing && IsList()) cell_->Listitems().Add({.Text = "", .ItemData = Variant("")});
    if (!rule_.Min.IsNull()) cell_->SetMin(rule_.Min);
    if (!rule_.Max.IsNull()) cell_->SetMax(rule_.Max);
    if (rule_.Kind == ValueKind::Text) {
        cell_->SetMaxLength(rule_.MaxLength >= 0 ? rule_.MaxLength : SqlDialect::LongestText);
    }
    if (rule_.Format) cell_->SetFormat(rule_.Format->toStdString());
    if (rule_.HidesImage) cell_->SetListImage(Variant::Null());
    if (IsForeignEuro()) cell_->SetFormat("Standard");
    if (rule_.Unit) cell_->SetUnit(rule_.Unit->toStdString());
    if (rule_.Charlist) cell_->SetCharlist(rule_.Charlist->toStdString());
    cell_->SetAllowEmpty(rule_.AllowEmpty);
    Lock(rule_.Locked || readOnly_);
    cell_->SetVisible(rule_.Visible);
    cell_->SetTooltipText(rule_.ToolTip.toStdString());
}

/// Where people pay in another currency, its symbol beside euros would be wrong; the unit "EUR" is not.
bool FieldBinding::IsForeignEuro() const {
    return cell_->Template() == qgctEuro && !rule_.Format && locale_.CurrencySymbol != "€";
}

void FieldBinding::Lock(bool locked) {
    cell_->SetLocked(locked);
    if (locked) cell_->SetForeColor(ColourGreyText);
}

void FieldBinding::FillList() {
    for (const Choice& choice : rule_.Choices) {
        const Variant image = choice.Image.isEmpty() ? Variant::Null() : Variant(choice.Image.toStdString());
        cell_->Listitems().Add({.Text = choice.Text.toStdString(),
                                .ItemData = Variant(choice.Value.Text.toStdString()),
                                .ListImage = image});
    }
}

void FieldBinding::Load(const FieldValue& value) {
    Fill(value, rule_.NullAllowed);
    shown_ = baseline_ = Current();
}

void FieldBinding::Fill(const FieldValue& value, bool mayBeNothing) {
    loaded_ = value;
    forceNull_ = false;
    DefineCell(mayBeNothing);
    const auto decoded = DecodeLoaded();
    if (decoded && IsList())
        cell_->SetValue(decoded->IsNull() ? Variant("") : *decoded);
    else if (decoded && !decoded->IsNull())
        cell_->SetValue(*decoded);
    fits_ = decoded && IsShownExactly(*decoded);
    if (!fits_) ShowAsIs();
}

std::optional<Variant> FieldBinding::DecodeLoaded() const {
    if (rule_.Choices.isEmpty()) return FieldCodec::Decode(loaded_, rule_.Kind);
    if (rule_.Kind != ValueKind::Boolean || loaded_.IsNull())
        return FieldCodec::Decode(loaded_, ValueKind::Choice);
    const auto answer = FieldCodec::Decode(loaded_, ValueKind::Boolean);
    if (!answer) return std::nullopt;
    return Variant(*answer->Get<bool>() ? "1" : "0");
}

void FieldBinding::LoadNew() {
    const bool nothing = rule_.Default.IsNull();
    Fill(rule_.Default, true);
    if (nothing && !fits_) {
        DefineCell(true);
        fits_ = true;
    }
    loaded_ = {};
    shown_ = Current();
    // A cell that always shows something (yes or no) saves what it shows.
    baseline_ = nothing ? Variant::Null() : shown_;
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
    const bool editable = loaded_.IsWhole() && rule_.Kind != ValueKind::Unreadable &&
                          !FieldCodec::HasControlCharacters(loaded_.Text);
    const bool expected = rule_.Kind == ValueKind::Unreadable && loaded_.IsWhole();
    const QString caption = expected || loaded_.IsNull() ? rule_.Caption : QString(rule_.Caption + u" ⚠");
    cell_->Clear();
    cell_->Define({.NewCaption = Variant(caption.toStdString()), .NewCellTemplate = qgctNone});
    cell_->SetMaxLength(2 * SqlDialect::LongestText);
    cell_->SetValue(Variant(VisibleLineBreaks(loaded_.Text).toStdString()));
    Lock(!editable || rule_.Locked || readOnly_);
    cell_->SetVisible(rule_.Visible);
    cell_->SetFontItalic(!expected);
    cell_->SetTooltipText((Hint().isEmpty() ? rule_.ToolTip : Hint()).toStdString());
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
    if (cell_->Locked()) return false;
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
    if (cell_->Locked() || !rule_.NullAllowed) return;
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
