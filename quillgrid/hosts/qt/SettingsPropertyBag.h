#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/hosts/qt/KeySpelling.h"
#include "quillgrid/platform/PropertyBag.h"

#include <QString>

class QSettings;

namespace quillgrid::qt {

/// The properties of a form in the settings of an application, one setting each and a font as a group of
/// four. What equals its default is removed. Reading takes anything: what is missing or cannot be the
/// property asked for gives its default.
class QUILLGRID_EXPORT SettingsPropertyBag : public PropertyBag {
public:
    /// The settings must outlive the bag and, while it is used, stand in the group that they stand in now,
    /// below which `group` lies ("Forms/Address").
    SettingsPropertyBag(QSettings& settings, const QString& group);

    Variant Read(std::string_view key, const Variant& fallback) const override;
    void Write(std::string_view key, const Variant& value, const Variant& fallback) override;

private:
    QString PathOf(std::string_view key) const;

    QSettings& settings_;
    QString prefix_; ///< the group with a slash behind it, or nothing
    KeySpelling keys_;
};

} // namespace quillgrid::qt
