#include "quillgrid/grid/GridCore.h"
#include "quillgrid/grid/GridPropertyTable.h"
#include "quillgrid/grid/Quillgrid.h"

namespace quillgrid {

namespace {

// The calls hold the core by value: what they tell the container may destroy the control before they return.
using Core = std::shared_ptr<GridCore>;

template <typename Value>
void Set(const Core core, const GridProperty& property, // NOLINT(performance-unnecessary-value-param)
         const Value& value) {
    core->Setter.Set(property, ToPropertyValue(value));
}

} // namespace

quillgrid::Font Quillgrid::Font() const {
    return core_->State.Settings.Font;
}
void Quillgrid::SetFont(const quillgrid::Font& font) {
    Set(core_, PropertyNamed("Font"), font);
}

quillgrid::Font Quillgrid::CellFont() const {
    return core_->State.Settings.CellFont;
}
void Quillgrid::SetCellFont(const quillgrid::Font& font) {
    Set(core_, PropertyNamed("CellFont"), font);
}

quillgrid::Font Quillgrid::CaptionFont() const {
    return core_->State.Settings.CaptionFont;
}
void Quillgrid::SetCaptionFont(const quillgrid::Font& font) {
    Set(core_, PropertyNamed("CaptionFont"), font);
}

std::string Quillgrid::Caption() const {
    return core_->State.Settings.Caption;
}
void Quillgrid::SetCaption(std::string_view text) {
    Set(core_, PropertyNamed("Caption"), std::string(text));
}

std::string Quillgrid::TooltipText() const {
    return core_->State.Settings.TooltipText;
}
void Quillgrid::SetTooltipText(std::string_view text) {
    Set(core_, PropertyNamed("TooltipText"), std::string(text));
}

LanguageConstants Quillgrid::Language() const {
    return core_->State.Settings.Language;
}
void Quillgrid::SetLanguage(LanguageConstants number) {
    Set(core_, PropertyNamed("Language"), number);
}

StyleConstants Quillgrid::Style() const {
    return core_->State.Settings.Style;
}
void Quillgrid::SetStyle(StyleConstants number) {
    Set(core_, PropertyNamed("Style"), number);
}

AppearanceConstants Quillgrid::Appearance() const {
    return core_->State.Settings.Appearance;
}
void Quillgrid::SetAppearance(AppearanceConstants number) {
    Set(core_, PropertyNamed("Appearance"), number);
}

AlignmentConstants Quillgrid::Alignment() const {
    return core_->State.Settings.Alignment;
}
void Quillgrid::SetAlignment(AlignmentConstants number) {
    Set(core_, PropertyNamed("Alignment"), number);
}

std::int32_t Quillgrid::LabelWidth() const {
    return *core_->Setter.Get(PropertyNamed("LabelWidth")).Get<std::int32_t>();
}
void Quillgrid::SetLabelWidth(std::int32_t number) {
    Set(core_, PropertyNamed("LabelWidth"), number);
}

std::int32_t Quillgrid::CellCount() const {
    return core_->State.Settings.CellCount;
}
void Quillgrid::SetCellCount(std::int32_t number) {
    Set(core_, PropertyNamed("CellCount"), number);
}

std::int32_t Quillgrid::UserLevel() const {
    return core_->State.Settings.UserLevel;
}
void Quillgrid::SetUserLevel(std::int32_t number) {
    Set(core_, PropertyNamed("UserLevel"), number);
}

bool Quillgrid::AllowEnter() const {
    return core_->State.Settings.AllowEnter;
}
void Quillgrid::SetAllowEnter(bool flag) {
    Set(core_, PropertyNamed("AllowEnter"), flag);
}

bool Quillgrid::AllowWrap() const {
    return core_->State.Settings.AllowWrap;
}
void Quillgrid::SetAllowWrap(bool flag) {
    Set(core_, PropertyNamed("AllowWrap"), flag);
}

bool Quillgrid::AllowEscape() const {
    return core_->State.Settings.AllowEscape;
}
void Quillgrid::SetAllowEscape(bool flag) {
    Set(core_, PropertyNamed("AllowEscape"), flag);
}

std::string Quillgrid::NumSeparators() const {
    return core_->State.Settings.NumSeparators;
}
void Quillgrid::SetNumSeparators(std::string_view text) {
    Set(core_, PropertyNamed("NumSeparators"), std::string(text));
}

std::string Quillgrid::DateSeparators() const {
    return core_->State.Settings.DateSeparators;
}
void Quillgrid::SetDateSeparators(std::string_view text) {
    Set(core_, PropertyNamed("DateSeparators"), std::string(text));
}

std::string Quillgrid::TimeSeparators() const {
    return core_->State.Settings.TimeSeparators;
}
void Quillgrid::SetTimeSeparators(std::string_view text) {
    Set(core_, PropertyNamed("TimeSeparators"), std::string(text));
}

std::string Quillgrid::PasswordChar() const {
    return core_->State.Settings.PasswordChar;
}
void Quillgrid::SetPasswordChar(std::string_view text) {
    Set(core_, PropertyNamed("PasswordChar"), std::string(text));
}

bool Quillgrid::UseSystemColors() const {
    return core_->State.Settings.UseSystemColors;
}
void Quillgrid::SetUseSystemColors(bool flag) {
    Set(core_, PropertyNamed("UseSystemColors"), flag);
}

Colour Quillgrid::BackColor() const {
    return core_->State.Settings.BackColor;
}
void Quillgrid::SetBackColor(Colour colour) {
    Set(core_, PropertyNamed("BackColor"), colour);
}

Colour Quillgrid::CellForeColor() const {
    return core_->State.Settings.CellForeColor;
}
void Quillgrid::SetCellForeColor(Colour colour) {
    Set(core_, PropertyNamed("CellForeColor"), colour);
}

Colour Quillgrid::CellForeColorDisabled() const {
    return core_->State.Settings.CellForeColorDisabled;
}
void Quillgrid::SetCellForeColorDisabled(Colour colour) {
    Set(core_, PropertyNamed("CellForeColorDisabled"), colour);
}

Colour Quillgrid::CellForeColorError() const {
    return core_->State.Settings.CellForeColorError;
}
void Quillgrid::SetCellForeColorError(Colour colour) {
    Set(core_, PropertyNamed("CellForeColorError"), colour);
}

Colour Quillgrid::CellBackColor() const {
    return core_->State.Settings.CellBackColor;
}
void Quillgrid::SetCellBackColor(Colour colour) {
    Set(core_, PropertyNamed("CellBackColor"), colour);
}

Colour Quillgrid::CellBackColorDisabled() const {
    return core_->State.Settings.CellBackColorDisabled;
}
void Quillgrid::SetCellBackColorDisabled(Colour colour) {
    Set(core_, PropertyNamed("CellBackColorDisabled"), colour);
}

Colour Quillgrid::LabelForeColor() const {
    return core_->State.Settings.LabelForeColor;
}
void Quillgrid::SetLabelForeColor(Colour colour) {
    Set(core_, PropertyNamed("LabelForeColor"), colour);
}

Colour Quillgrid::LabelForeColorFocus() const {
    return core_->State.Settings.LabelForeColorFocus;
}
void Quillgrid::SetLabelForeColorFocus(Colour colour) {
    Set(core_, PropertyNamed("LabelForeColorFocus"), colour);
}

Colour Quillgrid::LabelBackColor() const {
    return core_->State.Settings.LabelBackColor;
}
void Quillgrid::SetLabelBackColor(Colour colour) {
    Set(core_, PropertyNamed("LabelBackColor"), colour);
}

Colour Quillgrid::LabelBackColorFocus() const {
    return core_->State.Settings.LabelBackColorFocus;
}
void Quillgrid::SetLabelBackColorFocus(Colour colour) {
    Set(core_, PropertyNamed("LabelBackColorFocus"), colour);
}

Colour Quillgrid::Gridcolor() const {
    return core_->State.Settings.Gridcolor;
}
void Quillgrid::SetGridcolor(Colour colour) {
    Set(core_, PropertyNamed("Gridcolor"), colour);
}

Colour Quillgrid::GroupBoxColor() const {
    return core_->State.Settings.GroupBoxColor;
}
void Quillgrid::SetGroupBoxColor(Colour colour) {
    Set(core_, PropertyNamed("GroupBoxColor"), colour);
}

Colour Quillgrid::FillColor() const {
    return core_->State.Settings.FillColor;
}
void Quillgrid::SetFillColor(Colour colour) {
    Set(core_, PropertyNamed("FillColor"), colour);
}

BorderStyleConstants Quillgrid::BorderStyle() const {
    return core_->State.Settings.BorderStyle;
}
void Quillgrid::SetBorderStyle(BorderStyleConstants number) {
    Set(core_, PropertyNamed("BorderStyle"), number);
}

std::int32_t Quillgrid::BorderWidth() const {
    return core_->State.Settings.BorderWidth;
}
void Quillgrid::SetBorderWidth(std::int32_t number) {
    Set(core_, PropertyNamed("BorderWidth"), number);
}

std::int32_t Quillgrid::BevelWidth() const {
    return core_->State.Settings.BevelWidth;
}
void Quillgrid::SetBevelWidth(std::int32_t number) {
    Set(core_, PropertyNamed("BevelWidth"), number);
}

BevelInnerConstants Quillgrid::BevelInner() const {
    return core_->State.Settings.BevelInner;
}
void Quillgrid::SetBevelInner(BevelInnerConstants number) {
    Set(core_, PropertyNamed("BevelInner"), number);
}

BevelOuterConstants Quillgrid::BevelOuter() const {
    return core_->State.Settings.BevelOuter;
}
void Quillgrid::SetBevelOuter(BevelOuterConstants number) {
    Set(core_, PropertyNamed("BevelOuter"), number);
}

bool Quillgrid::ShowCaption() const {
    return core_->State.Settings.ShowCaption;
}
void Quillgrid::SetShowCaption(bool flag) {
    Set(core_, PropertyNamed("ShowCaption"), flag);
}

bool Quillgrid::ShowCloseBox() const {
    return core_->State.Settings.ShowCloseBox;
}
void Quillgrid::SetShowCloseBox(bool flag) {
    Set(core_, PropertyNamed("ShowCloseBox"), flag);
}

bool Quillgrid::ShowMenuBox() const {
    return core_->State.Settings.ShowMenuBox;
}
void Quillgrid::SetShowMenuBox(bool flag) {
    Set(core_, PropertyNamed("ShowMenuBox"), flag);
}

bool Quillgrid::ShowGroupBox() const {
    return core_->State.Settings.ShowGroupBox;
}
void Quillgrid::SetShowGroupBox(bool flag) {
    Set(core_, PropertyNamed("ShowGroupBox"), flag);
}

bool Quillgrid::ShowTips() const {
    return core_->State.Settings.ShowTips;
}
void Quillgrid::SetShowTips(bool flag) {
    Set(core_, PropertyNamed("ShowTips"), flag);
}

bool Quillgrid::Grouped() const {
    return core_->State.Settings.Grouped;
}
void Quillgrid::SetGrouped(bool flag) {
    Set(core_, PropertyNamed("Grouped"), flag);
}

bool Quillgrid::Sorted() const {
    return core_->State.Settings.Sorted;
}
void Quillgrid::SetSorted(bool flag) {
    Set(core_, PropertyNamed("Sorted"), flag);
}

AutoHolidayConstants Quillgrid::AutoHolidays() const {
    return core_->State.Settings.AutoHolidays;
}
void Quillgrid::SetAutoHolidays(AutoHolidayConstants number) {
    Set(core_, PropertyNamed("AutoHolidays"), number);
}

bool Quillgrid::AllowHoliday() const {
    return core_->State.Settings.AllowHoliday;
}
void Quillgrid::SetAllowHoliday(bool flag) {
    Set(core_, PropertyNamed("AllowHoliday"), flag);
}

bool Quillgrid::AllowSaturday() const {
    return core_->State.Settings.AllowSaturday;
}
void Quillgrid::SetAllowSaturday(bool flag) {
    Set(core_, PropertyNamed("AllowSaturday"), flag);
}

bool Quillgrid::AllowSunday() const {
    return core_->State.Settings.AllowSunday;
}
void Quillgrid::SetAllowSunday(bool flag) {
    Set(core_, PropertyNamed("AllowSunday"), flag);
}

DayOfWeekConstants Quillgrid::FirstDayOfWeek() const {
    return core_->State.Settings.FirstDayOfWeek;
}
void Quillgrid::SetFirstDayOfWeek(DayOfWeekConstants number) {
    Set(core_, PropertyNamed("FirstDayOfWeek"), number);
}

FirstWeekOfYearConstants Quillgrid::FirstWeekOfYear() const {
    return core_->State.Settings.FirstWeekOfYear;
}
void Quillgrid::SetFirstWeekOfYear(FirstWeekOfYearConstants number) {
    Set(core_, PropertyNamed("FirstWeekOfYear"), number);
}

bool Quillgrid::WorkHoliday() const {
    return core_->State.Settings.WorkHoliday;
}
void Quillgrid::SetWorkHoliday(bool flag) {
    Set(core_, PropertyNamed("WorkHoliday"), flag);
}

bool Quillgrid::WorkSaturday() const {
    return core_->State.Settings.WorkSaturday;
}
void Quillgrid::SetWorkSaturday(bool flag) {
    Set(core_, PropertyNamed("WorkSaturday"), flag);
}

bool Quillgrid::WorkSunday() const {
    return core_->State.Settings.WorkSunday;
}
void Quillgrid::SetWorkSunday(bool flag) {
    Set(core_, PropertyNamed("WorkSunday"), flag);
}

} // namespace quillgrid
