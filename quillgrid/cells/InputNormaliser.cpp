#include "quillgrid/cells/InputNormaliser.h"

#include "quillgrid/base/Text.h"

#include <algorithm>

namespace quillgrid {

namespace {

constexpr bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

/// One byte that equals no other character when case does not matter.
constexpr bool IsCaseless(char32_t mark) {
    return mark < 0x80 && !(mark >= U'A' && mark <= U'Z') && !(mark >= U'a' && mark <= U'z');
}

bool IsAmong(std::string_view characters, char32_t mark) {
    if (!IsCaseless(mark)) return ContainsIgnoreCase(characters, mark);
    const auto isMark = [mark](char c) { return static_cast<unsigned char>(c) == mark; };
    return std::any_of(characters.begin(), characters.end(), isMark);
}

/// The no-break and thin blanks too: newer locales write one of them in front of AM and PM, and "1:05:09 PM"
/// without its blank would be a complete time in the morning.
constexpr bool IsBlank(char32_t mark) {
    return mark == U' ' || mark == U'\u00A0' || mark == U'\u2009' || mark == U'\u202F';
}

/// Whether a character that is no digit stands for a separator at its place in the text.
bool Separates(char32_t mark, bool first, bool last, const InputShape& shape) {
    if (last || (first && !shape.IsNumber)) return false;
    if (mark == U'+' || mark == U'-' || IsBlank(mark)) return !shape.IsNumber;
    return IsAmong(shape.SeparatorCharacters, mark);
}

} // namespace

// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): the room is filled as far as it is read
InputNormaliser::InputNormaliser(std::string_view text, const InputShape& shape) {
    const char* const begin = text.data();
    const char* const end = begin + text.size();
    char* at = end_ = MakeRoom(text.size());
    for (const char* from = end; from != begin;) {
        if (IsDigit(from[-1])) {
            *--at = *--from;
            continue;
        }
        const DecodedCharacter mark = DecodeLast({begin, static_cast<std::size_t>(from - begin)});
        const bool last = from == end;
        from -= mark.Bytes;
        if (const char kept = Kept(mark.Character, from == begin, last, shape)) *--at = kept;
    }
    begin_ = at;
}

/// What a character that is no digit becomes at its place in the text: 0 where it is dropped.
char InputNormaliser::Kept(char32_t mark, bool first, bool last, const InputShape& shape) {
    if (shape.IsNumber && mark == U'-') return first ? '-' : '\0';
    if (separators_ == shape.MostSeparators || !Separates(mark, first, last, shape)) return '\0';
    ++separators_;
    return shape.Separator;
}

void InputNormaliser::Append(std::string_view suffix) {
    end_ = std::copy(suffix.begin(), suffix.end(), end_);
}

void InputNormaliser::ReplaceStart(std::string_view start) {
    std::copy(start.begin(), start.end(), begin_);
}

/// The place behind room for the characters.
char* InputNormaliser::MakeRoom(std::size_t characters) {
    if (characters <= InlineRoom) return inline_ + InlineRoom;
    spill_.reset(new char[characters + SuffixRoom]);
    return spill_.get() + characters;
}

} // namespace quillgrid
