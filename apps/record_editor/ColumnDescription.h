#pragma once

#include "apps/record_editor/ColumnType.h"
#include "apps/record_editor/FieldValue.h"

#include "quillgrid/base/Variant.h"
#include "quillgrid/platform/Record.h"

#include <QHash>
#include <QString>
#include <QVariant>

#include <optional>
#include <string_view>

namespace quillgrid::editor {

/// What the data dictionary says about one column: a record whose fields are named like the properties of a
/// cell. Fields that the cell takes from its column or from the record shown are not handed out.
class ColumnDescription : public Record {
public:
    ColumnDescription() = default;
    /// Names in lower case. The kind says how bounds and the default are to be read.
    ColumnDescription(QHash<QString, QVariant> fields, ValueKind kind)
        : fields_(std::move(fields)), kind_(kind) {}

    std::optional<Variant> Field(std::string_view name) const override;

    bool Has(const QString& name) const { return fields_.contains(name); }
    /// "" when nothing is said.
    QString Text(const QString& name) const { return fields_.value(name).toString(); }
    /// What a new record begins with; NULL when nothing is said.
    FieldValue Default() const;
    /// The same without the properties that only make sense for values of the column's kind.
    ColumnDescription ForAnyValue() const;

private:
    QHash<QString, QVariant> fields_;
    ValueKind kind_ = ValueKind::Text;
};

} // namespace quillgrid::editor
