#pragma once

#include "quillgrid/cells/Cells.h"
#include "quillgrid/grid/GridCalendar.h"
#include "quillgrid/grid/GridPorts.h"
#include "quillgrid/grid/GridProperty.h"
#include "quillgrid/grid/GridRefresh.h"
#include "quillgrid/grid/GridState.h"
#include "quillgrid/grid/RowSelector.h"
#include "quillgrid/grid/SampleCells.h"
#include "quillgrid/grid/Viewport.h"

namespace quillgrid {

/// Sets and reads properties of the control as code of the host sees them: limits, stores, reports to the
/// container and lets follow what the property table says. The caller holds the control: the container may
/// destroy it when it hears of the change.
class PropertySetter {
public:
    PropertySetter(GridState& state, const GridPorts& ports, const Cells& cells, SampleCells& samples,
                   GridCalendar& dates, GridRefresh& refresher, RowSelector& selector, Viewport& view)
        : state_(state),
          ports_(ports),
          cells_(cells),
          samples_(samples),
          dates_(dates),
          refresher_(refresher),
          selector_(selector),
          view_(view) {}

    /// False when the value cannot be converted. Error 20099 for a style that does not exist.
    bool Set(const GridProperty& property, const Variant& value);
    Variant Get(const GridProperty& property) const;
    /// What the ambient of the control decides has changed: "ScaleUnits" is the one that matters.
    void AmbientChanged(std::string_view name);
    /// The lists that speak a language, in the present one.
    void Translate();

private:
    void FollowBefore(const GridProperty& property);
    void FollowAfter(const GridProperty& property);
    void Report(std::string_view key);
    void Rebuild();
    void ShowFirstRow();

    GridState& state_;
    const GridPorts& ports_;
    const Cells& cells_;
    SampleCells& samples_;
    GridCalendar& dates_;
    GridRefresh& refresher_;
    RowSelector& selector_;
    Viewport& view_;
};

} // namespace quillgrid
