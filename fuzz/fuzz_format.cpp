// Any value by any pattern in every locale: no crash, a result in proportion, valid text from valid text.
#include "fuzz/FuzzInput.h"

#include "quillgrid/base/Text.h"
#include "quillgrid/locale/Coercion.h"
#include "quillgrid/locale/Format.h"

#include <string>

namespace quillgrid {
namespace {

// A digit with its group separator, a date letter that writes date and time ("c"), a number of 400 digits.
constexpr std::size_t LongestNumber = 4'000;
constexpr std::size_t LongestPerPatternByte = 64;

void Run(FuzzInput& input) {
    const Locale& locale = BuiltInLocale(input.Choice(LocaleNames));
    const bool isText = input.Byte() % 4 == 0;
    const Variant value = isText ? Variant(input.Take(input.Byte() % 32)) : AnyValue(input);
    const std::string_view pattern = input.Rest();
    const auto* text = value.Get<std::string>();
    const bool valid = IsValidUtf8(pattern) && (!text || IsValidUtf8(*text));
    const std::string shown = Format(value, pattern, locale);
    Require(shown.size() <= LongestNumber + LongestPerPatternByte * (pattern.size() + 32), "in proportion");
    Require(!valid || IsValidUtf8(shown), "valid text from valid text");
    // A malformed byte is repaired to three.
    Require(Format(Variant::Null(), pattern, locale).size() <= 3 * pattern.size(),
            "Null writes literals at most");
    Require(!valid || IsValidUtf8(ToText(value, locale)), "values have valid texts");
}

} // namespace
} // namespace quillgrid

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    quillgrid::FuzzInput input(data, size);
    quillgrid::Run(input);
    return 0;
}
