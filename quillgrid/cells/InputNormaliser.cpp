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

DecodedCharacter LastCharacter(std::string_view text) {
    const auto byte = static_cast<unsigned char>(text.back());
    return byte < 0x80 ? DecodedCharacter{byte, 1} : DecodeLast(text);
}

bool IsAmong(std::string_view characters, char32_t mark) {
    if (!IsCaseless(mark)) return ContainsIgnoreCase(characters, mark);
    const auto isMark = [mark](char c) { return static_cast<unsigned char>(c) == mark; };
    return std::any_of(characters.begin(), characters.end(), isMark);
}

/// Whether a character that is no digit stands for a separator at its place in the text.
bool Separates(char32_t mark, bool first, bool last, const InputShape& shape) {
    if (last || (first && !shape.IsNumber)) return false;
    if (mark == U' ' || mark == U'+' || mark == U'-') return !shape.IsNumber;
    return IsAmong(shape.SeparatorCharacters, mark);
}

} // namespace

// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): the room is filled as far as it is read
InputNormaliser::InputNormaliser(std::string_view text, const InputShape& shape) {
    char* at = end_ = MakeRoom(text.size());
    const std::size_t size = text.size();
    while (!text.empty()) {
        if (IsDigit(text.back())) {
            *--at = text.back();
            text.remove_suffix(1);
            continue;
        }
        const DecodedCharacter mark = LastCharacter(text);
        const bool first = mark.Bytes == text.size();
        const bool last = text.size() == size;
        if (shape.IsNumber && mark.Character == U'-') {
            if (first) *--at = '-';
        } else if (separators_ < shape.MostSeparators && Separates(mark.Character, first, last, shape)) {
            *--at = shape.Separator;
            ++separators_;
        }
        text.remove_suffix(mark.Bytes);
    }
    begin_ = at;
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
