// The words and numbers of a written date or time, before anyone decides what they mean together.
#pragma once

#include "quillgrid/locale/Locale.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace quillgrid {

enum class HalfDay : std::uint8_t { None, Morning, Afternoon };

struct DateText {
    struct Number {
        std::int32_t Value = 0;
        int Digits = 0;
        bool AfterColon = false;
        bool AfterPoint = false; ///< after a point and nothing else
    };
    static constexpr std::size_t MostNumbers = 8;

    std::array<Number, MostNumbers> Numbers;
    std::size_t Count = 0;
    int Month = 0; ///< 0 when no month was named
    HalfDay Half = HalfDay::None;
};

/// Nothing when the text has characters or words that belong to no date, two months, or too many numbers.
std::optional<DateText> ScanDateText(std::string_view text, const Locale& locale);

} // namespace quillgrid
