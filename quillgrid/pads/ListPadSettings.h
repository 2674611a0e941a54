#pragma once

#include "quillgrid/base/Colour.h"
#include "quillgrid/base/Constants.h"
#include "quillgrid/base/Export.h"
#include "quillgrid/locale/Locale.h"
#include "quillgrid/platform/Font.h"
#include "quillgrid/platform/PropertyBag.h"

#include <cstdint>

namespace quillgrid {

/// The persisted properties of the list pad, with their defaults.
struct QUILLGRID_EXPORT ListPadSettings {
    static constexpr std::int32_t FewestRows = 1;
    static constexpr std::int32_t MostRows = 99;

    PopupBorderstyleConstants BorderStyle = qgpbsRaised;
    quillgrid::Font Font; ///< the host's ambient font
    std::int32_t VisibleRows = 6;
    Colour BackColor = ColourButtonFace;
    bool AutoSize = false; ///< as wide as the widest row
    bool ShowFocusRect = false;

    /// Pixels on each side.
    std::int32_t BorderWidth() const;

    friend bool operator==(const ListPadSettings&, const ListPadSettings&) = default;
};

/// `ambient` is the host's font.
QUILLGRID_EXPORT ListPadSettings ReadListPadSettings(const PropertyBag& bag, const Font& ambient,
                                                     const Locale& locale);
QUILLGRID_EXPORT void WriteListPadSettings(const ListPadSettings& settings, const Font& ambient,
                                           PropertyBag& bag);

} // namespace quillgrid
