#include "quillgrid/hosts/qt/SettingsPropertyBag.h"

#include "quillgrid/hosts/qt/BagValues.h"
#include "quillgrid/hosts/qt/Conversions.h"

#include <QSettings>

namespace quillgrid::qt {

SettingsPropertyBag::SettingsPropertyBag(QSettings& settings, const QString& group) : settings_(settings) {
    if (!group.isEmpty()) settings_.beginGroup(group);
    keys_ = KeySpelling(settings_.childGroups() + settings_.childKeys());
    if (group.isEmpty()) return;
    settings_.endGroup();
    prefix_ = group + u'/';
}

QString SettingsPropertyBag::PathOf(std::string_view key) const {
    return prefix_ + keys_.Of(ToQString(key));
}

Variant SettingsPropertyBag::Read(std::string_view key, const Variant& fallback) const {
    const QString path = PathOf(key);
    const Font* font = FontIn(fallback);
    if (!font) return FromStored(settings_.value(path), fallback);
    return ToVariant(
        FontFromFields([&](const QString& name) { return settings_.value(path + u'/' + name); }, *font));
}

void SettingsPropertyBag::Write(std::string_view key, const Variant& value, const Variant& fallback) {
    settings_.remove(PathOf(key));
    if (MeansTheSame(value, fallback)) return;
    const QString name = ToQString(key);
    const QString path = prefix_ + name;
    if (const Font* font = FontIn(value)) {
        FieldsOf(*font, [&](const QString& field, const QVariant& kept) {
            settings_.setValue(path + u'/' + field, kept);
        });
    } else if (const QVariant kept = ToStored(value); kept.isValid()) {
        settings_.setValue(path, kept);
    } else {
        return;
    }
    keys_.Add(name);
}

} // namespace quillgrid::qt
