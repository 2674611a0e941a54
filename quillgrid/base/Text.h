// Text is UTF-8. Lengths and positions that users see count Unicode code points. Bytes that are not valid
// UTF-8 count as one U+FFFD each and are repaired, never refused.
#pragma once

#include "quillgrid/base/Export.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace quillgrid {

inline constexpr char32_t ReplacementCharacter = U'\uFFFD';

struct DecodedCharacter {
    char32_t Character = 0;
    std::size_t Bytes = 0; ///< 0 only for the empty text
};

/// The first code point of `text`.
QUILLGRID_EXPORT DecodedCharacter DecodeFirst(std::string_view text);
/// The last code point of `text`.
QUILLGRID_EXPORT DecodedCharacter DecodeLast(std::string_view text);
/// Appends the UTF-8 form; surrogates and values above U+10FFFF become U+FFFD.
QUILLGRID_EXPORT void AppendUtf8(std::string& out, char32_t character);

QUILLGRID_EXPORT bool IsValidUtf8(std::string_view text);
/// `text` with every malformed byte replaced by U+FFFD.
QUILLGRID_EXPORT std::string RepairUtf8(std::string_view text);
QUILLGRID_EXPORT std::size_t CharacterCount(std::string_view text);
/// The first `count` characters.
QUILLGRID_EXPORT std::string_view FirstCharacters(std::string_view text, std::size_t count);

/// Simple case folding and mapping of single characters: all of Latin, Greek and Cyrillic. Characters of
/// other scripts, and those whose case form is more than one character ("ß"), stay as they are.
QUILLGRID_EXPORT char32_t FoldCase(char32_t character);
QUILLGRID_EXPORT char32_t ToUpper(char32_t character);
QUILLGRID_EXPORT char32_t ToLower(char32_t character);
QUILLGRID_EXPORT std::string UpperCase(std::string_view text);
QUILLGRID_EXPORT std::string LowerCase(std::string_view text);

/// Ordering of the folded code points: negative, 0 or positive.
QUILLGRID_EXPORT int CompareIgnoreCase(std::string_view left, std::string_view right);
QUILLGRID_EXPORT bool EqualIgnoreCase(std::string_view left, std::string_view right);
QUILLGRID_EXPORT bool StartsWithIgnoreCase(std::string_view text, std::string_view prefix);
/// Whether `character` occurs in `set`, ignoring case.
QUILLGRID_EXPORT bool ContainsIgnoreCase(std::string_view set, char32_t character);
/// Byte position of the first occurrence, or npos; the matched bytes in `text` may differ in length from
/// `part`, so `matchedBytes` receives theirs. At worst in time of both lengths multiplied: for short parts.
QUILLGRID_EXPORT std::size_t FindIgnoreCase(std::string_view text, std::string_view part,
                                            std::size_t* matchedBytes = nullptr);
/// Hash of the folded text, equal for texts that are equal ignoring case.
QUILLGRID_EXPORT std::size_t HashIgnoreCase(std::string_view text);

/// `text` without blanks (U+0020) at both ends.
QUILLGRID_EXPORT std::string_view TrimBlanks(std::string_view text);

} // namespace quillgrid
