#pragma once

#include "apps/record_editor/ColumnDescription.h"
#include "apps/record_editor/ColumnType.h"
#include "apps/record_editor/FieldValue.h"

#include "quillgrid/base/Variant.h"

#include <QList>
#include <QString>

#include <optional>

namespace quillgrid::editor {

/// One entry of a list.
struct Choice {
    FieldValue Value; ///< what the database keeps; NULL for "no value"
    QString Text;
    QString Image{}; ///< key in the control's image list
};

/// Everything that a cell needs to know to show and edit one column.
struct ColumnRule {
    QString Name;
    QString Caption;
    CellTemplateConstants Template = qgctNone;
    ValueKind Kind = ValueKind::Text;
    Variant Min = Variant::Null(); ///< Null leaves what the template says
    Variant Max = Variant::Null();
    int MaxLength = -1; ///< -1: as long as can be shown
    bool AllowEmpty = true;
    bool Locked = false;
    bool NullAllowed = true;         ///< whether "nothing" is kept as NULL
    std::optional<QString> Format{}; ///< instead of the template's
    bool HidesImage = false;         ///< the template's image would promise more than the column says
    std::optional<QString> Charlist{};
    QList<Choice> Choices;
    FieldValue Default;              ///< what the database puts into a new record, as far as it is a constant
    ColumnDescription Description{}; ///< refines all that is said above, except what the database demands
};

} // namespace quillgrid::editor
