#include "quillgrid/cells/CellLists.h"

#include "quillgrid/base/Text.h"
#include "quillgrid/cells/CellAccess.h"
#include "quillgrid/cells/LanguageLists.h"
#include "quillgrid/cells/OwnerServices.h"
#include "quillgrid/locale/Coercion.h"
#include "quillgrid/platform/ImageSource.h"
#include "quillgrid/platform/Theme.h"

#include <algorithm>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quillgrid {

namespace {

struct FontEntry {
    std::string Name;
    std::string_view Image;
};

constexpr std::string_view ScreenFont = "computer";
constexpr std::string_view PrinterFont = "printer";
constexpr std::string_view CommonFont = "truetype";

void FillFromLanguage(Listitems& items, CellOwner* owner, CellTemplateConstants number) {
    items.Clear();
    const auto& list = *FindLanguageList(number);
    for (const auto& entry : list.Entries) {
        ListitemArguments arguments{.Text = TextOf(entry, LanguageOf(owner)), .ItemData = list.DataOf(entry)};
        if (!entry.Image.empty()) arguments.ListImage = Variant(entry.Image);
        items.Add(std::move(arguments));
    }
}

const Theme* DesktopOf(const CellOwner* owner) {
    return owner ? owner->Desktop() : nullptr;
}

/// The names sorted without regard to case, to be searched by halving.
std::vector<std::string> Sorted(std::vector<std::string> names) {
    std::sort(names.begin(), names.end(),
              [](const auto& left, const auto& right) { return CompareIgnoreCase(left, right) < 0; });
    return names;
}

bool Has(const std::vector<std::string>& sorted, const std::string& name) {
    return std::binary_search(sorted.begin(), sorted.end(), name, [](const auto& left, const auto& right) {
        return CompareIgnoreCase(left, right) < 0;
    });
}

/// Screen fonts before printer fonts, each in the order of the host.
std::vector<FontEntry> InstalledFonts(const Theme& desktop) {
    const auto screen = desktop.ScreenFonts();
    const auto printer = desktop.PrinterFonts();
    const auto sortedScreen = Sorted(screen);
    const auto sortedPrinter = Sorted(printer);
    std::vector<FontEntry> fonts;
    fonts.reserve(screen.size() + printer.size());
    for (const auto& name : screen)
        fonts.push_back({name, Has(sortedPrinter, name) ? CommonFont : ScreenFont});
    for (const auto& name : printer) {
        if (!Has(sortedScreen, name)) fonts.push_back({name, PrinterFont});
    }
    return fonts;
}

std::vector<FontEntry> FontsToShow(const CellOwner& owner) {
    if (!owner.UserMode()) return {{"Arial", CommonFont}};
    if (!owner.Desktop()) return {};
    const auto byName = [&locale = owner.UserLocale()](const auto& left, const auto& right) {
        return locale.Compare(left.Name, right.Name) < 0;
    };
    // Equal names keep their order; and unlike a sort, a tree comes to no harm from a host's odd comparison.
    std::multiset<FontEntry, decltype(byName)> sorted(byName);
    for (auto& font : InstalledFonts(*owner.Desktop()))
        sorted.insert(std::move(font));
    return {sorted.begin(), sorted.end()};
}

/// Shows the busy pointer while it lives.
class BusyPointer {
public:
    explicit BusyPointer(CellOwner& owner) : owner_(owner) { owner_.SetBusyPointer(true); }
    ~BusyPointer() { owner_.SetBusyPointer(false); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;

private:
    CellOwner& owner_;
};

} // namespace

void FillNothing(Listitems& items, CellOwner*) {
    items.Clear();
}

void FillYesNo(Listitems& items, CellOwner* owner) {
    FillFromLanguage(items, owner, qgctboolean);
}

void FillSalutations(Listitems& items, CellOwner* owner) {
    FillFromLanguage(items, owner, qgctSalutation);
}

void FillColours(Listitems& items, CellOwner* owner) {
    FillFromLanguage(items, owner, qgctColor);
}

void FillSystemColours(Listitems& items, CellOwner* owner) {
    FillFromLanguage(items, owner, qgctSysColor);
}

void FillPrinters(Listitems& items, CellOwner* owner) {
    items.Clear();
    const auto* desktop = DesktopOf(owner);
    if (!desktop) return;
    std::int32_t position = 0;
    for (auto& name : desktop->Printers()) {
        items.Add(
            {.Text = std::move(name), .ItemData = Variant(position++), .ListImage = Variant("printer")});
    }
}

void FillImages(Listitems& items, CellOwner* owner) {
    items.Clear();
    const auto* images = owner ? owner->Images() : nullptr;
    for (std::size_t i = 1; images && i <= images->Count(); ++i) {
        const auto* image = images->At(i);
        if (!image) continue;
        items.Add({.Text = ToText(image->Tag, LocaleOf(owner)),
                   .ItemData = Variant(static_cast<std::int32_t>(i)),
                   .ListImage = Variant(image->Key)});
    }
}

void FillFonts(Listitems& items, CellOwner* owner) {
    items.Clear();
    if (!owner) return;
    const BusyPointer busy(*owner);
    std::int32_t position = 0;
    for (auto& font : FontsToShow(*owner)) {
        items.Add({.Text = std::move(font.Name),
                   .ItemData = Variant(position++),
                   .ListImage = Variant(font.Image)});
    }
}

void RefillLanguageTexts(Cell& cell) {
    const auto* list = FindLanguageList(cell.Template());
    if (!list) return;
    const auto language = LanguageOf(CellAccess::Owner(cell));
    std::size_t position = 0;
    for (const auto& entry : list->Entries) {
        const auto item = cell.Listitems().At(++position);
        if (item && EqualAsText(item->ItemData(), list->DataOf(entry)))
            item->SetText(TextOf(entry, language));
    }
    CellAccess::RefreshText(cell);
}

} // namespace quillgrid
