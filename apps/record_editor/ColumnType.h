#pragma once

#include "quillgrid/base/Constants.h"

#include <QString>
#include <QStringList>

namespace quillgrid::editor {

/// How the values of a column are read and written.
enum class ValueKind { Text, Integer, Decimal, Real, Date, Time, Boolean, Choice, Unreadable };

/// A declared type, taken apart: "DECIMAL(10,2)" is the word DECIMAL with the sizes 10 and 2.
class ColumnType {
public:
    explicit ColumnType(const QString& declared);

    /// The cell template for the type's words; qgctNone where none of them says anything.
    CellTemplateConstants Template() const { return template_; }
    ValueKind Kind() const { return kind_; }
    /// Whether a word of the type is one that this program knows.
    bool IsKnown() const { return known_; }
    bool IsText() const { return kind_ == ValueKind::Text; }
    /// A number without a currency's look: NUMERIC and DECIMAL.
    bool IsPlainDecimal() const { return plainDecimal_; }
    /// The first of the sizes of a text type, -1 when none was declared.
    int TextLength() const;
    /// Digits after the point, -1 when not declared.
    int Scale() const { return sizes_.isEmpty() ? -1 : sizes_.value(1, 0); }
    int Precision() const { return sizes_.value(0, -1); }

private:
    CellTemplateConstants template_ = qgctNone;
    ValueKind kind_ = ValueKind::Text;
    bool known_ = false;
    bool plainDecimal_ = false;
    QList<int> sizes_;
};

} // namespace quillgrid::editor
