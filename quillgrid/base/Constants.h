// The published enumerations. They are unscoped with a fixed 32-bit type, so that numbers outside their
// lists can arrive (from a saved form, a property sheet, a record) and be refused or limited, not undefined.
#pragma once

#include <cstdint>

namespace quillgrid {

enum AppearanceConstants : std::int32_t { qgap3D = 0, qgapFlat = 1, qgapTrack3D = 2 };

enum ButtonStyleConstants : std::int32_t {
    qgbtNone = 0,
    qgbtDropDown = 1,
    qgbtSpin = 2,
    qgbtClock = 3,
    qgbtEllipse = 4,
    qgbtCalc = 5,
    qgbtPhone = 6,
    qgbtInfo = 7,
};

enum StyleConstants : std::int32_t { qgstDefault = 0, qgstPropertyList = 1 };

enum AlignmentConstants : std::int32_t { qgalLeftJustify = 0, qgalRightJustify = 1, qgalCenter = 2 };

enum CellStyleConstants : std::int32_t { qgcsText = 0, qgcsList = 1, qgcsHeader = 2 };

enum ValidationRuleConstants : std::int32_t {
    qgvrNone = 0,
    qgvrInteger = 1,
    qgvrCurrency = 2,
    qgvrEuro = 3,
    qgvrDouble = 4,
    qgvrDate = 5,
    qgvrTime = 6,
    qgvrBoolean = 7,
};

enum ValidationErrConstants : std::int32_t {
    qgErrNone = 0,
    qgErrBadNumber = 20001,
    qgerrBadDate = 20002,
    qgerrBadTime = 20003,
    qgerrNumberTooSmall = 20004,
    qgerrNumberTooBig = 20005,
    qgerrDateTooEarly = 20006,
    qgerrDateTooLate = 20007,
    qgerrTimeTooEarly = 20008,
    qgerrTimeTooLate = 20009,
    qgerrEmpty = 20010,
    qgerrMask = 20011,
    qgerrUserDefined = 20099,
};

enum BorderStyleConstants : std::int32_t {
    qgbsNone = 0,
    qgbsFlat = 1,
    qgbsSunken = 2,
    qgbsRaised = 3,
    qgbsSunkenLight = 4,
    qgbsRaisedLight = 5,
};

enum BevelInnerConstants : std::int32_t {
    qgbiNone = 0,
    qgbiFlat = 1,
    qgbiSunken = 2,
    qgbiRaised = 3,
    qgbiSunkenLight = 4,
    qgbiRaisedLight = 5,
    qgbiGroupFrame = 6,
};

enum BevelOuterConstants : std::int32_t {
    qgboNone = 0,
    qgboFlat = 1,
    qgboSunken = 2,
    qgboRaised = 3,
    qgboSunkenLight = 4,
    qgboRaisedLight = 5,
    qgboPanelLeft = 7,
    qgboPanelRight = 8,
    qgboPanelCenter = 9,
    qgboDialogLeft = 10,
    qgboDialogTop = 11,
};

enum CharCaseConstants : std::int32_t {
    qgccNone = 0,
    qgccUpper = 1,
    qgccUpperFirst = 2,
    qgccNice = 3,
    qgccLower = 4,
};

enum CellTemplateConstants : std::int32_t {
    qgctNone = 0,
    qgctInteger = 1,
    qgctCurrency = 2,
    qgctEuro = 3,
    qgctDate = 4,
    qgctTime = 5,
    qgctPassword = 6,
    qgctboolean = 7,
    qgctColor = 8,
    qgctFile = 9,
    qgctSalutation = 10,
    qgctPrinter = 11,
    qgctImagelist = 12,
    qgctFont = 13,
    qgctPhone = 14,
    qgctPhone2 = 15,
    qgctlist = 16,
    qgctwww = 17,
    qgctFax = 18,
    qgctEmail = 19,
    qgctSpin = 20,
    qgctPercent = 21,
    qgctCombo = 22,
    qgctSysColor = 23,
    qgctNumber = 24,
    qgctGroup = 99,
};

enum MaskFlagConstants : std::int32_t { qgmfNone = 0, qgmfUppercase = 1, qgmfLowercase = 2 };

enum LanguageConstants : std::int32_t {
    qglgDefault = 0,
    qglgEnglish = 1,
    qglgFrench = 2,
    qglgItalian = 3,
    qglgSpanish = 4,
    qglgGerman = 5,
};

enum HolidayTypeConstants : std::int32_t {
    qghtDayOfMonth = 0,
    qghtDaysFromEaster = 1,
    qghtDaysFromGermanBusstag = 2,
    qghtSundayOfMonth = 11,
    qghtMondayOfMonth = 12,
    qghtTuesdayOfMonth = 13,
    qghtWednesdayOfMonth = 14,
    qghtThursdayOfMonth = 15,
    qghtFridayOfMonth = 16,
    qghtSaturdayOfMonth = 17,
    qghtDaysFromUserDate1 = 91,
    qghtDaysFromUserDate2 = 92,
    qghtDaysFromUserDate3 = 93,
};

enum AutoHolidayConstants : std::int32_t {
    qgahdNone = 0,
    qgahdGermany = 1,
    qgahdAustria = 2,
    qgahdSwitzerland = 3,
    qgahdInternational = 99,
};

enum PopupBorderstyleConstants : std::int32_t {
    qgpbsNone = 0,
    qgpbsClassic = 1,
    qgpbsRaised = 2,
    qgpbsSunken = 3,
};

enum FirstWeekOfYearConstants : std::int32_t {
    qgfwUseSystem = 0,
    qgfwFirstJan1 = 1,
    qgfwFirstFourDays = 2,
    qgfwFirstFullWeek = 3,
};

enum DayOfWeekConstants : std::int32_t {
    qgdwUseSystem = 0,
    qgdwSunday = 1,
    qgdwMonday = 2,
    qgdwTuesday = 3,
    qgdwWednesday = 4,
    qgdwThursday = 5,
    qgdwFriday = 6,
    qgdwSaturday = 7,
};

} // namespace quillgrid
