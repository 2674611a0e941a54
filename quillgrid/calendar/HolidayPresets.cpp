#include "quillgrid/calendar/HolidayPresets.h"

#include <iterator>

namespace quillgrid {

namespace {

constexpr PresetRule GermanyRules[] = {
    {"Neujahr", qghtDayOfMonth, 1, 1, 0},
    {"Heilige drei Könige", qghtDayOfMonth, 1, 6, 0},
    {"Rosenmontag", qghtDaysFromEaster, 0, 0, -48},
    {"Fastnachtsdienstag", qghtDaysFromEaster, 0, 0, -47},
    {"Aschermittwoch", qghtDaysFromEaster, 0, 0, -46},
    {"Karfreitag", qghtDaysFromEaster, 0, 0, -2},
    {"Ostersonntag", qghtDaysFromEaster, 0, 0, 0},
    {"Ostermontag", qghtDaysFromEaster, 0, 0, 1},
    {"Maifeiertag", qghtDayOfMonth, 5, 1, 0},
    {"Christi Himmelfahrt", qghtDaysFromEaster, 0, 0, 39},
    {"Pfingstsonntag", qghtDaysFromEaster, 0, 0, 49},
    {"Pfingstmontag", qghtDaysFromEaster, 0, 0, 50},
    {"Fronleichnam", qghtDaysFromEaster, 0, 0, 60},
    {"Friedensfest Augsburg", qghtDayOfMonth, 8, 8, 0},
    {"Mariä Himmelfahrt", qghtDayOfMonth, 8, 15, 0},
    {"Erntedankfest", qghtSundayOfMonth, 10, 0, 1},
    {"Tag der deutschen Einheit", qghtDayOfMonth, 10, 3, 0},
    {"Reformationstag", qghtDayOfMonth, 10, 31, 0},
    {"Allerheiligen", qghtDayOfMonth, 11, 1, 0},
    {"Volkstrauertag", qghtDaysFromGermanBusstag, 0, 0, -3},
    {"Buß-und-Bettag", qghtDaysFromGermanBusstag, 0, 0, 0},
    {"Totensonntag", qghtDaysFromGermanBusstag, 0, 0, 4},
    {"Heiliger Abend", qghtDayOfMonth, 12, 24, 0},
    {"1. Weihnachtstag", qghtDayOfMonth, 12, 25, 0},
    {"2. Weihnachtstag", qghtDayOfMonth, 12, 26, 0},
    {"Silvester", qghtDayOfMonth, 12, 31, 0},
};

constexpr PresetRule AustriaRules[] = {
    {"Neujahr", qghtDayOfMonth, 1, 1, 0},
    {"Heilige drei Könige", qghtDayOfMonth, 1, 6, 0},
    {"Karfreitag", qghtDaysFromEaster, 0, 0, -2},
    {"Ostersonntag", qghtDaysFromEaster, 0, 0, 0},
    {"Ostermontag", qghtDaysFromEaster, 0, 0, 1},
    {"Maifeiertag", qghtDayOfMonth, 5, 1, 0},
    {"Christi Himmelfahrt", qghtDaysFromEaster, 0, 0, 39},
    {"Pfingstsonntag", qghtDaysFromEaster, 0, 0, 49},
    {"Pfingstmontag", qghtDaysFromEaster, 0, 0, 50},
    {"Fronleichnam", qghtDaysFromEaster, 0, 0, 60},
    {"Mariä Himmelfahrt", qghtDayOfMonth, 8, 15, 0},
    {"Nationalfeiertag", qghtDayOfMonth, 10, 26, 0},
    {"Allerheiligen", qghtDayOfMonth, 11, 1, 0},
    {"Mariä Empfängnis", qghtDayOfMonth, 12, 8, 0},
    {"Heiliger Abend", qghtDayOfMonth, 12, 24, 0},
    {"1. Weihnachtstag", qghtDayOfMonth, 12, 25, 0},
    {"2. Weihnachtstag", qghtDayOfMonth, 12, 26, 0},
    {"Silvester", qghtDayOfMonth, 12, 31, 0},
};

constexpr PresetRule SwitzerlandRules[] = {
    {"Neujahr", qghtDayOfMonth, 1, 1, 0},
    {"Berchtoldstag", qghtDayOfMonth, 1, 2, 0},
    {"Heilige drei Könige", qghtDayOfMonth, 1, 6, 0},
    {"Rosenmontag", qghtDaysFromEaster, 0, 0, -48},
    {"Basler Fastnacht", qghtDaysFromEaster, 0, 0, -42},
    {"Josephstag", qghtDayOfMonth, 3, 19, 0},
    {"Karfreitag", qghtDaysFromEaster, 0, 0, -2},
    {"Ostersonntag", qghtDaysFromEaster, 0, 0, 0},
    {"Ostermontag", qghtDaysFromEaster, 0, 0, 1},
    {"Maifeiertag", qghtDayOfMonth, 5, 1, 0},
    {"Christi Himmelfahrt", qghtDaysFromEaster, 0, 0, 39},
    {"Pfingstsonntag", qghtDaysFromEaster, 0, 0, 49},
    {"Pfingstmontag", qghtDaysFromEaster, 0, 0, 50},
    {"Fronleichnam", qghtDaysFromEaster, 0, 0, 60},
    {"Bundesfeier", qghtDayOfMonth, 8, 1, 0},
    {"Mariä Himmelfahrt", qghtDayOfMonth, 8, 15, 0},
    {"Eidgenössischer Bettag", qghtSundayOfMonth, 9, 0, 3},
    {"Bettag-Montag", qghtMondayOfMonth, 9, 0, 3},
    {"Allerheiligen", qghtDayOfMonth, 11, 1, 0},
    {"Mariä Empfängnis", qghtDayOfMonth, 12, 8, 0},
    {"Heiliger Abend", qghtDayOfMonth, 12, 24, 0},
    {"1. Weihnachtstag", qghtDayOfMonth, 12, 25, 0},
    {"2. Weihnachtstag", qghtDayOfMonth, 12, 26, 0},
    {"Silvester", qghtDayOfMonth, 12, 31, 0},
};

constexpr PresetRule InternationalRules[] = {
    {"Neujahr", qghtDayOfMonth, 1, 1, 0},
    {"Karfreitag", qghtDaysFromEaster, 0, 0, -2},
    {"Ostersonntag", qghtDaysFromEaster, 0, 0, 0},
    {"Ostermontag", qghtDaysFromEaster, 0, 0, 1},
    {"Maifeiertag", qghtDayOfMonth, 5, 1, 0},
    {"Heiliger Abend", qghtDayOfMonth, 12, 24, 0},
    {"1. Weihnachtstag", qghtDayOfMonth, 12, 25, 0},
    {"2. Weihnachtstag", qghtDayOfMonth, 12, 26, 0},
    {"Silvester", qghtDayOfMonth, 12, 31, 0},
};

template <std::size_t Size>
constexpr HolidayPreset PresetOf(const PresetRule (&rules)[Size]) {
    return {rules, static_cast<std::int16_t>(Size)};
}

constexpr HolidayPreset Germany = PresetOf(GermanyRules);
constexpr HolidayPreset Austria = PresetOf(AustriaRules);
constexpr HolidayPreset Switzerland = PresetOf(SwitzerlandRules);
constexpr HolidayPreset International = PresetOf(InternationalRules);

} // namespace

const HolidayPreset* FindPreset(AutoHolidayConstants preset) {
    switch (preset) {
    case qgahdNone: return nullptr;
    case qgahdGermany: return &Germany;
    case qgahdAustria: return &Austria;
    case qgahdSwitzerland: return &Switzerland;
    default: return &International;
    }
}

} // namespace quillgrid
