#pragma once

#include "quillgrid/base/Colour.h"
#include "quillgrid/platform/Theme.h"

namespace quillgrid {

/// The ink as it is when it can be read on the paper, otherwise darkened or lightened until it can: white
/// numbers on a button's face, or blue ones on a dark window, were chosen for desktops that look otherwise.
/// The colour of plain text, chosen by nobody, becomes black or white.
Colour LegibleInk(const Theme& desktop, Colour ink, Colour paper);

} // namespace quillgrid
