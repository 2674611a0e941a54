#pragma once

#include "quillgrid/base/Export.h"

#include <QUrl>

namespace quillgrid {
class Cell;
}

namespace quillgrid::qt {

/// What a phone, mail or web cell points to: a tel, mailto, http or https address and never anything else, a
/// file or a program for one. Empty for other cells and other texts.
QUILLGRID_EXPORT QUrl addressOf(const Cell& cell);

} // namespace quillgrid::qt
