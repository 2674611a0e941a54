// What number and date patterns have in common.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace quillgrid {

/// Lower case of the letters that patterns and format names are made of.
constexpr char LowerLetter(char character) {
    return character >= 'A' && character <= 'Z' ? static_cast<char>(character + ('a' - 'A')) : character;
}

/// The length of what is quoted or escaped at the start of a text that is not empty, marks included; else 0.
/// An open quotation runs to the end.
inline std::size_t ShieldedLength(std::string_view text) {
    if (text[0] == '\\') return std::min<std::size_t>(text.size(), 2);
    if (text[0] != '"') return 0;
    const std::size_t end = text.find('"', 1);
    return end == std::string_view::npos ? text.size() : end + 1;
}

/// What a quoted or escaped text stands for.
inline std::string_view WithoutMarks(std::string_view shielded) {
    const bool closed = shielded.size() > 1 && shielded[0] == '"' && shielded.back() == '"';
    return shielded.substr(1, shielded.size() - (closed ? 2 : 1));
}

} // namespace quillgrid
