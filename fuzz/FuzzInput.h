#pragma once

#include "quillgrid/base/Variant.h"
#include "quillgrid/locale/Locale.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>

namespace quillgrid {

inline constexpr const char* LocaleNames[] = {"de-DE", "de-AT", "de-CH", "en-US",
                                              "en-GB", "fr-FR", "it-IT", "es-ES"};

/// Hands out the bytes of one run: choices from the front, the text is what remains.
class FuzzInput {
public:
    FuzzInput(const std::uint8_t* data, std::size_t size)
        : rest_(reinterpret_cast<const char*>(data), size) {}

    std::uint8_t Byte() { return Number<std::uint8_t>(); }
    template <typename T>
    T Number() {
        T number{};
        const std::size_t bytes = rest_.size() < sizeof number ? rest_.size() : sizeof number;
        std::memcpy(&number, rest_.data(), bytes);
        rest_.remove_prefix(bytes);
        return number;
    }
    template <typename T, std::size_t Count>
    const T& Choice(const T (&table)[Count]) {
        return table[Byte() % Count];
    }
    std::string_view Take(std::size_t most) {
        const std::string_view taken = rest_.substr(0, most);
        rest_.remove_prefix(taken.size());
        return taken;
    }
    std::string_view Rest() const { return rest_; }

private:
    std::string_view rest_;
};

/// A value of any type but text and object, from the bytes.
inline Variant AnyValue(FuzzInput& input) {
    switch (input.Byte() % 8) {
    case 0: return Variant();
    case 1: return Variant::Null();
    case 2: return input.Number<std::int16_t>();
    case 3: return input.Number<std::int32_t>();
    case 4: return Currency::FromScaled(input.Number<std::int64_t>());
    case 5: return input.Number<double>();
    case 6: return DateTime{input.Number<std::int32_t>(), input.Number<std::int32_t>()};
    default: return input.Byte() % 2 == 0;
    }
}

inline void Require(bool condition, const char* what) {
    if (condition) return;
    std::fprintf(stderr, "Broken: %s\n", what);
    std::abort();
}

} // namespace quillgrid
