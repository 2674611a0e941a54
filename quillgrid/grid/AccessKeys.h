#pragma once

#include "quillgrid/grid/GridState.h"
#include "quillgrid/grid/RowSelector.h"
#include "quillgrid/platform/Site.h"

#include <string>

namespace quillgrid {

/// The access keys of the rows' captions.
class AccessKeys {
public:
    AccessKeys(const GridState& state, RowSelector& selector, Site& site)
        : state_(state), selector_(selector), site_(site) {}

    /// Tells the container which keys reach the control, when they have changed.
    void Update();
    /// The first row that has the key becomes current. False when none has it, or when the user must stay.
    bool Press(char32_t key);

private:
    const GridState& state_;
    RowSelector& selector_;
    Site& site_;
    std::u32string told_;
};

} // namespace quillgrid
