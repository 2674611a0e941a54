#pragma once

#include "quillgrid/base/Constants.h"

#include <string>
#include <string_view>

namespace quillgrid {

/// Knows currencies by their ISO code. (Listing and converting amounts join it with the pads that use them.)
class CurrencyConverter {
public:
    virtual ~CurrencyConverter() = default;

    /// The symbol to show for a currency code, empty when the code is unknown.
    virtual std::string Symbol(std::string_view currencyCode) const = 0;
    /// The language of the names that it gives from now on.
    virtual void SetLanguage(LanguageConstants language) = 0;
};

} // namespace quillgrid
