#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

namespace quillgrid {

/// Which characters of a typed text matter under a rule.
struct InputShape {
    char Separator = 0; ///< what every kept separator becomes
    int MostSeparators = 0;
    std::string_view SeparatorCharacters{}; ///< in any case
    bool IsNumber = true;                   ///< else a date or a time: blanks, "+" and "-" separate too
};

/// Rebuilds a typed text from the characters that matter, from right to left: of several separators the last
/// ones typed count. Linear in the length of the text; only texts longer than any value take memory.
class InputNormaliser {
public:
    InputNormaliser(std::string_view text, const InputShape& shape);
    InputNormaliser(const InputNormaliser&) = delete;
    InputNormaliser& operator=(const InputNormaliser&) = delete;

    /// A minus (numbers only), digits and the shape's separators.
    std::string_view Text() const { return {begin_, static_cast<std::size_t>(end_ - begin_)}; }
    /// How many separators were typed.
    int Separators() const { return separators_; }

    /// Completes what was typed: `SuffixRoom` characters at most, in all.
    void Append(std::string_view suffix);
    /// Replaces as many characters as `start` has; the text has at least as many.
    void ReplaceStart(std::string_view start);

    static constexpr std::size_t SuffixRoom = 8;

private:
    char Kept(char32_t mark, bool first, bool last, const InputShape& shape);
    char* MakeRoom(std::size_t characters);

    // Enough for the largest double with two decimals and a unit.
    static constexpr std::size_t InlineRoom = 344;

    char inline_[InlineRoom + SuffixRoom]; // left as it is: clearing it would cost more than most conversions
    std::unique_ptr<char[]> spill_;
    char* begin_;
    char* end_;
    int separators_ = 0;
};

} // namespace quillgrid
