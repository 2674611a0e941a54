#include "quillgrid/hosts/qt/QtTheme.h"

#include "quillgrid/hosts/qt/Conversions.h"

#include <QFontDatabase>
#include <QPalette>
#include <QPrinterInfo>
#include <QStyle>
#include <QWidget>

#include <algorithm>
#include <array>
#include <cmath>

namespace quillgrid::qt {

namespace {

/// Cell buttons are as wide as the scroll bar: a line beside them, their edges and a glyph need this much.
constexpr std::int32_t NarrowestScrollBar = 17;

/// A system colour: a role of the palette, mixed with black or white.
struct ShadeRow {
    QPalette::ColorRole Role;
    double LightPalette = 0.0; ///< share of white, or of black when negative
    double DarkPalette = 0.0;
    double HighContrast = 0.0; ///< share of the text colour; 0 mixes as in other palettes
};

// In the order of the system colours' numbers.
constexpr std::array<ShadeRow, 31> Shades{{
    {QPalette::Window, -0.06, 0.06},       // scroll bar
    {QPalette::Highlight},                 // desktop: the filled part of percent bars, under highlight text
    {QPalette::Highlight},                 // active caption
    {QPalette::Window, -0.12, 0.10},       // inactive caption
    {QPalette::Window},                    // menu
    {QPalette::Base},                      // window
    {QPalette::Button, -0.38, 0.30, 0.8},  // window frame
    {QPalette::WindowText},                // menu text
    {QPalette::Text},                      // window text
    {QPalette::HighlightedText},           // caption text
    {QPalette::Window, -0.12, 0.10},       // active border
    {QPalette::Window, -0.12, 0.10},       // inactive border
    {QPalette::Window, -0.25, -0.3},       // application workspace
    {QPalette::Highlight},                 // highlight
    {QPalette::HighlightedText},           // highlight text
    {QPalette::Window},                    // button face
    {QPalette::Button, -0.28, -0.35, 0.6}, // button shadow
    {QPalette::Text, 0.48, -0.4, 0.0},     // grey text; few palettes set a role for it
    {QPalette::ButtonText},                // button text
    {QPalette::WindowText},                // inactive caption text
    {QPalette::Button, 0.75, 0.26, 0.6},   // button highlight
    {QPalette::Button, -0.44, -0.62, 0.9}, // 3D dark shadow
    {QPalette::Button, 0.35, 0.10, 0.3},   // 3D light
    {QPalette::ToolTipText},               // info text
    {QPalette::ToolTipBase},               // info background
    {QPalette::Window},                    // not used
    {QPalette::Link},                      // hot light
    {QPalette::Highlight},                 // active caption, far end
    {QPalette::Window, -0.12, 0.10},       // inactive caption, far end
    {QPalette::Highlight},                 // menu highlight
    {QPalette::Window},                    // menu bar
}};

QColor Shaded(const ShadeRow& row, const QPalette& palette) {
    const QColor colour = palette.color(row.Role);
    if (row.HighContrast > 0 && IsHighContrast(palette))
        return Mixed(colour, palette.color(QPalette::WindowText), row.HighContrast);
    const double share = IsDark(palette) ? row.DarkPalette : row.LightPalette;
    return Mixed(colour, share < 0 ? QColor(Qt::black) : QColor(Qt::white), std::abs(share));
}

QString WithoutFoundry(const QString& family) {
    const auto bracket = family.lastIndexOf(QLatin1String(" ["));
    return bracket > 0 && family.endsWith(QLatin1Char(']')) ? family.left(bracket) : family;
}

} // namespace

QColor Mixed(const QColor& under, const QColor& over, double share) {
    const auto mix = [share](int low, int high) {
        return std::clamp(static_cast<int>(std::lround(low + (high - low) * share)), 0, 255);
    };
    return {mix(under.red(), over.red()), mix(under.green(), over.green()), mix(under.blue(), over.blue())};
}

bool IsDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

bool IsHighContrast(const QPalette& palette) {
    const QColor window = palette.color(QPalette::Window);
    return palette.color(QPalette::Base) == window && palette.color(QPalette::Button) == window;
}

QColor ToQColor(Colour colour, const QPalette& palette) {
    if (!IsSystemColour(colour)) {
        return {static_cast<int>(colour & 0xFFU), static_cast<int>((colour >> 8U) & 0xFFU),
                static_cast<int>((colour >> 16U) & 0xFFU)};
    }
    const std::size_t index = colour & 0xFFU;
    return Shaded(index < Shades.size() ? Shades[index] : ShadeRow{QPalette::Text}, palette);
}

Colour FromQColor(const QColor& colour) {
    const QColor rgb = colour.toRgb();
    return Rgb(static_cast<std::uint32_t>(rgb.red()), static_cast<std::uint32_t>(rgb.green()),
               static_cast<std::uint32_t>(rgb.blue()));
}

Colour QtTheme::Resolve(Colour colour) const {
    if (!IsSystemColour(colour)) return colour;
    return FromQColor(ToQColor(colour, widget_.palette()));
}

std::int32_t QtTheme::ScrollBarWidth() const {
    const int width = widget_.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &widget_);
    return std::max(NarrowestScrollBar, width);
}

std::vector<std::string> QtTheme::ScreenFonts() const {
    std::vector<std::string> names;
    for (const QString& family : QFontDatabase::families()) {
        if (QFontDatabase::isPrivateFamily(family)) continue;
        std::string name = FromQString(WithoutFoundry(family));
        if (names.empty() || names.back() != name) names.push_back(std::move(name));
    }
    std::sort(names.begin(), names.end());
    names.erase(std::unique(names.begin(), names.end()), names.end());
    return names;
}

// Qt names no fonts of printers: they print what the screen has.
std::vector<std::string> QtTheme::PrinterFonts() const {
    return {};
}

std::vector<std::string> QtTheme::Printers() const {
    std::vector<std::string> names;
    for (const QString& name : QPrinterInfo::availablePrinterNames())
        names.push_back(FromQString(name));
    return names;
}

} // namespace quillgrid::qt
