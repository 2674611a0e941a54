#pragma once

#include <QString>
#include <QVariant>

namespace quillgrid::editor {

/// One value as the database keeps it.
struct FieldValue {
    enum class Storage { Null, Integer, Real, Text, LongText, Binary };

    Storage Kind = Storage::Null;
    QVariant Raw; ///< what the driver gave; binds back unchanged (not for LongText and Binary)
    QString Text; ///< the value in the database's own writing: "12", "0.1", "2026-11-22"; "" for NULL

    bool IsNull() const { return Kind == Storage::Null; }
    /// Whether the whole value is here.
    bool IsWhole() const { return Kind != Storage::LongText && Kind != Storage::Binary; }

    /// From the pair that SqlDialect::KindOf and ValueOf select.
    static FieldValue FromQuery(const QString& kind, const QVariant& value);

    friend bool operator==(const FieldValue& left, const FieldValue& right) {
        return left.Kind == right.Kind && left.Text == right.Text;
    }
};

} // namespace quillgrid::editor
