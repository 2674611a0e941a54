#include "quillgrid/grid/GridCore.h"
#include "quillgrid/grid/GridPropertyTable.h"
#include "quillgrid/grid/Quillgrid.h"

namespace quillgrid {

namespace {

// The calls hold the core by value: what they tell the container may destroy the control before they return.
using Core = std::shared_ptr<GridCore>;

template <auto Field, typename Value>
void Set(const Core core, const Value& value) { // NOLINT(performance-unnecessary-value-param)
    core->Setter.Set(PropertyOf<Field>, ToPropertyValue(value));
}

} // namespace

quillgrid::Font Quillgrid::Font() const {
    return core_->State.Settings.Font;
}
void Quillgrid::SetFont(const quillgrid::Font& font) {
    Set<&GridSettings::Font>(core_, font);
}

quillgrid::Font Quillgrid::CellFont() const {
    return core_->State.Settings.CellFont;
}
void Quillgrid::SetCellFont(const quillgrid::Font& font) {
    Set<&GridSettings::CellFont>(core_, font);
}

quillgrid::Font Quillgrid::CaptionFont() const {
    return core_->State.Settings.CaptionFont;
}
void Quillgrid::SetCaptionFont(const quillgrid::Font& font) {
    Set<&GridSettings::CaptionFont>(core_, font);
}

std::string Quillgrid::Caption() const {
    return core_->State.Settings.Caption;
}
void Quillgrid::SetCaption(std::string_view text) {
    Set<&GridSettings::Caption>(core_, std::string(text));
}

std::string Quillgrid::TooltipText() const {
    return core_->State.Settings.TooltipText;
}
void Quillgrid::SetTooltipText(std::string_view text) {
    Set<&GridSettings::TooltipText>(core_, std::string(text));
}

LanguageConstants Quillgrid::Language() const {
    return core_->State.Settings.Language;
}
void Quillgrid::SetLanguage(LanguageConstants number) {
    Set<&GridSettings::Language>(core_, number);
}

StyleConstants Quillgrid::Style() const {
    return core_->State.Settings.Style;
}
void Quillgrid::SetStyle(StyleConstants number) {
    Set<&GridSettings::Style>(core_, number);
}

AppearanceConstants Quillgrid::Appearance() const {
    return core_->State.Settings.Appearance;
}
void Quillgrid::SetAppearance(AppearanceConstants number) {
    Set<&GridSettings::Appearance>(core_, number);
}

AlignmentConstants Quillgrid::Alignment() const {
    return core_->State.Settings.Alignment;
}
void Quillgrid::SetAlignment(AlignmentConstants number) {
    Set<&GridSettings::Alignment>(core_, number);
}

std::int32_t Quillgrid::LabelWidth() const {
    return *core_->Setter.Get(PropertyOf<&GridSettings::LabelWidth>).Get<std::int32_t>();
}
void Quillgrid::SetLabelWidth(std::int32_t number) {
    Set<&GridSettings::LabelWidth>(core_, number);
}

std::int32_t Quillgrid::CellCount() const {
    return core_->State.Settings.CellCount;
}
void Quillgrid::SetCellCount(std::int32_t number) {
    Set<&GridSettings::CellCount>(core_, number);
}

std::int32_t Quillgrid::UserLevel() const {
    return core_->State.Settings.UserLevel;
}
void Quillgrid::SetUserLevel(std::int32_t number) {
    Set<&GridSettings::UserLevel>(core_, number);
}

bool Quillgrid::AllowEnter() const {
    return core_->State.Settings.AllowEnter;
}
void Quillgrid::SetAllowEnter(bool flag) {
    Set<&GridSettings::AllowEnter>(core_, flag);
}

bool Quillgrid::AllowWrap() const {
    return core_->State.Settings.AllowWrap;
}
void Quillgrid::SetAllowWrap(bool flag) {
    Set<&GridSettings::AllowWrap>(core_, flag);
}

bool Quillgrid::AllowEscape() const {
    return core_->State.Settings.AllowEscape;
}
void Quillgrid::SetAllowEscape(bool flag) {
    Set<&GridSettings::AllowEscape>(core_, flag);
}

std::string Quillgrid::NumSeparators() const {
    return core_->State.Settings.NumSeparators;
}
void Quillgrid::SetNumSeparators(std::string_view text) {
    Set<&GridSettings::NumSeparators>(core_, std::string(text));
}

std::string Quillgrid::DateSeparators() const {
    return core_->State.Settings.DateSeparators;
}
void Quillgrid::SetDateSeparators(std::string_view text) {
    Set<&GridSettings::DateSeparators>(core_, std::string(text));
}

std::string Quillgrid::TimeSeparators() const {
    return core_->State.Settings.TimeSeparators;
}
void Quillgrid::SetTimeSeparators(std::string_view text) {
    Set<&GridSettings::TimeSeparators>(core_, std::string(text));
}

std::string Quillgrid::PasswordChar() const {
    return core_->State.Settings.PasswordChar;
}
void Quillgrid::SetPasswordChar(std::string_view text) {
    Set<&GridSettings::PasswordChar>(core_, std::string(text));
}

bool Quillgrid::UseSystemColors() const {
    return core_->State.Settings.UseSystemColors;
}
void Quillgrid::SetUseSystemColors(bool flag) {
    Set<&GridSettings::UseSystemColors>(core_, flag);
}

Colour Quillgrid::BackColor() const {
    return core_->State.Settings.BackColor;
}
void Quillgrid::SetBackColor(Colour colour) {
    Set<&GridSettings::BackColor>(core_, colour);
}

Colour Quillgrid::CellForeColor() const {
    return core_->State.Settings.CellForeColor;
}
void Quillgrid::SetCellForeColor(Colour colour) {
    Set<&GridSettings::CellForeColor>(core_, colour);
}

Colour Quillgrid::CellForeColorDisabled() const {
    return core_->State.Settings.CellForeColorDisabled;
}
void Quillgrid::SetCellForeColorDisabled(Colour colour) {
    Set<&GridSettings::CellForeColorDisabled>(core_, colour);
}

Colour Quillgrid::CellForeColorError() const {
    return core_->State.Settings.CellForeColorError;
}
void Quillgrid::SetCellForeColorError(Colour colour) {
    Set<&GridSettings::CellForeColorError>(core_, colour);
}

Colour Quillgrid::CellBackColor() const {
    return core_->State.Settings.CellBackColor;
}
void Quillgrid::SetCellBackColor(Colour colour) {
    Set<&GridSettings::CellBackColor>(core_, colour);
}

Colour Quillgrid::CellBackColorDisabled() const {
    return core_->State.Settings.CellBackColorDisabled;
}
void Quillgrid::SetCellBackColorDisabled(Colour colour) {
    Set<&GridSettings::CellBackColorDisabled>(core_, colour);
}

Colour Quillgrid::LabelForeColor() const {
    return core_->State.Settings.LabelForeColor;
}
void Quillgrid::SetLabelForeColor(Colour colour) {
    Set<&GridSettings::LabelForeColor>(core_, colour);
}

Colour Quillgrid::LabelForeColorFocus() const {
    return core_->State.Settings.LabelForeColorFocus;
}
void Quillgrid::SetLabelForeColorFocus(Colour colour) {
    Set<&GridSettings::LabelForeColorFocus>(core_, colour);
}

Colour Quillgrid::LabelBackColor() const {
    return core_->State.Settings.LabelBackColor;
}
void Quillgrid::SetLabelBackColor(Colour colour) {
    Set<&GridSettings::LabelBackColor>(core_, colour);
}

Colour Quillgrid::LabelBackColorFocus() const {
    return core_->State.Settings.LabelBackColorFocus;
}
void Quillgrid::SetLabelBackColorFocus(Colour colour) {
    Set<&GridSettings::LabelBackColorFocus>(core_, colour);
}

Colour Quillgrid::Gridcolor() const {
    return core_->State.Settings.Gridcolor;
}
void Quillgrid::SetGridcolor(Colour colour) {
    Set<&GridSettings::Gridcolor>(core_, colour);
}

Colour Quillgrid::GroupBoxColor() const {
    return core_->State.Settings.GroupBoxColor;
}
void Quillgrid::SetGroupBoxColor(Colour colour) {
    Set<&GridSettings::GroupBoxColor>(core_, colour);
}

Colour Quillgrid::FillColor() const {
    return core_->State.Settings.FillColor;
}
void Quillgrid::SetFillColor(Colour colour) {
    Set<&GridSettings::FillColor>(core_, colour);
}

BorderStyleConstants Quillgrid::BorderStyle() const {
    return core_->State.Settings.BorderStyle;
}
void Quillgrid::SetBorderStyle(BorderStyleConstants number) {
    Set<&GridSettings::BorderStyle>(core_, number);
}

std::int32_t Quillgrid::BorderWidth() const {
    return core_->State.Settings.BorderWidth;
}
void Quillgrid::SetBorderWidth(std::int32_t number) {
    Set<&GridSettings::BorderWidth>(core_, number);
}

std::int32_t Quillgrid::BevelWidth() const {
    return core_->State.Settings.BevelWidth;
}
void Quillgrid::SetBevelWidth(std::int32_t number) {
    Set<&GridSettings::BevelWidth>(core_, number);
}

BevelInnerConstants Quillgrid::BevelInner() const {
    return core_->State.Settings.BevelInner;
}
void Quillgrid::SetBevelInner(BevelInnerConstants number) {
    Set<&GridSettings::BevelInner>(core_, number);
}

BevelOuterConstants Quillgrid::BevelOuter() const {
    return core_->State.Settings.BevelOuter;
}
void Quillgrid::SetBevelOuter(BevelOuterConstants number) {
    Set<&GridSettings::BevelOuter>(core_, number);
}

bool Quillgrid::ShowCaption() const {
    return core_->State.Settings.ShowCaption;
}
void Quillgrid::SetShowCaption(bool flag) {
    Set<&GridSettings::ShowCaption>(core_, flag);
}

bool Quillgrid::ShowCloseBox() const {
    return core_->State.Settings.ShowCloseBox;
}
void Quillgrid::SetShowCloseBox(bool flag) {
    Set<&GridSettings::ShowCloseBox>(core_, flag);
}

bool Quillgrid::ShowMenuBox() const {
    return core_->State.Settings.ShowMenuBox;
}
void Quillgrid::SetShowMenuBox(bool flag) {
    Set<&GridSettings::ShowMenuBox>(core_, flag);
}

bool Quillgrid::ShowGroupBox() const {
    return core_->State.Settings.ShowGroupBox;
}
void Quillgrid::SetShowGroupBox(bool flag) {
    Set<&GridSettings::ShowGroupBox>(core_, flag);
}

bool Quillgrid::ShowTips() const {
    return core_->State.Settings.ShowTips;
}
void Quillgrid::SetShowTips(bool flag) {
    Set<&GridSettings::ShowTips>(core_, flag);
}

bool Quillgrid::Grouped() const {
    return core_->State.Settings.Grouped;
}
void Quillgrid::SetGrouped(bool flag) {
    Set<&GridSettings::Grouped>(core_, flag);
}

bool Quillgrid::Sorted() const {
    return core_->State.Settings.Sorted;
}
void Quillgrid::SetSorted(bool flag) {
    Set<&GridSettings::Sorted>(core_, flag);
}

AutoHolidayConstants Quillgrid::AutoHolidays() const {
    return core_->State.Settings.AutoHolidays;
}
void Quillgrid::SetAutoHolidays(AutoHolidayConstants number) {
    Set<&GridSettings::AutoHolidays>(core_, number);
}

bool Quillgrid::AllowHoliday() const {
    return core_->State.Settings.AllowHoliday;
}
void Quillgrid::SetAllowHoliday(bool flag) {
    Set<&GridSettings::AllowHoliday>(core_, flag);
}

bool Quillgrid::AllowSaturday() const {
    return core_->State.Settings.AllowSaturday;
}
void Quillgrid::SetAllowSaturday(bool flag) {
    Set<&GridSettings::AllowSaturday>(core_, flag);
}

bool Quillgrid::AllowSunday() const {
    return core_->State.Settings.AllowSunday;
}
void Quillgrid::SetAllowSunday(bool flag) {
    Set<&GridSettings::AllowSunday>(core_, flag);
}

DayOfWeekConstants Quillgrid::FirstDayOfWeek() const {
    return core_->State.Settings.FirstDayOfWeek;
}
void Quillgrid::SetFirstDayOfWeek(DayOfWeekConstants number) {
    Set<&GridSettings::FirstDayOfWeek>(core_, number);
}

FirstWeekOfYearConstants Quillgrid::FirstWeekOfYear() const {
    return core_->State.Settings.FirstWeekOfYear;
}
void Quillgrid::SetFirstWeekOfYear(FirstWeekOfYearConstants number) {
    Set<&GridSettings::FirstWeekOfYear>(core_, number);
}

bool Quillgrid::WorkHoliday() const {
    return core_->State.Settings.WorkHoliday;
}
void Quillgrid::SetWorkHoliday(bool flag) {
    Set<&GridSettings::WorkHoliday>(core_, flag);
}

bool Quillgrid::WorkSaturday() const {
    return core_->State.Settings.WorkSaturday;
}
void Quillgrid::SetWorkSaturday(bool flag) {
    Set<&GridSettings::WorkSaturday>(core_, flag);
}

bool Quillgrid::WorkSunday() const {
    return core_->State.Settings.WorkSunday;
}
void Quillgrid::SetWorkSunday(bool flag) {
    Set<&GridSettings::WorkSunday>(core_, flag);
}

} // namespace quillgrid
