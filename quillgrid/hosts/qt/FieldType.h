#pragma once

#include <QMetaEnum>
#include <QMetaType>

namespace quillgrid::qt {

/// What a field of an object, a model or a record holds.
struct FieldType {
    QMetaType Type{};      ///< invalid: whatever suits the cell
    QMetaEnum Enum{};      ///< where the values have names; `Type` is int then
    bool Nullable = false; ///< whether it can hold nothing: a null variant
};

} // namespace quillgrid::qt
