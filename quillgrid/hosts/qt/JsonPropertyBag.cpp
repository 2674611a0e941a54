#include "quillgrid/hosts/qt/JsonPropertyBag.h"

#include "quillgrid/hosts/qt/BagValues.h"
#include "quillgrid/hosts/qt/Conversions.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>

namespace quillgrid::qt {

namespace {

QJsonObject ToJson(const Font& font) {
    QJsonObject object;
    FieldsOf(font, [&object](const QString& name, const QVariant& value) {
        object.insert(name, QJsonValue::fromVariant(value));
    });
    return object;
}

Font FontFromJson(const QJsonObject& object, const Font& fallback) {
    const auto field = [&object](const QString& name) {
        const QJsonValue value = object.value(name);
        return value.isObject() || value.isArray() ? QVariant() : value.toVariant();
    };
    return FontFromFields(field, fallback);
}

QJsonValue ToJson(const Variant& value) {
    if (const Font* font = FontIn(value)) return ToJson(*font);
    return QJsonValue::fromVariant(ToStored(value));
}

} // namespace

JsonPropertyBag::JsonPropertyBag(const QJsonObject& values) : values_(values), keys_(values.keys()) {}

FileResult JsonPropertyBag::Load(const QString& path) {
    QFile file(path);
    const QFileInfo about(file);
    if (!about.exists()) return {tr("The file “%1” does not exist.").arg(path)};
    if (!about.isFile()) return {tr("“%1” is not a file.").arg(path)};
    if (!file.open(QIODevice::ReadOnly)) {
        return {tr("The file “%1” cannot be read: %2.").arg(path, file.errorString())};
    }
    const QByteArray text = file.read(LargestFile + 1);
    if (file.error() != QFile::NoError) {
        return {tr("The file “%1” cannot be read: %2.").arg(path, file.errorString())};
    }
    if (text.size() > LargestFile) return {tr("The file “%1” is too large.").arg(path)};
    return FromText(text, path);
}

FileResult JsonPropertyBag::FromText(const QByteArray& json, const QString& name) {
    if (json.trimmed().isEmpty()) return {tr("The file “%1” is empty.").arg(name)};
    QJsonParseError fault;
    const QJsonDocument document = QJsonDocument::fromJson(json, &fault);
    if (fault.error != QJsonParseError::NoError) {
        return {tr("The file “%1” is not JSON: %2 at byte %3.")
                    .arg(name, fault.errorString(), QString::number(fault.offset))};
    }
    if (!document.isObject()) return {tr("The file “%1” does not hold an object.").arg(name)};
    *this = JsonPropertyBag(document.object());
    return {};
}

FileResult JsonPropertyBag::Save(const QString& path) const {
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(ToText());
        if (file.commit()) return {};
    }
    return {tr("The file “%1” cannot be written: %2.").arg(path, file.errorString())};
}

QByteArray JsonPropertyBag::ToText() const {
    return QJsonDocument(values_).toJson();
}

Variant JsonPropertyBag::Read(std::string_view key, const Variant& fallback) const {
    const QJsonValue kept = values_.value(keys_.Of(ToQString(key)));
    const Font* font = FontIn(fallback);
    if (font && kept.isObject()) return ToVariant(FontFromJson(kept.toObject(), *font));
    if (font || kept.isObject() || kept.isArray()) return fallback;
    return FromStored(kept.toVariant(), fallback);
}

void JsonPropertyBag::Write(std::string_view key, const Variant& value, const Variant& fallback) {
    const QString name = ToQString(key);
    values_.remove(keys_.Of(name));
    const QJsonValue kept = ToJson(value);
    if (kept.isNull() || MeansTheSame(value, fallback)) return;
    values_.insert(name, kept);
    keys_.Add(name);
}

} // namespace quillgrid::qt
