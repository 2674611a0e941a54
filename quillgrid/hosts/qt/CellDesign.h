#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/hosts/qt/FieldType.h"

#include <QString>

namespace quillgrid::qt {

class QuillgridWidget;

/// A cell to be made for a field.
struct CellDesign {
    QString Key;
    QString Caption{};
    FieldType Type{};
    int MaxLength = -1; ///< characters; 0 and below: as many as may be
};

/// Adds a cell that can show what such a field holds, unless the form has one of this key.
void AddCell(QuillgridWidget& form, const CellDesign& design);

/// Whether there are cells for such a field.
QUILLGRID_EXPORT bool HasCell(const FieldType& type);

/// "birthDate" and "birth_date" as people write it: "Birth date".
QString CaptionOfName(const QString& name);

} // namespace quillgrid::qt
