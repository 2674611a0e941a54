// What a cell accepted and shows can be typed again: it is accepted again and shows the same.
#include "fuzz/FuzzInput.h"

#include "quillgrid/base/Text.h"
#include "quillgrid/cells/BooleanInput.h"
#include "quillgrid/cells/DisplayText.h"
#include "quillgrid/cells/InputConversion.h"
#include "quillgrid/platform/CurrencyConverter.h"

#include <cmath>
#include <optional>
#include <string>

namespace quillgrid {
namespace {

constexpr DisplayRules Looks[] = {
    {qgvrNone, "", ""},
    {qgvrInteger, "#0", ""},
    {qgvrCurrency, "Currency", ""},
    {qgvrEuro, "Currency", "EUR"},
    {qgvrDate, "Short Date", ""},
    {qgvrTime, "Long Time", ""},
    {qgvrCurrency, "#0", ""},
    {qgvrDouble, "Fixed", "%"},
    {qgvrDouble, "General Number", ""},
    {qgvrInteger, "", ""},
    {qgvrCurrency, "", ""},
    {qgvrEuro, "", ""},
    {qgvrDouble, "", ""},
    {qgvrDate, "", ""},
    {qgvrTime, "", ""},
    {qgvrBoolean, "", ""},
    {static_cast<ValidationRuleConstants>(99), "", ""},
};

struct Bounds {
    Variant Min;
    Variant Max;
    bool Contradict = false;
};

const Bounds& ChooseBounds(FuzzInput& input) {
    static const Bounds choices[] = {
        {Variant::Null(), Variant::Null()},
        {0, 100},
        {-5.5, 1000.25},
        {"08:00", "18:00"},
        {DateTime{36526, 70'000}, DateTime{47000, 5}},
        {Variant::Null(), std::nan("")},
        {"-1e3", Variant(true)},
        {10, 5, true},
        {"18:00", "08:00", true},
    };
    return input.Choice(choices);
}

constexpr std::int32_t Lengths[] = {50, 15, 10, 3, 0, -1, INT32_MIN, INT32_MAX};
constexpr std::string_view Charlists[] = {
    "", "", "", "1234567890()[]+-/. ", "ABCDEFGHIJKLMNOPQRSTUVWXYZ@.-", "\xC3\x84\xFF"};
constexpr std::int32_t Todays[] = {46342, FirstDay, LastDay, 0, INT32_MAX};

struct FuzzSymbols : CurrencyConverter {
    void SetLanguage(LanguageConstants) override {}
    std::string Symbol(std::string_view code) const override { return code == "EUR" ? "\u20AC" : ""; }
};

/// One cell with its rules, as far as conversion sees it.
class FuzzCell {
public:
    explicit FuzzCell(FuzzInput& input)
        : look_(input.Choice(Looks)),
          locale_(BuiltInLocale(input.Choice(LocaleNames))),
          bounds_(ChooseBounds(input)),
          rules_{look_.Rule, input.Choice(Lengths)},
          context_{{}, locale_, input.Choice(Todays)} {
        rules_.Charlist = input.Choice(Charlists);
        rules_.AllowEmpty = input.Byte() % 2 == 0;
        rules_.Min = &bounds_.Min;
        rules_.Max = &bounds_.Max;
    }

    bool Accept(Variant& value) const {
        const Variant before = value;
        const ValidationErrConstants code = ConvertInput(value, rules_, context_);
        const auto* number = before.Get<double>();
        const bool comparable = !number || !std::isnan(*number);
        if (code != qgErrNone && look_.Rule != qgvrNone && comparable) {
            Require(value == before, "a refused value stays as it was");
        }
        return code == qgErrNone;
    }
    std::string Show(const Variant& value) const {
        static const FuzzSymbols symbols;
        return DisplayText(value, look_, locale_, &symbols);
    }
    void CheckAccepted(const Variant& value) const {
        const auto* text = value.Get<std::string>();
        Require(!text || IsValidUtf8(*text), "kept text is valid");
        const std::string shown = Show(value);
        if (!CanBeTypedAgain(value, shown)) return;
        Variant again(WithoutUnit(shown));
        Require(Accept(again), "what is shown is accepted");
        Require(Show(again) == shown, "what is shown and typed again shows the same");
        Require(!ShowsAll() || again == value, "what is shown in full is the same value");
    }
    const Locale& UserLocale() const { return locale_; }

private:
    bool CanBeTypedAgain(const Variant& value, const std::string& shown) const {
        // Bounds that exclude each other send a value to and fro.
        if (bounds_.Contradict) return false;
        // A cut can leave nothing but blanks, which count as no input.
        if (!rules_.AllowEmpty && TrimBlanks(shown).empty()) return false;
        // The last whole amount of money rounds up to one that does not exist.
        const auto* amount = value.Get<Currency>();
        return !amount || std::abs(amount->ToDouble()) < 922'337'203'685'476.0;
    }
    bool ShowsAll() const {
        return look_.Rule == qgvrInteger || look_.Rule == qgvrDate || look_.Rule == qgvrTime ||
               look_.Format == "General Number";
    }
    std::string WithoutUnit(std::string text) const {
        const std::string unit = " " + std::string(look_.Unit);
        if (look_.Unit.empty() || text.size() < unit.size()) return text;
        if (text.substr(text.size() - unit.size()) == unit) text.resize(text.size() - unit.size());
        return text;
    }

    const DisplayRules& look_;
    const Locale& locale_;
    const Bounds& bounds_;
    InputRules rules_;
    InputContext context_;
};

void Run(FuzzInput& input) {
    const FuzzCell cell(input);
    const bool typed = input.Byte() % 4 != 0;
    Variant value = typed ? Variant(input.Rest()) : AnyValue(input);
    const auto boolean = BooleanFromInput(value, "an", "aus", cell.UserLocale());
    Require(value.Kind() != Variant::Type::Boolean || boolean.has_value(), "booleans are booleans");
    if (!cell.Accept(value)) return;
    // No input stays whatever kind of nothing it was.
    if (!value.IsNull() && !value.IsEmpty()) cell.CheckAccepted(value);
}

} // namespace
} // namespace quillgrid

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    quillgrid::FuzzInput input(data, size);
    quillgrid::Run(input);
    return 0;
}
