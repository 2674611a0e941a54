// What a random number stands for: mostly something sensible, often an edge, sometimes anything.
#pragma once

#include "quillgrid/base/Rect.h"
#include "quillgrid/base/Variant.h"

#include <cstdint>
#include <string>

namespace quillgrid::monkey {

/// Another random number out of a step's number.
std::uint32_t Mixed(std::uint32_t number, std::uint32_t salt);
std::int32_t AnyNumber(std::uint32_t pick);
char32_t AnyCharacter(std::uint32_t pick);
std::int32_t AnyKeyCode(std::uint32_t pick);
std::int32_t AnyShift(std::uint32_t pick);
/// UTF-8 most of the time.
std::string AnyText(std::uint32_t pick);
Variant AnyValue(std::uint32_t pick);
/// Mostly inside of the size.
Point AnyPoint(std::uint32_t pick, Size inside);
Size AnySize(std::uint32_t pick);

} // namespace quillgrid::monkey
