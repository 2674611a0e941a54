#include "quillgrid/calendar/LegibleInk.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace quillgrid {

namespace {

/// Ratios of luminances: what still passes as chosen, and what a changed ink must reach. Thin letters that
/// glow on a dark ground need more.
struct Contrasts {
    double Lowest;
    double Wanted;
};
constexpr Contrasts OnLight{3.0, 4.5};
constexpr Contrasts OnDark{4.5, 5.5};
constexpr std::uint32_t Steps = 16;

std::uint32_t Part(Colour colour, std::uint32_t shift) {
    return colour >> shift & 0xFFU;
}

double Linear(std::uint32_t part) {
    const double share = part / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double Luminance(Colour colour) {
    return 0.2126 * Linear(Part(colour, 0)) + 0.7152 * Linear(Part(colour, 8)) +
           0.0722 * Linear(Part(colour, 16));
}

double Contrast(double one, double other) {
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

Colour Mixed(Colour from, std::uint32_t to, std::uint32_t step) {
    const auto mix = [=](std::uint32_t shift) {
        return (Part(from, shift) * (Steps - step) + to * step) / Steps;
    };
    return Rgb(mix(0), mix(8), mix(16));
}

} // namespace

Colour LegibleInk(const Theme& desktop, Colour ink, Colour paper) {
    const Colour real = desktop.Resolve(ink);
    const double ground = Luminance(desktop.Resolve(paper));
    const bool onLight = Contrast(0.0, ground) > Contrast(1.0, ground);
    const Contrasts& limits = onLight ? OnLight : OnDark;
    if (Contrast(Luminance(real), ground) >= limits.Lowest) return ink;
    if (ink == ColourWindowText) return onLight ? Rgb(0, 0, 0) : Rgb(255, 255, 255);
    Colour found = real;
    for (std::uint32_t step = 1; step <= Steps; ++step) {
        found = Mixed(real, onLight ? 0 : 255, step);
        if (Contrast(Luminance(found), ground) >= limits.Wanted) break;
    }
    return found;
}

} // namespace quillgrid
