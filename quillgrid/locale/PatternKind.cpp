#include "quillgrid/locale/PatternKind.h"

#include "quillgrid/locale/PatternText.h"

#include <algorithm>

namespace quillgrid {

namespace {

constexpr std::string_view DateLetters = "dmyhnswqcDMYHNSWQC";

struct Seen {
    bool Places = false;
    bool Letters = false;
};

bool NamesTime(std::string_view rest) {
    const auto startsWith = [rest](std::string_view name) { return rest.substr(0, name.size()) == name; };
    return startsWith("ttttt") || startsWith("TTTTT") || startsWith("A/P") || startsWith("a/p");
}

Seen LookAt(std::string_view pattern) {
    Seen seen;
    while (!pattern.empty() && !(seen.Places && seen.Letters)) {
        const std::size_t shielded = ShieldedLength(pattern);
        if (shielded == 0) {
            const char character = pattern[0];
            seen.Places = seen.Places || character == '0' || character == '#';
            seen.Letters =
                seen.Letters || DateLetters.find(character) != std::string_view::npos || NamesTime(pattern);
        }
        pattern.remove_prefix(std::max<std::size_t>(shielded, 1));
    }
    return seen;
}

} // namespace

bool IsDatePattern(std::string_view pattern, Variant::Type valueType) {
    const Seen seen = LookAt(pattern);
    return seen.Letters && (!seen.Places || valueType == Variant::Type::Date);
}

} // namespace quillgrid
