#include "quillgrid/grid/TypedSeparators.h"

namespace quillgrid {

namespace {

std::string_view With(const std::string& local, const std::string& own, std::string& extended) {
    if (own.find(local) != std::string::npos) return own;
    const bool isKnown = extended.size() == own.size() + local.size() && extended.starts_with(own) &&
                         extended.ends_with(local);
    if (!isKnown) extended = own + local;
    return extended;
}

} // namespace

InputSeparators TypedSeparators::Get() const {
    return {.Number = With(locale_.DecimalSeparator, settings_.NumSeparators, extended_[0]),
            .Date = With(locale_.DateSeparator, settings_.DateSeparators, extended_[1]),
            .Time = With(locale_.TimeSeparator, settings_.TimeSeparators, extended_[2])};
}

} // namespace quillgrid
