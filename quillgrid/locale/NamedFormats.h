#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace quillgrid {

enum class NamedFormat : std::uint8_t {
    GeneralNumber,
    Currency,
    Fixed,
    Standard,
    Percent,
    Scientific,
    YesNo,
    TrueFalse,
    OnOff,
    GeneralDate,
    ShortDate,
    MediumDate,
    LongDate,
    ShortTime,
    MediumTime,
    LongTime,
};

/// The format of a name in any case.
std::optional<NamedFormat> FindNamedFormat(std::string_view name);

} // namespace quillgrid
