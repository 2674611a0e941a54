#include "quillgrid/base/Text.h"
#include "quillgrid/locale/Locale.h"

#include <algorithm>
#include <string>

namespace quillgrid {

namespace {

// German money and times are written here; Austria and Switzerland change a few fields.
Locale Germany() {
    return {
        .Name = "de-DE",
        .DecimalSeparator = ",",
        .GroupSeparator = ".",
        .CurrencySymbol = "€",
        .CurrencySymbolPlace = CurrencyPlace::AfterWithBlank,
        .Order = DateOrder::DayMonthYear,
        .ShortDate = "dd.mm.yyyy",
        .MediumDate = "d. mmm yyyy",
        .LongDate = "dddd, d. mmmm yyyy",
        .LongTime = "hh:nn:ss",
        .ShortTime = "hh:nn",
        .MediumTime = "hh:nn AM/PM",
        .DateSeparator = ".",
        .TimeSeparator = ":",
        .Am = "AM",
        .Pm = "PM",
        .MonthNames = {"Januar", "Februar", "März", "April", "Mai", "Juni", "Juli", "August", "September",
                       "Oktober", "November", "Dezember"},
        .ShortMonthNames = {"Jan", "Feb", "Mär", "Apr", "Mai", "Jun", "Jul", "Aug", "Sep", "Okt", "Nov",
                            "Dez"},
        .DayNames = {"Sonntag", "Montag", "Dienstag", "Mittwoch", "Donnerstag", "Freitag", "Samstag"},
        .ShortDayNames = {"So", "Mo", "Di", "Mi", "Do", "Fr", "Sa"},
        .Yes = "Ja",
        .No = "Nein",
        .True = "Wahr",
        .False = "Falsch",
        .On = "Ein",
        .Off = "Aus",
        .FirstDayOfWeek = qgdwMonday,
        .FirstWeekOfYear = qgfwFirstFourDays,
        .CompareText = {},
    };
}

Locale Austria() {
    Locale austrian = Germany();
    austrian.Name = "de-AT";
    austrian.CurrencySymbolPlace = CurrencyPlace::BeforeWithBlank;
    austrian.MonthNames[0] = "Jänner";
    austrian.ShortMonthNames[0] = "Jän";
    return austrian;
}

Locale Switzerland() {
    Locale swiss = Germany();
    swiss.Name = "de-CH";
    swiss.DecimalSeparator = ".";
    swiss.GroupSeparator = "’";
    swiss.CurrencySymbol = "CHF";
    swiss.CurrencySymbolPlace = CurrencyPlace::BeforeWithBlank;
    return swiss;
}

Locale UnitedStates() {
    return {
        .Name = "en-US",
        .DecimalSeparator = ".",
        .GroupSeparator = ",",
        .CurrencySymbol = "$",
        .CurrencySymbolPlace = CurrencyPlace::Before,
        .Order = DateOrder::MonthDayYear,
        .ShortDate = "m/d/yyyy",
        .MediumDate = "mmm d, yyyy",
        .LongDate = "dddd, mmmm d, yyyy",
        .LongTime = "h:nn:ss AM/PM",
        .ShortTime = "hh:nn",
        .MediumTime = "hh:nn AM/PM",
        .DateSeparator = "/",
        .TimeSeparator = ":",
        .Am = "AM",
        .Pm = "PM",
        .MonthNames = {"January", "February", "March", "April", "May", "June", "July", "August", "September",
                       "October", "November", "December"},
        .ShortMonthNames = {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov",
                            "Dec"},
        .DayNames = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"},
        .ShortDayNames = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"},
        .Yes = "Yes",
        .No = "No",
        .True = "True",
        .False = "False",
        .On = "On",
        .Off = "Off",
        .FirstDayOfWeek = qgdwSunday,
        .FirstWeekOfYear = qgfwFirstJan1,
        .CompareText = {},
    };
}

Locale UnitedKingdom() {
    Locale british = UnitedStates();
    british.Name = "en-GB";
    british.CurrencySymbol = "£";
    british.Order = DateOrder::DayMonthYear;
    british.ShortDate = "dd/mm/yyyy";
    british.MediumDate = "d mmm yyyy";
    british.LongDate = "dddd, d mmmm yyyy";
    british.LongTime = "hh:nn:ss";
    british.FirstDayOfWeek = qgdwMonday;
    british.FirstWeekOfYear = qgfwFirstFourDays;
    return british;
}

Locale France() {
    Locale french = Germany();
    french.Name = "fr-FR";
    french.GroupSeparator = "\u202F";
    french.ShortDate = "dd/mm/yyyy";
    french.MediumDate = "d mmm yyyy";
    french.LongDate = "dddd d mmmm yyyy";
    french.DateSeparator = "/";
    french.MonthNames = {"janvier", "février", "mars",      "avril",   "mai",      "juin",
                         "juillet", "août",    "septembre", "octobre", "novembre", "décembre"};
    french.ShortMonthNames = {"janv.", "févr.", "mars",  "avr.", "mai",  "juin",
                              "juil.", "août",  "sept.", "oct.", "nov.", "déc."};
    french.DayNames = {"dimanche", "lundi", "mardi", "mercredi", "jeudi", "vendredi", "samedi"};
    french.ShortDayNames = {"dim.", "lun.", "mar.", "mer.", "jeu.", "ven.", "sam."};
    french.Yes = "Oui";
    french.No = "Non";
    french.True = "Vrai";
    french.False = "Faux";
    french.On = "Activé";
    french.Off = "Désactivé";
    return french;
}

Locale Italy() {
    Locale italian = Germany();
    italian.Name = "it-IT";
    italian.ShortDate = "dd/mm/yyyy";
    italian.MediumDate = "d mmm yyyy";
    italian.LongDate = "dddd d mmmm yyyy";
    italian.DateSeparator = "/";
    italian.MonthNames = {"gennaio", "febbraio", "marzo",     "aprile",  "maggio",   "giugno",
                          "luglio",  "agosto",   "settembre", "ottobre", "novembre", "dicembre"};
    italian.ShortMonthNames = {"gen", "feb", "mar", "apr", "mag", "giu",
                               "lug", "ago", "set", "ott", "nov", "dic"};
    italian.DayNames = {"domenica", "lunedì", "martedì", "mercoledì", "giovedì", "venerdì", "sabato"};
    italian.ShortDayNames = {"dom", "lun", "mar", "mer", "gio", "ven", "sab"};
    italian.Yes = "Sì";
    italian.No = "No";
    italian.True = "Vero";
    italian.False = "Falso";
    italian.On = "Attivo";
    italian.Off = "Disattivo";
    return italian;
}

Locale Spain() {
    Locale spanish = Germany();
    spanish.Name = "es-ES";
    spanish.ShortDate = "dd/mm/yyyy";
    spanish.MediumDate = "d mmm yyyy";
    spanish.LongDate = "dddd, d \"de\" mmmm \"de\" yyyy";
    spanish.LongTime = "h:nn:ss";
    spanish.DateSeparator = "/";
    spanish.Am = "a. m.";
    spanish.Pm = "p. m.";
    spanish.MonthNames = {"enero", "febrero", "marzo",      "abril",   "mayo",      "junio",
                          "julio", "agosto",  "septiembre", "octubre", "noviembre", "diciembre"};
    spanish.ShortMonthNames = {"ene", "feb", "mar",  "abr", "may", "jun",
                               "jul", "ago", "sept", "oct", "nov", "dic"};
    spanish.DayNames = {"domingo", "lunes", "martes", "miércoles", "jueves", "viernes", "sábado"};
    spanish.ShortDayNames = {"dom", "lun", "mar", "mié", "jue", "vie", "sáb"};
    spanish.Yes = "Sí";
    spanish.No = "No";
    spanish.True = "Verdadero";
    spanish.False = "Falso";
    spanish.On = "Activado";
    spanish.Off = "Desactivado";
    return spanish;
}

using Locales = std::array<Locale, 8>;

// The first locale of a language stands in for its other countries, the first of all for every language.
const Locales& AllLocales() {
    static const Locales locales = {Germany(),       Austria(), Switzerland(), UnitedStates(),
                                    UnitedKingdom(), France(),  Italy(),       Spain()};
    return locales;
}

// Environment variables add an encoding or a modifier: "de_DE.UTF-8@euro".
std::string PlainName(std::string_view name) {
    std::string plain(name.substr(0, name.find_first_of(".@")));
    std::replace(plain.begin(), plain.end(), '_', '-');
    return plain;
}

std::string_view LanguageOf(std::string_view name) {
    return name.substr(0, name.find('-'));
}

const Locale* FindNamed(std::string_view plainName) {
    for (const Locale& locale : AllLocales()) {
        if (EqualIgnoreCase(locale.Name, plainName)) return &locale;
    }
    return nullptr;
}

} // namespace

const Locale& BuiltInLocale(std::string_view name) {
    const std::string plainName = PlainName(name);
    if (const Locale* exact = FindNamed(plainName)) return *exact;
    const auto sameLanguage = [language = LanguageOf(plainName)](const Locale& locale) {
        return EqualIgnoreCase(LanguageOf(locale.Name), language);
    };
    const Locales& all = AllLocales();
    const auto* const found = std::find_if(all.begin(), all.end(), sameLanguage);
    return found == all.end() ? all.front() : *found;
}

bool HasBuiltInLocale(std::string_view name) {
    return FindNamed(PlainName(name)) != nullptr;
}

} // namespace quillgrid
