#include "quillgrid/calendar/EnableFlags.h"

#include "quillgrid/base/Text.h"

namespace quillgrid {

std::vector<std::string_view> EnableCharacters(std::string_view text, std::size_t size) {
    std::vector<std::string_view> characters(size, "1");
    for (std::size_t i = 0; i < size && !text.empty(); ++i) {
        const std::size_t bytes = DecodeFirst(text).Bytes;
        characters[i] = text.substr(0, bytes);
        text.remove_prefix(bytes);
    }
    return characters;
}

EnableFlags::EnableFlags(std::string_view text) {
    const auto characters = EnableCharacters(text, MostRules);
    for (std::size_t i = 0; i < MostRules; ++i)
        on_[i] = characters[i] == "1";
}

} // namespace quillgrid
