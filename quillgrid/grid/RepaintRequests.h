#pragma once

#include "quillgrid/grid/GridState.h"
#include "quillgrid/platform/Surface.h"

namespace quillgrid {

/// Asks the host to paint parts again.
class RepaintRequests {
public:
    RepaintRequests(const GridState& state, Surface& window) : state_(state), window_(window) {}

    /// Nothing when the row is out of view.
    void Row(std::int32_t row) const {
        if (!state_.Terminated && state_.IsInView(row)) window_.Invalidate(state_.RowArea(row));
    }
    void Rows() const {
        if (!state_.Terminated) window_.Invalidate(state_.Layout.Content);
    }
    void Tips() const {
        if (!state_.Terminated && !state_.Layout.Tips.IsEmpty()) window_.Invalidate(state_.Layout.Tips);
    }
    void All() const {
        if (!state_.Terminated) window_.Invalidate(state_.Layout.Control);
    }

private:
    const GridState& state_;
    Surface& window_;
};

} // namespace quillgrid
