#include "quillgrid/base/Text.h"
#include "quillgrid/cells/LanguageTexts.h"
#include "quillgrid/grid/GridCore.h"
#include "quillgrid/grid/Quillgrid.h"

#include <algorithm>

namespace quillgrid {

namespace {

// The calls hold the core by value: a handler may destroy the control before they return.
// NOLINTBEGIN(performance-unnecessary-value-param)
using Core = std::shared_ptr<GridCore>;

template <typename Field>
void Store(const Core core, Field GridSettings::*field, Field value) {
    core->State.Settings.*field = std::move(value);
    core->SettingChanged();
}

template <typename Field>
void StoreForOrder(const Core core, Field GridSettings::*field, Field value) {
    core->OrderChanged();
    Store(core, field, value);
}
// NOLINTEND(performance-unnecessary-value-param)

/// `text` with the characters of `needed` that it lacks put in front, one after the other.
std::string Completed(std::string_view text, std::u32string_view needed) {
    std::string result = RepairUtf8(text);
    for (const char32_t character : needed) {
        if (ContainsIgnoreCase(result, character)) continue;
        std::string front;
        AppendUtf8(front, character);
        result.insert(0, front);
    }
    return result;
}

} // namespace

quillgrid::Font Quillgrid::Font() const {
    return core_->State.Settings.Font;
}
void Quillgrid::SetFont(const quillgrid::Font& font) {
    Store(core_, &GridSettings::Font, font);
}

quillgrid::Font Quillgrid::CellFont() const {
    return core_->State.Settings.CellFont;
}
void Quillgrid::SetCellFont(const quillgrid::Font& font) {
    Store(core_, &GridSettings::CellFont, font);
}

LanguageConstants Quillgrid::Language() const {
    return core_->State.Settings.Language;
}
void Quillgrid::SetLanguage(LanguageConstants language) {
    core_->State.Settings.Language = language;
    core_->RefillLanguage();
    core_->SettingChanged();
}

StyleConstants Quillgrid::Style() const {
    return core_->State.Settings.Style;
}
void Quillgrid::SetStyle(StyleConstants style) {
    const Core core = core_;
    if (style == core->State.Settings.Style) return;
    if (style != qgstDefault && style != qgstPropertyList) {
        throw RaiseControlError(qgerrUserDefined, "Quillgrid: Style Method");
    }
    core->State.Settings.Style = style;
    core->View.ShowFrom(1);
    core->Selector.Select(1);
    core->SettingChanged();
}

AlignmentConstants Quillgrid::Alignment() const {
    return core_->State.Settings.Alignment;
}
void Quillgrid::SetAlignment(AlignmentConstants alignment) {
    if (alignment == Alignment()) return;
    Store(core_, &GridSettings::Alignment, std::clamp(alignment, qgalLeftJustify, qgalRightJustify));
}

std::int32_t Quillgrid::LabelWidth() const {
    return core_->State.Settings.LabelWidth;
}
void Quillgrid::SetLabelWidth(std::int32_t width) {
    Store(core_, &GridSettings::LabelWidth, std::max(width, 0));
}

std::int32_t Quillgrid::UserLevel() const {
    return core_->State.Settings.UserLevel;
}
void Quillgrid::SetUserLevel(std::int32_t level) {
    StoreForOrder(core_, &GridSettings::UserLevel, level);
}

bool Quillgrid::AllowEnter() const {
    return core_->State.Settings.AllowEnter;
}
void Quillgrid::SetAllowEnter(bool allow) {
    core_->State.Settings.AllowEnter = allow;
}

bool Quillgrid::AllowWrap() const {
    return core_->State.Settings.AllowWrap;
}
void Quillgrid::SetAllowWrap(bool allow) {
    core_->State.Settings.AllowWrap = allow;
}

bool Quillgrid::AllowEscape() const {
    return core_->State.Settings.AllowEscape;
}
void Quillgrid::SetAllowEscape(bool allow) {
    core_->State.Settings.AllowEscape = allow;
}

std::string Quillgrid::NumSeparators() const {
    return core_->State.Settings.NumSeparators;
}
void Quillgrid::SetNumSeparators(std::string_view separators) {
    core_->State.Settings.NumSeparators = Completed(separators, U",.");
}

std::string Quillgrid::DateSeparators() const {
    return core_->State.Settings.DateSeparators;
}
void Quillgrid::SetDateSeparators(std::string_view separators) {
    core_->State.Settings.DateSeparators = Completed(separators, U"/.");
}

std::string Quillgrid::TimeSeparators() const {
    return core_->State.Settings.TimeSeparators;
}
void Quillgrid::SetTimeSeparators(std::string_view separators) {
    core_->State.Settings.TimeSeparators = Completed(separators, U":");
}

std::string Quillgrid::PasswordChar() const {
    return core_->State.Settings.PasswordChar;
}
void Quillgrid::SetPasswordChar(std::string_view character) {
    const std::string repaired = RepairUtf8(character);
    const std::string_view first = FirstCharacters(repaired, 1);
    Store(core_, &GridSettings::PasswordChar, first.empty() ? std::string("*") : std::string(first));
}

bool Quillgrid::UseSystemColors() const {
    return core_->State.Settings.UseSystemColors;
}
void Quillgrid::SetUseSystemColors(bool use) {
    Store(core_, &GridSettings::UseSystemColors, use);
}

Colour Quillgrid::BackColor() const {
    return core_->State.Settings.BackColor;
}
void Quillgrid::SetBackColor(Colour colour) {
    Store(core_, &GridSettings::BackColor, colour);
}

Colour Quillgrid::CellForeColor() const {
    return core_->State.Settings.CellForeColor;
}
void Quillgrid::SetCellForeColor(Colour colour) {
    Store(core_, &GridSettings::CellForeColor, colour);
}

Colour Quillgrid::CellForeColorDisabled() const {
    return core_->State.Settings.CellForeColorDisabled;
}
void Quillgrid::SetCellForeColorDisabled(Colour colour) {
    Store(core_, &GridSettings::CellForeColorDisabled, colour);
}

Colour Quillgrid::CellForeColorError() const {
    return core_->State.Settings.CellForeColorError;
}
void Quillgrid::SetCellForeColorError(Colour colour) {
    Store(core_, &GridSettings::CellForeColorError, colour);
}

Colour Quillgrid::CellBackColor() const {
    return core_->State.Settings.CellBackColor;
}
void Quillgrid::SetCellBackColor(Colour colour) {
    Store(core_, &GridSettings::CellBackColor, colour);
}

Colour Quillgrid::CellBackColorDisabled() const {
    return core_->State.Settings.CellBackColorDisabled;
}
void Quillgrid::SetCellBackColorDisabled(Colour colour) {
    Store(core_, &GridSettings::CellBackColorDisabled, colour);
}

Colour Quillgrid::LabelForeColor() const {
    return core_->State.Settings.LabelForeColor;
}
void Quillgrid::SetLabelForeColor(Colour colour) {
    Store(core_, &GridSettings::LabelForeColor, colour);
}

Colour Quillgrid::LabelForeColorFocus() const {
    return core_->State.Settings.LabelForeColorFocus;
}
void Quillgrid::SetLabelForeColorFocus(Colour colour) {
    Store(core_, &GridSettings::LabelForeColorFocus, colour);
}

Colour Quillgrid::LabelBackColor() const {
    return core_->State.Settings.LabelBackColor;
}
void Quillgrid::SetLabelBackColor(Colour colour) {
    Store(core_, &GridSettings::LabelBackColor, colour);
}

Colour Quillgrid::LabelBackColorFocus() const {
    return core_->State.Settings.LabelBackColorFocus;
}
void Quillgrid::SetLabelBackColorFocus(Colour colour) {
    Store(core_, &GridSettings::LabelBackColorFocus, colour);
}

Colour Quillgrid::Gridcolor() const {
    return core_->State.Settings.Gridcolor;
}
void Quillgrid::SetGridcolor(Colour colour) {
    Store(core_, &GridSettings::Gridcolor, colour);
}

Colour Quillgrid::FillColor() const {
    return core_->State.Settings.FillColor;
}
void Quillgrid::SetFillColor(Colour colour) {
    Store(core_, &GridSettings::FillColor, colour);
}

BorderStyleConstants Quillgrid::BorderStyle() const {
    return core_->State.Settings.BorderStyle;
}
void Quillgrid::SetBorderStyle(BorderStyleConstants style) {
    if (style != BorderStyle()) Store(core_, &GridSettings::BorderStyle, style);
}

std::int32_t Quillgrid::BorderWidth() const {
    return core_->State.Settings.BorderWidth;
}
void Quillgrid::SetBorderWidth(std::int32_t width) {
    Store(core_, &GridSettings::BorderWidth, std::clamp(width, 0, 999));
}

std::int32_t Quillgrid::BevelWidth() const {
    return core_->State.Settings.BevelWidth;
}
void Quillgrid::SetBevelWidth(std::int32_t width) {
    Store(core_, &GridSettings::BevelWidth, std::clamp(width, 0, 99));
}

bool Quillgrid::Grouped() const {
    return core_->State.Settings.Grouped;
}
void Quillgrid::SetGrouped(bool grouped) {
    StoreForOrder(core_, &GridSettings::Grouped, grouped);
}

bool Quillgrid::Sorted() const {
    return core_->State.Settings.Sorted;
}
void Quillgrid::SetSorted(bool sorted) {
    StoreForOrder(core_, &GridSettings::Sorted, sorted);
}

} // namespace quillgrid
