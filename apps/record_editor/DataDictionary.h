#pragma once

#include "apps/record_editor/ColumnRule.h"
#include "apps/record_editor/Outcome.h"

#include <QHash>
#include <QList>
#include <QString>

namespace quillgrid::editor {

class Database;

/// What the table "data_dictionary", when there is one, says about the columns of a table. Beside
/// "table_name" and "column_name" its columns are named like properties of a cell: Caption, TooltipText,
/// Template, Min, Max, MaxLength, AllowEmpty, Charlist, Format, Unit, Locked, Visible. "Caption_de" and
/// "TooltipText_de" stand in for readers of that language. NULL says nothing.
class DataDictionary {
public:
    static Outcome<DataDictionary> Read(const Database& database, const QString& quotedDictionary,
                                        const QString& table, const QString& language);

    /// Overrides what the declaration of the column gave.
    void Apply(ColumnRule& rule) const;

private:
    QHash<QString, QHash<QString, QString>> columns_; ///< column, then property, both in lower case
};

} // namespace quillgrid::editor
