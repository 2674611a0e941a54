#include "quillgrid/grid/GridLifecycle.h"

#include "quillgrid/grid/SettingsStore.h"

namespace quillgrid {

void GridLifecycle::InitProperties() {
    if (state_.Terminated) return;
    samples_.StartAnew();
    state_.Settings = DefaultSettings(ports_.Container.AmbientFont());
    state_.Settings.CaptionFont.Bold = true;
    state_.Settings.Caption = ports_.Container.DisplayName();
    FinishLoad();
}

void GridLifecycle::ReadProperties(const PropertyBag& bag) {
    if (state_.Terminated) return;
    state_.Settings = ReadSettings(bag, ports_.Container, ports_.UserLocale);
    FinishLoad();
}

void GridLifecycle::WriteProperties(PropertyBag& bag) const {
    if (!state_.Terminated) WriteSettings(state_.Settings, bag, ports_.Container.AmbientFont());
}

void GridLifecycle::FinishLoad() {
    samples_.Load();
    setter_.Translate();
    state_.Colours = ColoursOf(state_.Settings);
    ports_.Window.SetBackColour(state_.Colours.Background);
    state_.ResortNeeded = true;
    state_.Ready = true;
    state_.CurrentRow = 0;
    dates_.Start();
    refresher_.Refresh();
}

} // namespace quillgrid
