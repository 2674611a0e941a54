#pragma once

#include <QString>

namespace quillgrid::qt {

/// Where a field is found: by name in an object or a record, by section and role in a row of a model.
struct FieldAddress {
    QString Name{};
    int Section = -1;
    int Role = Qt::EditRole;
};

} // namespace quillgrid::qt
