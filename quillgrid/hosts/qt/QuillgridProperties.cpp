#include "quillgrid/hosts/qt/QuillgridProperties.h"

#include "quillgrid/hosts/qt/BagValues.h"

namespace quillgrid::qt {

namespace {

using Q = QuillgridProperties;

// Numbers pass between the two as they are.
static_assert(int{Q::FormStyle} == qgstDefault && int{Q::PropertyListStyle} == qgstPropertyList);
static_assert(int{Q::RaisedButtons} == qgap3D && int{Q::FlatButtons} == qgapFlat &&
              int{Q::TrackButtons} == qgapTrack3D);
static_assert(int{Q::LabelsLeft} == qgalLeftJustify && int{Q::LabelsRight} == qgalRightJustify);
static_assert(int{Q::DefaultLanguage} == qglgDefault && int{Q::English} == qglgEnglish &&
              int{Q::French} == qglgFrench && int{Q::Italian} == qglgItalian &&
              int{Q::Spanish} == qglgSpanish && int{Q::German} == qglgGerman);
static_assert(int{Q::NoBorder} == qgbsNone && int{Q::SunkenBorder} == qgbsSunken &&
              int{Q::RaisedLightBorder} == qgbsRaisedLight);
static_assert(int{Q::SunkenInnerBevel} == qgbiSunken && int{Q::GroupFrameInnerBevel} == qgbiGroupFrame);
static_assert(int{Q::SunkenOuterBevel} == qgboSunken && int{Q::PanelLeftOuterBevel} == qgboPanelLeft &&
              int{Q::DialogTopOuterBevel} == qgboDialogTop);
static_assert(int{Q::SystemDay} == qgdwUseSystem && int{Q::Sunday} == qgdwSunday &&
              int{Q::Saturday} == qgdwSaturday);
static_assert(int{Q::SystemWeek} == qgfwUseSystem && int{Q::FirstFullWeek} == qgfwFirstFullWeek);
static_assert(int{Q::GermanHolidays} == qgahdGermany && int{Q::SwissHolidays} == qgahdSwitzerland &&
              int{Q::InternationalHolidays} == qgahdInternational);

/// A new control's caption stands out, which a saved form says by itself.
class NewControlBag : public PropertyBag {
public:
    explicit NewControlBag(PropertyBag& bag) : bag_(bag) {}

    Variant Read(std::string_view key, const Variant& fallback) const override {
        return bag_.Read(key, fallback);
    }
    void Write(std::string_view key, const Variant& value, const Variant& fallback) override {
        const Font* font = key == "CaptionFont" ? FontIn(fallback) : nullptr;
        if (!font) return bag_.Write(key, value, fallback);
        Font bold = *font;
        bold.Bold = true;
        bag_.Write(key, value, ToVariant(bold));
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
