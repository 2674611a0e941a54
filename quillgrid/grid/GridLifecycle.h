#pragma once

#include "quillgrid/grid/GridCalendar.h"
#include "quillgrid/grid/GridPorts.h"
#include "quillgrid/grid/GridRefresh.h"
#include "quillgrid/grid/GridState.h"
#include "quillgrid/grid/PropertySetter.h"
#include "quillgrid/grid/SampleCells.h"
#include "quillgrid/platform/PropertyBag.h"

namespace quillgrid {

/// Start-up with defaults or with what a form saved, and saving.
class GridLifecycle {
public:
    GridLifecycle(GridState& state, const GridPorts& ports, SampleCells& samples, GridCalendar& dates,
                  GridRefresh& refresher, PropertySetter& setter)
        : state_(state),
          ports_(ports),
          samples_(samples),
          dates_(dates),
          refresher_(refresher),
          setter_(setter) {}

    void InitProperties();
    /// Always completes, whatever the bag holds.
    void ReadProperties(const PropertyBag& bag);
    void WriteProperties(PropertyBag& bag) const;

private:
    void FinishLoad();

    GridState& state_;
    const GridPorts& ports_;
    SampleCells& samples_;
    GridCalendar& dates_;
    GridRefresh& refresher_;
    PropertySetter& setter_;
};

} // namespace quillgrid
