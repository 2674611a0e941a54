#include "quillgrid/locale/PatternKind.h"

#include "quillgrid/locale/DateParts.h"
#include "quillgrid/locale/PatternText.h"

#include <algorithm>

namespace quillgrid {

namespace {

struct Seen {
    bool Places = false;
    bool Letters = false;
};

Seen LookAt(std::string_view pattern) {
    Seen seen;
    while (!pattern.empty() && !(seen.Places && seen.Letters)) {
        const std::size_t shielded = ShieldedLength(pattern);
        if (shielded == 0) {
            seen.Places = seen.Places || pattern[0] == '0' || pattern[0] == '#';
            seen.Letters = seen.Letters || DatePartLength(pattern) > 0 || HalfDayLength(pattern) > 0;
        }
        pattern.remove_prefix(std::max<std::size_t>(shielded, 1));
    }
    return seen;
}

} // namespace

bool IsDatePattern(std::string_view pattern, Variant::Type valueType) {
    const Seen seen = LookAt(pattern);
    return seen.Letters && (!seen.Places || valueType == Variant::Type::Date);
}

} // namespace quillgrid
