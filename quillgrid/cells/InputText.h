#pragma once

#include "quillgrid/base/Text.h"
#include "quillgrid/base/Variant.h"
#include "quillgrid/locale/Coercion.h"

#include <string>
#include <string_view>

namespace quillgrid {

/// What `use` makes of the text of a value without blanks at its ends. What is text already is not copied.
template <typename Use>
auto WithInputText(const Variant& value, const Locale& locale, Use use) {
    if (const auto* typed = value.Get<std::string>()) return use(TrimBlanks(*typed));
    const std::string written = ToText(value, locale);
    return use(TrimBlanks(written));
}

} // namespace quillgrid
