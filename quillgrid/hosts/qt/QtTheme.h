#pragma once

#include "quillgrid/platform/Theme.h"

#include <QColor>

class QPalette;
class QWidget;

namespace quillgrid::qt {

/// The desktop as one widget sees it: its palette, its style. The shades of the classic edges are derived
/// from the button colour, since the light and dark roles of many dark palettes are left over from a light
/// one.
class QtTheme : public Theme {
public:
    /// The widget must outlive the theme.
    explicit QtTheme(const QWidget& widget) : widget_(widget) {}

    Colour Resolve(Colour colour) const override;
    std::int32_t ScrollBarWidth() const override;
    std::vector<std::string> ScreenFonts() const override;
    std::vector<std::string> PrinterFonts() const override;
    std::vector<std::string> Printers() const override;

private:
    const QWidget& widget_;
};

/// A colour of the control under a palette; an unknown system colour is the window text.
QColor ToQColor(Colour colour, const QPalette& palette);
/// Without its transparency.
Colour FromQColor(const QColor& colour);
/// `share` of 1 gives `over`, 0 gives `under`.
QColor Mixed(const QColor& under, const QColor& over, double share);
bool IsDark(const QPalette& palette);
/// Windows, fields and buttons have one colour: only lines tell them apart, which must be strong then.
bool IsHighContrast(const QPalette& palette);

} // namespace quillgrid::qt
