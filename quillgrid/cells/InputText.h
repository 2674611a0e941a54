#pragma once

#include "quillgrid/base/Text.h"
#include "quillgrid/base/Variant.h"
#include "quillgrid/locale/Coercion.h"

#include <string>
#include <string_view>

namespace quillgrid {

/// The text of a value without blanks at its ends: a view where the value is text, else written for the
/// occasion.
class InputText {
public:
    InputText(const Variant& value, const Locale& locale) : typed_(value.Get<std::string>()) {
        if (!typed_) written_ = ToText(value, locale);
    }
    InputText(const InputText&) = delete;
    InputText& operator=(const InputText&) = delete;

    std::string_view View() const { return TrimBlanks(typed_ ? *typed_ : written_); }

private:
    const std::string* typed_;
    std::string written_;
};

} // namespace quillgrid
