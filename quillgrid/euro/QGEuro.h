#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/euro/EuroTable.h"
#include "quillgrid/platform/CurrencyConverter.h"

#include <bitset>
#include <cstdint>

namespace quillgrid {

/// The euro and the currencies that it replaced, at the rates fixed by law. What a control converts with
/// unless its host brings another converter.
class QUILLGRID_EXPORT QGEuro : public CurrencyConverter {
public:
    std::string Symbol(std::string_view currencyCode) const override;
    /// Numbers beyond the five speak German.
    void SetLanguage(LanguageConstants language) override { language_ = language; }
    /// All of them, until some are taken out of use; the euro first, the others by code. Their image is the
    /// one called "euro" or "money".
    std::vector<ListedCurrency> Currencies() const override;
    std::optional<Currency> Convert(Currency amount, std::string_view from,
                                    std::string_view to) const override;

    /// Whether lists offer the currency. It is converted all the same. Unknown codes are passed over.
    bool InUse(std::string_view currencyCode) const;
    void SetInUse(std::string_view currencyCode, bool inUse);

private:
    LanguageConstants language_ = qglgDefault;
    std::bitset<64> unused_; ///< by place in the table
};

} // namespace quillgrid
