#include "quillgrid/cells/LanguageLists.h"

#include "quillgrid/cells/LanguageTexts.h"
#include "quillgrid/resources/StringTable.h"

#include <algorithm>
#include <array>

namespace quillgrid {

namespace {

constexpr std::uint32_t Yes = 0xFFFFFFFFU; // all bits set

constexpr std::array<LanguageEntry, 2> YesNo{{{1, Yes, "checked"}, {2, 0, "unchecked"}}};

constexpr std::array<LanguageEntry, 3> Salutations{{{3, 1, "woman"}, {4, 2, "man"}, {5, 3, "company"}}};

constexpr std::array<LanguageEntry, 16> Colours{{
    {100, 0x000000},
    {101, 0x800000},
    {102, 0x008000},
    {103, 0x808000},
    {104, 0x000080},
    {105, 0x800080},
    {106, 0x008080},
    {107, 0xC0C0C0},
    {108, 0x808080},
    {109, 0xFF0000},
    {110, 0x00FF00},
    {111, 0xFFFF00},
    {112, 0x0000FF},
    {113, 0xFF00FF},
    {114, 0x00FFFF},
    {115, 0xFFFFFF},
}};

constexpr std::array<LanguageEntry, 27> SystemColours{{
    {200, 0x80000000}, {201, 0x80000001}, {202, 0x80000002}, {203, 0x80000003}, {204, 0x80000004},
    {205, 0x80000005}, {206, 0x80000006}, {207, 0x80000007}, {208, 0x80000008}, {209, 0x80000009},
    {210, 0x8000000A}, {211, 0x8000000B}, {212, 0x8000000C}, {213, 0x8000000D}, {214, 0x8000000E},
    {215, 0x8000000F}, {216, 0x80000010}, {217, 0x80000011}, {218, 0x80000012}, {219, 0x80000013},
    {220, 0x80000014}, {221, 0x80000015}, {222, 0x80000016}, {223, 0x80000010}, {224, 0x8000000F},
    {225, 0x80000017}, {226, 0x80000018},
}};

constexpr std::array<LanguageList, 4> Lists{{
    {qgctboolean, true, YesNo},
    {qgctSalutation, true, Salutations},
    {qgctColor, false, Colours},
    {qgctSysColor, false, SystemColours},
}};

} // namespace

Variant LanguageList::DataOf(const LanguageEntry& entry) const {
    const auto data = static_cast<std::int32_t>(entry.Data);
    return ShortData ? Variant(static_cast<std::int16_t>(data)) : Variant(data);
}

const LanguageList* FindLanguageList(CellTemplateConstants number) {
    const auto found = std::find_if(Lists.begin(), Lists.end(),
                                    [number](const LanguageList& list) { return list.Template == number; });
    return found == Lists.end() ? nullptr : &*found;
}

std::string TextOf(const LanguageEntry& entry, LanguageConstants language) {
    const auto stored = StoredText(LanguageBlock(language) + entry.Text);
    return stored ? std::string(*stored) : LocalText(language, entry.Text);
}

} // namespace quillgrid
