#pragma once

#include "quillgrid/grid/Quillgrid.h"
#include "quillgrid/hosts/qt/FieldAddress.h"

#include <QVariant>

#include <memory>
#include <string>

namespace quillgrid::qt {

/// A cell and the field that it shows.
struct BoundField {
    std::string Key; ///< of the cell
    FieldAddress Address;
    std::weak_ptr<Cell> ShownIn{}; ///< another cell may take the key
    QVariant Source{};             ///< what the field held when it was last read
    Variant Shown{};               ///< what the cell held when it last showed the field
    bool IsWaiting = false;        ///< the field changed while the cell held input of the user's
    bool IsWriting = false;        ///< the field is being written: it tells of that too
    bool IsLockedHere = false;     ///< the cell is locked because the field is
    bool IsRemoved = false;        ///< from its binding
};

} // namespace quillgrid::qt
