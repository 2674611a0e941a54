#include "quillgrid/locale/NamedFormats.h"

#include "quillgrid/locale/PatternText.h"

#include <algorithm>
#include <iterator>

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

bool IsName(std::string_view lowerName, std::string_view text) {
    return lowerName.size() == text.size() && lowerName[0] == LowerLetter(text[0]) &&
           std::equal(text.begin(), text.end(), lowerName.begin(),
                      [](char typed, char lower) { return LowerLetter(typed) == lower; });
}

} // namespace

std::optional<NamedFormat> FindNamedFormat(std::string_view name) {
    if (name.empty()) return std::nullopt;
    const auto found = std::find_if(std::begin(Names), std::end(Names),
                                    [name](const Name& candidate) { return IsName(candidate.Text, name); });
    if (found == std::end(Names)) return std::nullopt;
    return found->Format;
}

} // namespace quillgrid
