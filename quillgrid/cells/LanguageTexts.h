#pragma once

#include "quillgrid/base/Constants.h"
#include "quillgrid/base/ControlError.h"
#include "quillgrid/base/Export.h"

#include <cstdint>
#include <string>

namespace quillgrid {

/// First number of a language's block of the string table: 10000 for German, the default and unknown
/// languages, 11000 English, 12000 French, 13000 Italian, 14000 Spanish.
QUILLGRID_EXPORT std::int32_t LanguageBlock(LanguageConstants language);

/// The text of a language under a number relative to its block; else the text stored under the bare number;
/// else the number in decimal.
QUILLGRID_EXPORT std::string LocalText(LanguageConstants language, std::int32_t number);

/// The message of an error code, with built-in texts where the table has none.
QUILLGRID_EXPORT std::string ErrorText(std::int32_t code);

/// The error that published members throw: `throw RaiseControlError(20092, "Cells.Item Property Get")`.
QUILLGRID_EXPORT ControlError RaiseControlError(std::int32_t code, const std::string& source);

} // namespace quillgrid
