#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/cells/Cell.h"
#include "quillgrid/cells/InputConversion.h"
#include "quillgrid/grid/GridSettings.h"

#include <string>
#include <string_view>

namespace quillgrid {

/// Whether this user may see the cell's value.
QUILLGRID_EXPORT bool IsDataVisible(const Cell& cell, std::int32_t userLevel);
/// Whether the user may change the cell. Code always may.
QUILLGRID_EXPORT bool IsEditable(const Cell& cell, std::int32_t userLevel);
inline bool IsHeading(const Cell& cell) {
    return cell.Style() == qgcsHeader || cell.Template() == qgctGroup;
}
inline bool IsListOrBoolean(const Cell& cell) {
    return cell.Style() == qgcsList || cell.ValidationRule() == qgvrBoolean;
}
/// A cell whose text is typed into the edit box.
inline bool IsTyped(const Cell& cell) {
    return !IsHeading(cell) && !IsListOrBoolean(cell);
}

/// What is painted: the text, or one masking character for each of its characters.
QUILLGRID_EXPORT std::string ShownText(const Cell& cell, const GridSettings& settings);
/// The masking character; an empty setting masks too.
std::string MaskOf(const GridSettings& settings);

InputRules RulesOf(const Cell& cell);
/// The text without one trailing blank and unit: a unit may hold digits or separators, which are no part of
/// the number.
std::string_view WithoutUnit(std::string_view text, const std::string& unit);

} // namespace quillgrid
