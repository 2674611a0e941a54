#pragma once

#include "quillgrid/base/Constants.h"
#include "quillgrid/base/Currency.h"
#include "quillgrid/base/Variant.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillgrid {

/// A currency as a list offers it.
struct ListedCurrency {
    std::string Code;    ///< ISO 4217
    std::string Country; ///< where it is or was paid with
    std::string Name;
    Variant Image = Variant::Null(); ///< key or position in the host's image list
};

/// Knows currencies by their ISO code, in any case.
class CurrencyConverter {
public:
    virtual ~CurrencyConverter() = default;

    /// The symbol to show for a currency code, empty when the code is unknown.
    virtual std::string Symbol(std::string_view currencyCode) const = 0;
    /// The language of the names that it gives from now on.
    virtual void SetLanguage(LanguageConstants language) = 0;
    /// The currencies in use, in the order in which they are offered.
    virtual std::vector<ListedCurrency> Currencies() const { return {}; }
    /// The amount in another currency; nothing when a code is unknown or the amount out of range.
    virtual std::optional<Currency> Convert(Currency, std::string_view /*from*/,
                                            std::string_view /*to*/) const {
        return std::nullopt;
    }
};

} // namespace quillgrid
