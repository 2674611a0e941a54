#pragma once

#include "quillgrid/base/Variant.h"
#include "quillgrid/locale/Locale.h"

#include <span>
#include <string_view>

namespace quillgrid {

class Cell;

/// A property of a cell as property sheets reach it.
struct CellProperty {
    std::string_view Name;
    /// None: a read gives what was stored last.
    Variant (*Read)(const Cell& cell) = nullptr;
    /// False when the value cannot be converted. None: writes are passed over.
    bool (*Write)(Cell& cell, const Variant& value, const Locale& locale) = nullptr;
};

/// The properties that the sheet of the cells lists, in its order.
std::span<const CellProperty> ListedCellProperties();
/// Any property by its name, ignoring case, the unlisted ones too; null when there is none.
const CellProperty* FindCellProperty(std::string_view name);

} // namespace quillgrid
