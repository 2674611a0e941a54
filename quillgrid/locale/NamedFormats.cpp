#include "quillgrid/locale/NamedFormats.h"

#include "quillgrid/locale/PatternText.h"

#include <algorithm>

namespace quillgrid {

namespace {

struct Name {
    std::string_view Text;
    NamedFormat Format;
};

constexpr Name Names[] = {
    {"general number", NamedFormat::GeneralNumber},
    {"currency", NamedFormat::Currency},
    {"fixed", NamedFormat::Fixed},
    {"standard", NamedFormat::Standard},
    {"percent", NamedFormat::Percent},
    {"scientific", NamedFormat::Scientific},
    {"yes/no", NamedFormat::YesNo},
    {"true/false", NamedFormat::TrueFalse},
    {"on/off", NamedFormat::OnOff},
    {"general date", NamedFormat::GeneralDate},
    {"short date", NamedFormat::ShortDate},
    {"medium date", NamedFormat::MediumDate},
    {"long date", NamedFormat::LongDate},
    {"short time", NamedFormat::ShortTime},
    {"medium time", NamedFormat::MediumTime},
    {"long time", NamedFormat::LongTime},
};

// Both texts are of the same length.
bool IsName(std::string_view lowerName, std::string_view text) {
    return std::equal(text.begin(), text.end(), lowerName.begin(),
                      [](char typed, char lower) { return LowerLetter(typed) == lower; });
}

} // namespace

std::optional<NamedFormat> FindNamedFormat(std::string_view name) {
    for (const Name& candidate : Names) {
        if (candidate.Text.size() == name.size() && IsName(candidate.Text, name)) return candidate.Format;
    }
    return std::nullopt;
}

} // namespace quillgrid
