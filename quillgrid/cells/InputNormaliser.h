#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

namespace quillgrid {

/// A short text that grows to the left, with room for a suffix on its right. Lives on the stack; only more
/// characters than any value has take memory.
class LeftwardText {
public:
    LeftwardText() = default;
    LeftwardText(const LeftwardText&) = delete;
    LeftwardText& operator=(const LeftwardText&) = delete;

    void Prepend(char character) {
        if (begin_ == data_) Grow();
        *--begin_ = character;
    }
    /// At most `SuffixRoom` characters in all.
    void Append(std::string_view suffix);
    std::string_view View() const { return {begin_, static_cast<std::size_t>(end_ - begin_)}; }
    /// Only while the text is not empty.
    char* First() { return begin_; }

    static constexpr std::size_t SuffixRoom = 8;

private:
    void Grow();

    // Enough for every digit of the largest double and two decimals.
    static constexpr std::size_t InlineRoom = 344;

    char inline_[InlineRoom + SuffixRoom]; // left as it is: clearing it would cost more than most conversions
    std::unique_ptr<char[]> spill_;
    char* data_ = inline_;
    char* end_ = inline_ + InlineRoom;
    char* begin_ = end_;
    std::size_t room_ = InlineRoom;
};

/// Which characters of a typed text matter under a rule.
struct InputShape {
    char Separator = 0; ///< what every kept separator becomes
    int MostSeparators = 0;
    std::string_view SeparatorCharacters; ///< in any case
    bool IsNumber = true;                 ///< else a date or a time: blanks, "+" and "-" separate too
};

/// Rebuilds a typed text from the characters that matter, from right to left: of several separators the last
/// ones typed count. Linear in the length of the text.
class InputNormaliser {
public:
    InputNormaliser(std::string_view text, const InputShape& shape);

    /// A minus (numbers only), digits and the shape's separators.
    std::string_view Text() const { return result_.View(); }
    /// How many separators the text has.
    int Separators() const { return separators_; }
    /// For completing what was typed.
    LeftwardText& Result() { return result_; }

private:
    std::size_t TakeMark(std::string_view text, bool last);
    bool Separates(char32_t mark, bool first, bool last) const;
    bool IsSeparatorCharacter(char32_t mark) const;

    const InputShape shape_;
    LeftwardText result_;
    int separators_ = 0;
};

} // namespace quillgrid
