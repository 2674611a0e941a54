#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/calendar/HolidayMarks.h"
#include "quillgrid/calendar/WorkYears.h"

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace quillgrid {

class Holidays;

/// All that is worked out from one set of marks and never changes with them: kept for as long as any rules
/// have these marks.
class QUILLGRID_EXPORT KnownMarks {
public:
    explicit KnownMarks(HolidayMarks marks) : marks_(std::move(marks)) {}
    KnownMarks(const KnownMarks&) = delete;
    KnownMarks& operator=(const KnownMarks&) = delete;

    const HolidayMarks& Marks() const { return marks_; }
    WorkYears& Years(Weekend weekend);

private:
    HolidayMarks marks_;
    std::array<std::optional<WorkYears>, Weekend::Choices> years_;
};

/// The rules and user dates as they stood at one moment. Resolutions refer to a snapshot, so what they give
/// can be worked out later, when the rules themselves have long been changed.
struct QUILLGRID_EXPORT RuleSnapshot {
    std::vector<HolidayRule> Rules;
    std::vector<std::string> Names; ///< of the same positions
    UserDays User{};
    std::shared_ptr<KnownMarks> Known;

    /// Keeps what is known of `before` when nothing that decides days has changed.
    static std::shared_ptr<const RuleSnapshot> Of(const Holidays& rules, const UserDays& user,
                                                  const RuleSnapshot* before);
};

} // namespace quillgrid
