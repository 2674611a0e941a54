#pragma once

#include "quillgrid/base/Constants.h"
#include "quillgrid/base/Variant.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace quillgrid {

/// An entry whose text depends on the language.
struct LanguageEntry {
    std::int32_t Text = 0; ///< number of its text in the block of a language
    std::uint32_t Data = 0;
    std::string_view Image{};
};

/// The entries that a template gives its list.
struct LanguageList {
    CellTemplateConstants Template = qgctNone;
    bool ShortData = false; ///< data are 16-bit integers
    std::span<const LanguageEntry> Entries{};

    Variant DataOf(const LanguageEntry& entry) const;
};

/// The list of a template, or nothing when its entries have no language.
const LanguageList* FindLanguageList(CellTemplateConstants number);

/// The text of an entry in a language.
std::string TextOf(const LanguageEntry& entry, LanguageConstants language);

} // namespace quillgrid
