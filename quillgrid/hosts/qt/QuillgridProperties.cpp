#include "quillgrid/hosts/qt/QuillgridProperties.h"

#include "quillgrid/cells/PropertyValue.h"

namespace quillgrid::qt {

namespace {

/// A new control's caption stands out, which a saved form says by itself.
class NewControlBag : public PropertyBag {
public:
    explicit NewControlBag(PropertyBag& bag) : bag_(bag) {}

    Variant Read(std::string_view key, const Variant& fallback) const override {
        return bag_.Read(key, fallback);
    }
    void Write(std::string_view key, const Variant& value, const Variant& fallback) override {
        auto font = key == "CaptionFont" ? FontFrom(fallback) : std::nullopt;
        if (!font) return bag_.Write(key, value, fallback);
        font->Bold = true;
        bag_.Write(key, value, ToPropertyValue(*font));
    }

private:
    PropertyBag& bag_;
};

} // namespace

void QuillgridProperties::WriteControl(PropertyBag& bag) const {
    NewControlBag defaults(bag);
    Control().WriteProperties(defaults);
}

void QuillgridProperties::ShowControl() {
    Control().Refresh();
}

} // namespace quillgrid::qt
