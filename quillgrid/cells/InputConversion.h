#pragma once

#include "quillgrid/base/Constants.h"
#include "quillgrid/base/Variant.h"
#include "quillgrid/locale/Locale.h"

#include <cstdint>
#include <string_view>

namespace quillgrid {

/// The characters that count as separators while typing. Views of texts that outlive the call.
struct InputSeparators {
    std::string_view Number = ".,";
    std::string_view Date = ":/.,#";
    std::string_view Time = ":.,#";
};

/// What a cell asks of a value. Views and pointers into the cell; null bounds are not checked.
struct InputRules {
    ValidationRuleConstants Rule = qgvrNone;
    std::int32_t MaxLength = 50; ///< characters; only rule none is cut; negative counts as 0
    const Variant* Min = nullptr;
    const Variant* Max = nullptr;
    std::string_view Charlist{}; ///< allowed characters, empty allows all
    bool AllowEmpty = true;
};

/// The user's surroundings: how the locale writes dates, and today's date for completing them.
struct InputContext {
    InputSeparators Separators{};
    const Locale& UserLocale;
    std::int32_t Today = 0; ///< day number
};

/// The one conversion of an assigned or typed value into the value of a cell. `value` is replaced when the
/// result is 0; otherwise it stays as it was, except that a text under rule none is cut to MaxLength even
/// when the result is 20011. Results: 0, 20001, 20002, 20003, 20008, 20010, 20011. Work is linear in the
/// length of the text; no allocation for numbers, dates and times of up to 344 bytes.
ValidationErrConstants ConvertInput(Variant& value, const InputRules& rules, const InputContext& context);

} // namespace quillgrid
