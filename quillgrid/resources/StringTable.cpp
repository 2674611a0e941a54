#include "quillgrid/resources/StringTable.h"

#include <algorithm>
#include <iterator>
#include <span>

namespace quillgrid {

namespace {

using Text = std::string_view;

// Yes, no and the three salutations, at block + 1 to + 5.
constexpr Text GermanWords[] = {"ja", "nein", "Frau", "Herr", "Firma"};
constexpr Text EnglishWords[] = {"yes", "no", "Mrs.", "Mr.", "Company"};
constexpr Text FrenchWords[] = {"oui", "non", "Madame", "Monsieur", "Entreprise"};
constexpr Text ItalianWords[] = {"si", "no", "Signora", "Signore", "Company(?\?\?)"};
constexpr Text SpanishWords[] = {"si", "no", "Señora", "Señor", "Company(?\?\?)"};

constexpr Text GermanColours[] = {
    "Schwarz",    "Dunkelblau", "Dunkelgrün", "Dunkeltürkis", "Dunkelrot", "Dunkelmagenta",
    "Dunkelgelb", "Grau",       "Dunkelgrau", "Blau",         "Grün",      "Türkis",
    "Rot",        "Magenta",    "Gelb",       "Weiß",
};
constexpr Text EnglishColours[] = {
    "Black",     "Dark blue", "Dark green", "Dark cyan", "Dark red", "Dark magenta", "Dark yellow", "Grey",
    "Dark grey", "Blue",      "Green",      "Cyan",      "Red",      "Magenta",      "Yellow",      "White",
};

constexpr Text GermanSystemColours[] = {
    "Bildlaufleisten",
    "Desktop",
    "Aktive Titelleiste",
    "Inaktive Titelleiste",
    "Menüleiste",
    "Fensterhintergrund",
    "Fensterrahmen",
    "Menütext",
    "Fenstertext",
    "Text der Titelleiste",
    "Aktiver Rahmen",
    "Inaktiver Rahmen",
    "Anwendungshintergrund",
    "Markierung",
    "Markierter Text",
    "Schaltfläche",
    "Schatten der Schaltfläche",
    "Grauer Text",
    "Text der Schaltfläche",
    "Text der inaktiven Titelleiste",
    "3D-Glanzlicht",
    "3D-Dunkelschatten",
    "3D-Licht",
    "3D-Schatten",
    "3D-Fläche",
    "Infotext",
    "Infohintergrund",
};
constexpr Text EnglishSystemColours[] = {
    "Scroll bars",
    "Desktop",
    "Active title bar",
    "Inactive title bar",
    "Menu bar",
    "Window background",
    "Window frame",
    "Menu text",
    "Window text",
    "Title bar text",
    "Active border",
    "Inactive border",
    "Application workspace",
    "Highlight",
    "Highlight text",
    "Button face",
    "Button shadow",
    "Grey text",
    "Button text",
    "Inactive caption text",
    "3D highlight",
    "3D dark shadow",
    "3D light",
    "3D shadow",
    "3D face",
    "Info text",
    "Info background",
};

constexpr Text GermanTemplates[] = {
    "Ohne",
    "Ganzzahl",
    "Währung",
    "Euro",
    "Datum",
    "Uhrzeit",
    "Kennwort",
    "Ja/Nein",
    "Farbe",
    "Datei",
    "Anrede",
    "Drucker",
    "Bilderliste",
    "Schriftart",
    "Telefon",
    "Zweites Telefon",
    "Liste",
    "Webadresse",
    "Fax",
    "E-Mail",
    "Drehfeld",
    "Prozent",
    "Kombinationsfeld",
    "Systemfarbe",
    "Zahl",
};
// The last one is German in both languages: forms made with earlier lists look it up by this text.
constexpr Text EnglishTemplates[] = {
    "None",    "Integer",      "Currency",      "Euro",        "Date",    "Time",       "Password",
    "Boolean", "Colour",       "File",          "Salutation",  "Printer", "Image list", "Font",
    "Phone",   "Second phone", "List",          "Web address", "Fax",     "E-mail",     "Spin",
    "Percent", "Combo",        "System colour", "Zahl",
};

constexpr Text GermanMessages[] = {
    "Die eingegebene Zahl ist ungültig",
    "Das eingegebene Datum ist ungültig",
    "Die eingegebene Uhrzeit ist ungültig",
    "Die eingegebene Zahl ist zu klein",
    "Die eingegebene Zahl ist zu groß",
    "Das eingegebene Datum ist zu früh",
    "Das eingegebene Datum ist zu spät",
    "Die eingegebene Uhrzeit ist zu früh",
    "Die eingegebene Uhrzeit ist zu spät",
    "Eingabe erforderlich",
    "Falsches Eingabeformat",
};
constexpr Text EnglishMessages[] = {
    "Invalid number", "Invalid date",  "Invalid time",   "Number too small", "Number too big",
    "Date too early", "Date too late", "Time too early", "Time too late",    "Input required",
};
constexpr Text GermanErrors[] = {
    "Ein unbekannter Fehler ist aufgetreten",
    "Dieses Auflistungselement ist nicht vorhanden",
    "Dieses Auflistungselement ist bereits vorhanden",
};
constexpr Text EnglishErrors[] = {
    "Unknown Error",
    "Collection Item does not exist",
    "Collection Item already exists",
};
constexpr Text GermanInvalidValue[] = {"Ungültiger Eigenschaftswert"};
constexpr Text EnglishInvalidValue[] = {"Invalid Property Value"};

/// Texts under numbers that follow one another.
struct TextRun {
    std::int32_t First;
    std::span<const Text> Texts;
};

constexpr TextRun Runs[] = {
    {10001, GermanWords},          {10100, GermanColours},       {10200, GermanSystemColours},
    {10300, GermanTemplates},      {11001, EnglishWords},        {11100, EnglishColours},
    {11200, EnglishSystemColours}, {11300, EnglishTemplates},    {12001, FrenchWords},
    {13001, ItalianWords},         {14001, SpanishWords},        {20001, GermanMessages},
    {20091, GermanErrors},         {20099, GermanInvalidValue},  {21001, EnglishMessages},
    {21091, EnglishErrors},        {21099, EnglishInvalidValue},
};

constexpr bool StartsLater(std::int32_t id, const TextRun& run) {
    return id < run.First;
}
static_assert(std::is_sorted(std::begin(Runs), std::end(Runs), [](const TextRun& left, const TextRun& right) {
    return left.First < right.First;
}));
static_assert(std::size(GermanColours) == 16 && std::size(EnglishColours) == 16);
static_assert(std::size(GermanSystemColours) == 27 && std::size(EnglishSystemColours) == 27);
static_assert(std::size(GermanTemplates) == 25 && std::size(EnglishTemplates) == 25);

} // namespace

std::optional<std::string_view> StoredText(std::int32_t id) {
    const auto later = std::upper_bound(std::begin(Runs), std::end(Runs), id, StartsLater);
    if (later == std::begin(Runs)) return std::nullopt;
    const TextRun& run = *std::prev(later);
    const auto offset = static_cast<std::size_t>(id - run.First);
    if (offset >= run.Texts.size()) return std::nullopt;
    return run.Texts[offset];
}

} // namespace quillgrid
