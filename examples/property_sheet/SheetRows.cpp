#include "examples/property_sheet/SheetRows.h"

#include "quillgrid/base/Text.h"

#include <algorithm>

namespace quillgrid::example {
namespace {

constexpr Choice Sides[] = {{0, "Left"}, {1, "Right"}};
constexpr Choice Styles[] = {{0, "Form"}, {1, "Property list"}};
constexpr Choice Appearances[] = {{0, "3D"}, {1, "Flat"}, {2, "Flat until the mouse comes"}};
constexpr Choice Borders[] = {{0, "None"},   {1, "Flat"},          {2, "Sunken"},
                              {3, "Raised"}, {4, "Sunken, light"}, {5, "Raised, light"}};
constexpr Choice InnerBevels[] = {{0, "None"},       {1, "Flat"},          {2, "Sunken"},
                                  {3, "Raised"},     {4, "Sunken, light"}, {5, "Raised, light"},
                                  {6, "Group frame"}};
constexpr Choice OuterBevels[] = {{0, "None"},
                                  {1, "Flat"},
                                  {2, "Sunken"},
                                  {3, "Raised"},
                                  {4, "Sunken, light"},
                                  {5, "Raised, light"},
                                  {7, "Panel at the left"},
                                  {8, "Panel at the right"},
                                  {9, "Panel in the middle"},
                                  {10, "Dialog, left part"},
                                  {11, "Dialog, upper part"}};
constexpr Choice Languages[] = {{0, "Default"}, {1, "English"}, {2, "French"},
                                {3, "Italian"}, {4, "Spanish"}, {5, "German"}};
constexpr Choice Countries[] = {
    {0, "None"}, {1, "Germany"}, {2, "Austria"}, {3, "Switzerland"}, {99, "International"}};
constexpr Choice Days[] = {{0, "As the system has it"},
                           {1, "Sunday"},
                           {2, "Monday"},
                           {3, "Tuesday"},
                           {4, "Wednesday"},
                           {5, "Thursday"},
                           {6, "Friday"},
                           {7, "Saturday"}};
constexpr Choice Weeks[] = {
    {0, "As the system has it"}, {1, "With 1 January"}, {2, "With four days"}, {3, "First full week"}};

using enum RowKind;
constexpr const char* Look = "Look";
constexpr const char* Colours = "Colours";
constexpr const char* Input = "Input";
constexpr const char* Rows = "Rows";
constexpr const char* Calendar = "Calendar";

// clang-format off
constexpr SheetRow Table[] = {
    {"Alignment",             Look,     Choice, Sides},
    {"AllowEnter",            Input,    YesNo},
    {"AllowEscape",           Input,    YesNo},
    {"AllowHoliday",          Calendar, YesNo},
    {"AllowSaturday",         Calendar, YesNo},
    {"AllowSunday",           Calendar, YesNo},
    {"AutoHolidays",          Calendar, Choice, Countries},
    {"AllowWrap",             Input,    YesNo},
    {"Appearance",            Look,     Choice, Appearances},
    {"BackColor",             Colours,  Colour},
    {"BevelInner",            Look,     Choice, InnerBevels},
    {"BevelOuter",            Look,     Choice, OuterBevels},
    {"BevelWidth",            Look,     Number, {}, 0, 99},
    {"BorderStyle",           Look,     Choice, Borders},
    {"BorderWidth",           Look,     Number, {}, 0, 999},
    {"Caption",               Look,     Text},
    {"CellBackColor",         Colours,  Colour},
    {"CellBackColorDisabled", Colours,  Colour},
    {"CellCount",             Rows,     Number, {}, 1, 1000},
    {"CellForeColor",         Colours,  Colour},
    {"CellForeColorDisabled", Colours,  Colour},
    {"CellForeColorError",    Colours,  Colour},
    {"DateSeparators",        Input,    Text},
    {"FillColor",             Colours,  Colour},
    {"FirstDayOfWeek",        Calendar, Choice, Days},
    {"FirstWeekOfYear",       Calendar, Choice, Weeks},
    {"Gridcolor",             Colours,  Colour},
    {"Grouped",               Rows,     YesNo},
    {"GroupBoxColor",         Colours,  Colour},
    {"LabelBackColor",        Colours,  Colour},
    {"LabelBackColorFocus",   Colours,  Colour},
    {"LabelForeColor",        Colours,  Colour},
    {"LabelForeColorFocus",   Colours,  Colour},
    {"LabelWidth",            Look,     Number},
    {"Language",              Input,    Choice, Languages},
    {"NumSeparators",         Input,    Text},
    {"PasswordChar",          Input,    Text},
    {"ShowCaption",           Look,     YesNo},
    {"ShowCloseBox",          Look,     YesNo},
    {"ShowGroupBox",          Look,     YesNo},
    {"ShowMenuBox",           Look,     YesNo},
    {"ShowTips",              Look,     YesNo},
    {"Sorted",                Rows,     YesNo},
    {"Style",                 Look,     Choice, Styles},
    {"TimeSeparators",        Input,    Text},
    {"TooltipText",           Input,    Text},
    {"UserLevel",             Rows,     Number},
    {"UseSystemColors",       Colours,  YesNo},
    {"WorkHoliday",           Calendar, YesNo},
    {"WorkSaturday",          Calendar, YesNo},
    {"WorkSunday",            Calendar, YesNo},
};
// clang-format on

} // namespace

const SheetRow* FindRow(std::string_view property) {
    const auto* found = std::find_if(std::begin(Table), std::end(Table), [property](const SheetRow& row) {
        return EqualIgnoreCase(row.Property, property);
    });
    return found == std::end(Table) ? nullptr : found;
}

} // namespace quillgrid::example
