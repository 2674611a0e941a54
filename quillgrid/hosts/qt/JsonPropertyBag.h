#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/hosts/qt/KeySpelling.h"
#include "quillgrid/platform/PropertyBag.h"

#include <QCoreApplication>
#include <QJsonObject>

namespace quillgrid::qt {

/// What came of reading or writing a file.
struct [[nodiscard]] FileResult {
    QString Error; ///< a sentence that names the file; empty when all went well

    explicit operator bool() const { return Error.isEmpty(); }
};

/// The properties of a form as a JSON object, in memory or in a file: {"Caption": "Address", "Style": 0,
/// "CellFont": {"family": "Serif", "size": 11, "bold": false, "italic": false}}. What equals its default is
/// left out. Reading takes any object: what is missing or cannot be the property asked for gives its default.
class QUILLGRID_EXPORT JsonPropertyBag : public PropertyBag {
    Q_DECLARE_TR_FUNCTIONS(JsonPropertyBag)

public:
    /// Larger files are refused: no form's properties need a thousandth of it.
    static constexpr qint64 LargestFile = 16'777'216;

    JsonPropertyBag() = default;
    explicit JsonPropertyBag(const QJsonObject& values);

    /// Takes the place of what the bag held; after an error it holds what it held before.
    FileResult Load(const QString& path);
    /// Writes the whole file or, after an error, leaves what was there.
    FileResult Save(const QString& path) const;
    /// What Load and Save keep in files: UTF-8, indented.
    FileResult FromText(const QByteArray& json, const QString& name);
    QByteArray ToText() const;

    const QJsonObject& Values() const { return values_; }

    Variant Read(std::string_view key, const Variant& fallback) const override;
    void Write(std::string_view key, const Variant& value, const Variant& fallback) override;

private:
    QJsonObject values_;
    KeySpelling keys_;
};

} // namespace quillgrid::qt
