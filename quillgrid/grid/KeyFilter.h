#pragma once

#include "quillgrid/cells/Cell.h"
#include "quillgrid/cells/InputConversion.h"
#include "quillgrid/locale/Locale.h"

#include <string>

namespace quillgrid {

/// The characters that may be typed into the cell; empty allows all.
std::string KeyFilterOf(const Cell& cell, const InputSeparators& separators, const Locale& locale);

/// The character as the cell's case rule wants it, typed after `before` (the text left of the caret).
char32_t CaseOf(char32_t character, CharCaseConstants rule, std::string_view before);

} // namespace quillgrid
