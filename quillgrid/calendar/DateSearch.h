#pragma once

#include "quillgrid/base/Export.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace quillgrid {

enum class DateUnit : std::uint8_t { Day, Week };

/// A bounded search for a day that is not blocked.
class QUILLGRID_EXPORT DateSearch {
public:
    using IsBlocked = std::function<bool(std::int32_t)>;
    struct Range {
        std::int32_t First;
        std::int32_t Last;
    };

    explicit DateSearch(IsBlocked isBlocked) : isBlocked_(std::move(isBlocked)) {}

    /// From `day` on, itself included, by `direction` (1 or -1) days. Nothing when the calendar ends or after
    /// ten years.
    std::optional<std::int32_t> ByDays(std::int32_t day, std::int32_t direction) const;
    /// By days or weeks up to the range's end in that direction; from there back by days. Weeks that all fall
    /// on blocked days give way to days after a year.
    std::optional<std::int32_t> Within(Range range, std::int32_t day, std::int32_t direction,
                                       DateUnit unit) const;

private:
    enum class End : std::uint8_t { Found, OutOfRange, OutOfSteps };
    struct Outcome {
        End How;
        std::int32_t Day;
    };
    Outcome Run(Range range, std::int32_t day, std::int32_t step, std::int32_t mostSteps) const;

    IsBlocked isBlocked_;
};

} // namespace quillgrid
