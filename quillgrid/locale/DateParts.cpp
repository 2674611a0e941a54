#include "quillgrid/locale/DateParts.h"

#include "quillgrid/locale/PatternText.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace quillgrid {

namespace {

struct Letter {
    char Character;
    std::uint8_t Longest;
};
constexpr Letter Letters[] = {{'d', 6}, {'m', 4}, {'y', 4}, {'h', 2}, {'n', 2},
                              {'s', 2}, {'w', 2}, {'q', 1}, {'c', 1}, {'t', 5}};

using RunTable = std::array<std::uint8_t, 256>;

constexpr RunTable MakeRunTable() {
    RunTable table{};
    for (const Letter& letter : Letters) {
        table[static_cast<unsigned char>(letter.Character)] = letter.Longest;
        table[static_cast<unsigned char>(letter.Character - 'a' + 'A')] = letter.Longest;
    }
    return table;
}

// Looked up once for every character of every pattern.
constexpr RunTable LongestRun = MakeRunTable();

bool StartsWith(std::string_view text, std::string_view lowerPrefix) {
    return text.size() >= lowerPrefix.size() &&
           std::equal(lowerPrefix.begin(), lowerPrefix.end(), text.begin(),
                      [](char lower, char character) { return lower == LowerLetter(character); });
}

bool IsHalfDayStart(char character) {
    return character == 'a' || character == 'A';
}

} // namespace

std::size_t DatePartLength(std::string_view text) {
    const std::size_t longest = LongestRun[static_cast<unsigned char>(text[0])];
    if (longest == 0) return 0;
    const char first = LowerLetter(text[0]);
    const std::size_t limit = std::min(longest, text.size());
    std::size_t length = 1;
    while (length < limit && LowerLetter(text[length]) == first)
        ++length;
    if (first == 'y' && length == 3) return 2;
    if (first == 't' && length < 5) return 0;
    return length;
}

std::size_t HalfDayLength(std::string_view text) {
    if (text.empty() || !IsHalfDayStart(text[0])) return 0;
    for (const std::string_view name : {std::string_view("am/pm"), std::string_view("a/p")}) {
        if (StartsWith(text, name)) return name.size();
    }
    return 0;
}

bool NamesHalfDays(std::string_view pattern) {
    if (std::none_of(pattern.begin(), pattern.end(), IsHalfDayStart)) return false;
    while (!pattern.empty()) {
        if (HalfDayLength(pattern) > 0) return true;
        pattern.remove_prefix(std::max<std::size_t>(ShieldedLength(pattern), 1));
    }
    return false;
}

} // namespace quillgrid
