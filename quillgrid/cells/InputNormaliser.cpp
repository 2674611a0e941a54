#include "quillgrid/cells/InputNormaliser.h"

#include "quillgrid/base/Text.h"

#include <algorithm>

namespace quillgrid {

namespace {

constexpr bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

/// Characters that no other character equals when case does not matter, and that are one byte.
constexpr bool IsCaseless(char32_t mark) {
    return mark < 0x80 && !(mark >= U'A' && mark <= U'Z') && !(mark >= U'a' && mark <= U'z');
}

} // namespace

void LeftwardText::Append(std::string_view suffix) {
    end_ = std::copy(suffix.begin(), suffix.end(), end_);
}

// Doubling keeps the whole walk linear. The text moves to the right end of the new room.
void LeftwardText::Grow() {
    const std::size_t room = room_ * 2;
    auto larger = std::make_unique<char[]>(room + SuffixRoom);
    char* const end = larger.get() + room;
    begin_ = std::copy_backward(begin_, end_, end);
    end_ = end;
    data_ = larger.get();
    room_ = room;
    spill_ = std::move(larger);
}

InputNormaliser::InputNormaliser(std::string_view text, const InputShape& shape) : shape_(shape) {
    bool last = true;
    while (!text.empty()) {
        std::size_t bytes = 1;
        if (IsDigit(text.back()))
            result_.Prepend(text.back());
        else
            bytes = TakeMark(text, last);
        text.remove_suffix(bytes);
        last = false;
    }
}

std::size_t InputNormaliser::TakeMark(std::string_view text, bool last) {
    const DecodedCharacter mark = DecodeLast(text);
    const bool first = mark.Bytes == text.size();
    if (shape_.IsNumber && mark.Character == U'-') {
        if (first) result_.Prepend('-');
    } else if (separators_ < shape_.MostSeparators && Separates(mark.Character, first, last)) {
        result_.Prepend(shape_.Separator);
        ++separators_;
    }
    return mark.Bytes;
}

bool InputNormaliser::Separates(char32_t mark, bool first, bool last) const {
    const bool inner = !last && (!first || shape_.IsNumber);
    if (mark == U' ' || mark == U'+' || mark == U'-') return inner && !shape_.IsNumber;
    return inner && IsSeparatorCharacter(mark);
}

bool InputNormaliser::IsSeparatorCharacter(char32_t mark) const {
    const std::string_view characters = shape_.SeparatorCharacters;
    if (IsCaseless(mark)) return characters.find(static_cast<char>(mark)) != std::string_view::npos;
    return ContainsIgnoreCase(characters, mark);
}

} // namespace quillgrid
