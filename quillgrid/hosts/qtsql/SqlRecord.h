#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/platform/Record.h"

#include <QSqlRecord>

namespace quillgrid::qt {

/// A record of a query or a table as the control reads it: `grid.LoadRecord(SqlRecord(query.record()))`.
/// Names of fields are found in any case, and as "table.field" where the record knows its tables. A NULL of
/// the database is Null; the other values become variants as `VariantFromQt` says.
class QUILLGRID_EXPORT SqlRecord : public Record {
public:
    explicit SqlRecord(const QSqlRecord& record) : record_(record) {}

    std::optional<Variant> Field(std::string_view name) const override;

private:
    QSqlRecord record_;
};

} // namespace quillgrid::qt
