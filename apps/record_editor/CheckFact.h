#pragma once

#include <QList>
#include <QString>

namespace quillgrid::editor {

/// A constant in SQL.
struct SqlLiteral {
    enum class Type { Number, Text, Boolean };

    Type Kind = Type::Number;
    QString Text; ///< "-12.5", the bare text, "true" or "false"
};

/// One thing that a CHECK says about one column.
struct CheckFact {
    enum class Type { AtLeast, MoreThan, AtMost, LessThan, OneOf, LongestText, IsNull };

    Type Kind = Type::AtLeast;
    QString Column; ///< "" where the check speaks of the value of a domain
    QList<SqlLiteral> Values;
};

} // namespace quillgrid::editor
