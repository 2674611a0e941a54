#include "quillgrid/cells/CellTemplates.h"

#include <algorithm>
#include <array>

namespace quillgrid {

namespace {

constexpr std::string_view PhoneCharacters = "1234567890()[]+-/. ";
constexpr std::string_view WebCharacters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ1234567890://.-+";
constexpr std::string_view MailCharacters = "ABCDEFGHIJKLMNOPQRSTUVWXYZ1234567890@.-";

// clang-format off
constexpr std::array Templates{
    CellTemplate{.Number = qgctNone,
                 .Data = TemplateData{.Rule = qgvrNone},
                 .Layout = TemplateLayout{}},
    CellTemplate{.Number = qgctInteger,
                 .Data = TemplateData{.Rule = qgvrInteger, .Format = "#0"},
                 .Layout = TemplateLayout{.Alignment = qgalRightJustify}},
    CellTemplate{.Number = qgctCurrency,
                 .Unit = "",
                 .Data = TemplateData{.Rule = qgvrCurrency, .Format = "Currency", .MaxLength = 15},
                 .Layout = TemplateLayout{.Image = "money", .Alignment = qgalRightJustify}},
    CellTemplate{.Number = qgctEuro,
                 .Unit = "EUR",
                 .Data = TemplateData{.Rule = qgvrEuro, .Format = "Currency", .MaxLength = 15},
                 .Layout = TemplateLayout{.Image = "euro", .Alignment = qgalRightJustify, .Button = qgbtDropDown}},
    CellTemplate{.Number = qgctDate,
                 .Data = TemplateData{.Rule = qgvrDate, .Format = "Short Date", .MaxLength = 10},
                 .Layout = TemplateLayout{.Alignment = qgalCenter, .Button = qgbtClock}},
    CellTemplate{.Number = qgctTime,
                 .Data = TemplateData{.Rule = qgvrTime, .Format = "Long Time", .MaxLength = 10},
                 .Layout = TemplateLayout{.Alignment = qgalCenter}},
    CellTemplate{.Number = qgctPassword},
    CellTemplate{.Number = qgctboolean,
                 .Fill = FillYesNo,
                 .Rule = qgvrBoolean,
                 .Style = qgcsList,
                 .Alignment = qgalLeftJustify,
                 .Button = qgbtNone},
    CellTemplate{.Number = qgctColor,
                 .Fill = FillColours,
                 .Style = qgcsList,
                 .Alignment = qgalLeftJustify,
                 .Button = qgbtDropDown},
    CellTemplate{.Number = qgctSysColor,
                 .Fill = FillSystemColours,
                 .Style = qgcsList,
                 .Alignment = qgalLeftJustify,
                 .Button = qgbtDropDown},
    CellTemplate{.Number = qgctFile, .Image = "folder1", .Button = qgbtEllipse},
    CellTemplate{.Number = qgctSalutation,
                 .Value = TemplateValue::Salutation,
                 .Fill = FillSalutations,
                 .Style = qgcsList,
                 .Alignment = qgalLeftJustify,
                 .Button = qgbtDropDown},
    CellTemplate{.Number = qgctPrinter, .Fill = FillPrinters, .Style = qgcsList, .Button = qgbtDropDown},
    CellTemplate{.Number = qgctImagelist,
                 .Fill = FillImages,
                 .Style = qgcsList,
                 .Alignment = qgalLeftJustify,
                 .Button = qgbtDropDown},
    CellTemplate{.Number = qgctFont,
                 .Value = TemplateValue::SecondEntry,
                 .Fill = FillFonts,
                 .Rule = qgvrNone,
                 .Style = qgcsList,
                 .Alignment = qgalLeftJustify,
                 .Button = qgbtDropDown},
    CellTemplate{.Number = qgctPhone, .Image = "phone", .Button = qgbtPhone, .Charlist = PhoneCharacters},
    CellTemplate{.Number = qgctPhone2, .Image = "phone2", .Button = qgbtPhone, .Charlist = PhoneCharacters},
    CellTemplate{.Number = qgctlist,
                 .Fill = FillNothing,
                 .Style = qgcsList,
                 .Alignment = qgalLeftJustify,
                 .Button = qgbtDropDown},
    CellTemplate{.Number = qgctwww,
                 .Image = "world",
                 .Button = qgbtEllipse,
                 .Charlist = WebCharacters,
                 .CharCase = qgccLower},
    CellTemplate{.Number = qgctFax, .Image = "printer", .Button = qgbtEllipse, .Charlist = PhoneCharacters},
    CellTemplate{.Number = qgctEmail,
                 .Image = "email",
                 .Button = qgbtEllipse,
                 .Charlist = MailCharacters,
                 .CharCase = qgccLower},
    CellTemplate{.Number = qgctSpin,
                 .Data = TemplateData{.Rule = qgvrCurrency, .Format = "#0"},
                 .Layout = TemplateLayout{.Alignment = qgalRightJustify, .Button = qgbtSpin}},
    CellTemplate{.Number = qgctPercent,
                 .Unit = "%",
                 .Data = TemplateData{.Rule = qgvrDouble, .Format = "Fixed", .MaxLength = 15,
                                      .Bounds = TemplateBounds::Percentage},
                 .Layout = TemplateLayout{.Alignment = qgalCenter},
                 .PercentBar = true},
    CellTemplate{.Number = qgctCombo,
                 .Value = TemplateValue::Present,
                 .Data = TemplateData{.Rule = qgvrNone, .Bounds = TemplateBounds::Null},
                 .Layout = TemplateLayout{.Image = "", .Button = qgbtDropDown}},
    CellTemplate{.Number = qgctNumber,
                 .Unit = "",
                 .Data = TemplateData{.Rule = qgvrDouble, .Format = "General Number", .MaxLength = 15},
                 .Layout = TemplateLayout{.Alignment = qgalRightJustify, .Button = qgbtCalc}},
    CellTemplate{.Number = qgctGroup,
                 .Value = TemplateValue::EmptyText,
                 .Data = TemplateData{.Rule = qgvrNone},
                 .Layout = TemplateLayout{.Style = qgcsHeader}},
};
// clang-format on

} // namespace

const CellTemplate* FindTemplate(CellTemplateConstants number) {
    const auto found = std::find_if(Templates.begin(), Templates.end(),
                                    [number](const CellTemplate& row) { return row.Number == number; });
    return found == Templates.end() ? nullptr : &*found;
}

} // namespace quillgrid
