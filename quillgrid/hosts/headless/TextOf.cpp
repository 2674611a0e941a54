#include "quillgrid/hosts/headless/TextOf.h"

#include <cstdio>

namespace quillgrid::headless {

std::string TextOf(const Rect& rect) {
    return std::to_string(rect.Left) + "," + std::to_string(rect.Top) + " - " + std::to_string(rect.Right) +
           "," + std::to_string(rect.Bottom);
}

std::string TextOf(Colour colour) {
    if (IsSystemColour(colour)) return "sys" + std::to_string(colour & 0xFFU);
    char text[8];
    std::snprintf(text, sizeof text, "#%02x%02x%02x", colour & 0xFFU, (colour >> 8U) & 0xFFU,
                  (colour >> 16U) & 0xFFU);
    return text;
}

} // namespace quillgrid::headless
