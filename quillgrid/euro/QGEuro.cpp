#include "quillgrid/euro/QGEuro.h"

#include "quillgrid/euro/EuroConversion.h"

namespace quillgrid {

namespace {

std::string In(const EuroTexts& texts, LanguageConstants language) {
    const bool known = language >= qglgEnglish && language <= qglgGerman;
    return std::string(texts[static_cast<std::size_t>((known ? language : qglgGerman) - qglgEnglish)]);
}

std::size_t PlaceOf(const EuroCurrency& currency) {
    return static_cast<std::size_t>(&currency - EuroTable().data());
}

} // namespace

std::string QGEuro::Symbol(std::string_view currencyCode) const {
    const EuroCurrency* currency = FindEuroCurrency(currencyCode);
    return currency ? std::string(currency->Symbol) : std::string();
}

std::vector<ListedCurrency> QGEuro::Currencies() const {
    std::vector<ListedCurrency> listed;
    for (const EuroCurrency& currency : EuroTable()) {
        if (unused_[PlaceOf(currency)]) continue;
        listed.push_back({std::string(currency.Code), In(currency.Country, language_),
                          In(currency.Name, language_), Variant(currency.Code == "EUR" ? "euro" : "money")});
    }
    return listed;
}

std::optional<Currency> QGEuro::Convert(Currency amount, std::string_view from, std::string_view to) const {
    const EuroCurrency* source = FindEuroCurrency(from);
    const EuroCurrency* target = FindEuroCurrency(to);
    return source && target ? ConvertByEuro(amount, *source, *target) : std::nullopt;
}

bool QGEuro::InUse(std::string_view currencyCode) const {
    const EuroCurrency* currency = FindEuroCurrency(currencyCode);
    return currency && !unused_[PlaceOf(*currency)];
}

void QGEuro::SetInUse(std::string_view currencyCode, bool inUse) {
    if (const EuroCurrency* currency = FindEuroCurrency(currencyCode)) unused_[PlaceOf(*currency)] = !inUse;
}

} // namespace quillgrid
