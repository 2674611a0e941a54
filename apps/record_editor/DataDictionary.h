#pragma once

#include "apps/record_editor/ColumnRule.h"
#include "apps/record_editor/Outcome.h"

#include <QHash>
#include <QString>
#include <QVariant>

namespace quillgrid::editor {

class Database;

/// What the table "data_dictionary", when there is one, says about the columns of a table, one row a column.
/// Beside "table_name" and "column_name" its columns are named like properties of a cell: Caption, Min, Unit,
/// Alignment, Group ... "Caption_de" and the like stand in for readers of that language. NULL says nothing.
class DataDictionary {
public:
    static Outcome<DataDictionary> Read(const Database& database, const QString& quotedDictionary,
                                        const QString& table, const QString& language);

    /// Gives the rule of a column its description, and the template that this asks for where such a cell can
    /// hold the values of the column. `booleansAsNumbers`: whether a column of whole numbers may hold yes and
    /// no.
    void Describe(ColumnRule& rule, bool booleansAsNumbers) const;

private:
    QHash<QString, QHash<QString, QVariant>> columns_; ///< column, then property, both in lower case
};

} // namespace quillgrid::editor
