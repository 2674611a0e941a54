#pragma once

#include "quillgrid/cells/InputConversion.h"
#include "quillgrid/grid/GridSettings.h"
#include "quillgrid/locale/Locale.h"

#include <array>
#include <string>

namespace quillgrid {

/// The characters that count as separators while typing: the control's own and, so that whatever is shown can
/// be typed, those with which the user's locale writes. The settings stay as the form has them, and can be
/// saved and loaded where dates are written otherwise.
class TypedSeparators {
public:
    /// Both outlive this.
    TypedSeparators(const GridSettings& settings, const Locale& locale)
        : settings_(settings), locale_(locale) {}

    /// Views that hold until the next call or change of the settings. Allocates only where the locale writes
    /// with a character that the control does not have, and then once.
    InputSeparators Get() const;

private:
    const GridSettings& settings_;
    const Locale& locale_;
    mutable std::array<std::string, 3> extended_;
};

} // namespace quillgrid
