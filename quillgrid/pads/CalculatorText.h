// How the calculator writes numbers: decimal digits with "." and no exponent, no zero before the point and
// none that says nothing.
#pragma once

#include <string>
#include <string_view>

namespace quillgrid {

/// The same number in its shortest writing: "007" is "7", "0.50" is ".5"; "", ".", "-" and "-0" are "0".
/// `text` is "[-]digits[.digits]", either run of digits may be empty.
std::string PlainForm(std::string_view text);
/// Rounded to 15 significant digits. `number` is finite.
std::string PlainForm(double number);

} // namespace quillgrid
