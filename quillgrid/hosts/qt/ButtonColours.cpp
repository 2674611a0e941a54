#include "quillgrid/hosts/qt/ButtonColours.h"

#include "quillgrid/hosts/qt/QtTheme.h"
#include "quillgrid/resources/Glyphs.h"

#include <QPalette>

namespace quillgrid::qt {

namespace {

const QColor PressedInkOnDark(96, 208, 96);

QColor InkOf(const QPalette& palette, ButtonLook look) {
    const QColor ink = palette.color(QPalette::ButtonText);
    if (look != ButtonLook::Pressed) return ink;
    return ink.lightnessF() < 0.5 ? ToQColor(PressedGlyphColour, palette) : PressedInkOnDark;
}

/// Lines alone tell such a button: it has no shades to rise or sink by.
ButtonColours DrawnInLines(const QPalette& palette, ButtonLook look) {
    const QColor face = palette.color(QPalette::Button);
    const QColor line = palette.color(QPalette::ButtonText);
    const QColor accent = palette.color(QPalette::Highlight);
    switch (look) {
    case ButtonLook::Hot: return {accent, face, accent, accent, InkOf(palette, look)};
    case ButtonLook::Pressed: return {line, face, line, line, InkOf(palette, look)};
    default: return {line, face, face, face, InkOf(palette, look)};
    }
}

} // namespace

ButtonColours ColoursOfButton(const QPalette& palette, ButtonLook look) {
    if (IsHighContrast(palette)) return DrawnInLines(palette, look);
    const bool dark = IsDark(palette);
    const QColor base = palette.color(QPalette::Button);
    const QColor accent = palette.color(QPalette::Highlight);
    const QColor outline = dark ? Mixed(base, Qt::white, 0.24) : Mixed(base, Qt::black, 0.33);
    const auto lit = [&](const QColor& face) { return Mixed(face, Qt::white, dark ? 0.11 : 0.75); };
    const auto shaded = [&](const QColor& face) { return Mixed(face, Qt::black, dark ? 0.25 : 0.09); };
    const QColor ink = InkOf(palette, look);
    if (look == ButtonLook::Pressed) {
        const QColor face = Mixed(base, Qt::black, dark ? 0.30 : 0.14);
        return {Mixed(outline, Qt::black, dark ? 0.0 : 0.15), face, shaded(face), face, ink};
    }
    const QColor face = look == ButtonLook::Hot ? Mixed(base, accent, dark ? 0.30 : 0.16) : base;
    const QColor rim = look == ButtonLook::Hot ? Mixed(outline, accent, 0.65) : outline;
    return {rim, face, lit(face), shaded(face), ink};
}

} // namespace quillgrid::qt
