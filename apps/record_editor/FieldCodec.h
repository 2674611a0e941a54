#pragma once

#include "apps/record_editor/ColumnType.h"
#include "apps/record_editor/FieldValue.h"

#include "quillgrid/base/Variant.h"
#include "quillgrid/locale/Locale.h"

#include <QVariant>

#include <optional>

namespace quillgrid::editor {

/// The way between the database's values and those of a cell.
class FieldCodec {
public:
    explicit FieldCodec(bool postgres) : postgres_(postgres) {}

    /// The cell's value for a database value, or nothing when a cell of this kind cannot hold exactly this
    /// value. NULL gives Null.
    static std::optional<Variant> Decode(const FieldValue& value, ValueKind kind);
    /// What to bind for a cell's value: kept in the storage that the loaded value has, else in the one usual
    /// for the kind (SQLite: money, dates and times as text, booleans as 0 and 1).
    QVariant Encode(const Variant& value, ValueKind kind, const FieldValue& loaded) const;
    /// What to bind for an entry of a list.
    QVariant EncodeChoice(const FieldValue& choice) const {
        return postgres_ ? QVariant(choice.Text) : choice.Raw;
    }
    /// What to bind for text that was typed where the cell's own rule could not hold the value: a number may
    /// have any size, a date may be written as the database or as the user writes it. Nothing when the text
    /// is no value of the kind.
    std::optional<QVariant> EncodeTyped(const QString& text, ValueKind kind, const Locale& locale) const;

    static QVariant SqlNull();
    /// Line breaks and other characters that a one-line editor would lose.
    static bool HasControlCharacters(const QString& text);

private:
    QVariant EncodeDecimal(const Variant& value, const FieldValue& loaded) const;
    QVariant EncodeReal(const Variant& value, const FieldValue& loaded) const;
    QVariant EncodeNumber(qlonglong number, const FieldValue& loaded) const;

    bool postgres_;
};

} // namespace quillgrid::editor
