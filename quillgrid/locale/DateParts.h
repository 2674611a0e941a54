// The letters of date patterns.
#pragma once

#include <cstddef>
#include <string_view>

namespace quillgrid {

/// How many characters at the start of a text that is not empty make one part of a date ("dddd", "yyyy"), 0
/// for none. "AM/PM" is no part in this sense.
std::size_t DatePartLength(std::string_view text);
/// The length of "AM/PM" or "A/P" in any case at the start of the text, else 0.
std::size_t HalfDayLength(std::string_view text);
/// Whether "AM/PM" or "A/P" stands anywhere outside quotes, which makes hours count to 12.
bool NamesHalfDays(std::string_view pattern);

} // namespace quillgrid
