#include "quillgrid/pads/ListPadSettings.h"

#include "quillgrid/pads/PadProperty.h"

#include <algorithm>

namespace quillgrid {

namespace {

using S = ListPadSettings;

constexpr PadProperty<S> Table[] = {
    PadPropertyOf<S, &S::BorderStyle>("BorderStyle"), PadPropertyOf<S, &S::Font>("Font"),
    PadPropertyOf<S, &S::VisibleRows>("VisibleRows"), PadPropertyOf<S, &S::BackColor>("BackColor"),
    PadPropertyOf<S, &S::AutoSize>("AutoSize"),       PadPropertyOf<S, &S::ShowFocusRect>("ShowFocusRect"),
};

} // namespace

std::int32_t ListPadSettings::BorderWidth() const {
    switch (BorderStyle) {
    case qgpbsNone: return 0;
    case qgpbsClassic: return 1;
    default: return 2;
    }
}

ListPadSettings ReadListPadSettings(const PropertyBag& bag, const Font& ambient, const Locale& locale) {
    ListPadSettings settings{.Font = ambient};
    ReadPadProperties(Table, bag, locale, settings);
    settings.VisibleRows = std::clamp(settings.VisibleRows, S::FewestRows, S::MostRows);
    return settings;
}

void WriteListPadSettings(const ListPadSettings& settings, const Font& ambient, PropertyBag& bag) {
    WritePadProperties(Table, bag, settings, ListPadSettings{.Font = ambient});
}

} // namespace quillgrid
