#include "quillgrid/cells/LanguageTexts.h"

#include "quillgrid/resources/StringTable.h"

#include <limits>
#include <optional>
#include <string_view>

namespace quillgrid {

namespace {

constexpr std::int32_t FirstBlock = 10'000;
constexpr std::int32_t BlockSize = 1'000;
/// Codes below are the host environment's, not the library's.
constexpr std::int32_t FirstLibraryCode = 10'001;

struct CodeText {
    std::int32_t Code;
    std::string_view Text;
};

constexpr CodeText BuiltInTexts[] = {
    {20092, "Collection item does not exist!"},
    {20093, "Collection Item already exists!"},
    {20099, "Invalid Property Value!"},
};

constexpr CodeText HostTexts[] = {
    {382, "This property cannot be set while the program runs"},
};

template <std::size_t Count>
std::string FindText(const CodeText (&table)[Count], std::int32_t code, std::string_view otherwise) {
    for (const CodeText& row : table) {
        if (row.Code == code) return std::string(row.Text);
    }
    return std::string(otherwise);
}

bool IsKnown(LanguageConstants language) {
    return language >= qglgDefault && language <= qglgGerman;
}

std::optional<std::string_view> TextOfLanguage(LanguageConstants language, std::int64_t number) {
    const std::int64_t id = number + LanguageBlock(language);
    if (!IsKnown(language) || id > std::numeric_limits<std::int32_t>::max()) return std::nullopt;
    return StoredText(static_cast<std::int32_t>(id));
}

} // namespace

std::int32_t LanguageBlock(LanguageConstants language) {
    if (!IsKnown(language) || language == qglgGerman) return FirstBlock;
    return FirstBlock + BlockSize * language;
}

std::string LocalText(LanguageConstants language, std::int32_t number) {
    auto text = TextOfLanguage(language, number);
    if (!text) text = StoredText(number);
    return text ? std::string(*text) : std::to_string(number);
}

std::string ErrorText(std::int32_t code) {
    if (const auto stored = StoredText(code)) return std::string(*stored);
    return FindText(BuiltInTexts, code, "Unknown Error!");
}

ControlError RaiseControlError(std::int32_t code, const std::string& source) {
    const std::string description =
        code < FirstLibraryCode ? FindText(HostTexts, code, "Application-defined or object-defined error")
                                : ErrorText(code);
    return ControlError(code, source, description);
}

} // namespace quillgrid
