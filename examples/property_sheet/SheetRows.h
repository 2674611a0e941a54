#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace quillgrid::example {

enum class RowKind : std::uint8_t { YesNo, Number, Text, Colour, Choice };

/// One value of an enumeration.
struct Choice {
    std::int32_t Number;
    const char* Name;
};

/// How a property is edited in the sheet.
struct SheetRow {
    const char* Property; ///< in any case
    const char* Group;
    RowKind Kind;
    std::span<const Choice> Choices{};
    std::int32_t Least = 0; ///< of numbers
    std::int32_t Most = 999'999;
};

/// How the property of this name is edited; null for one that the table does not know.
const SheetRow* FindRow(std::string_view property);

} // namespace quillgrid::example
