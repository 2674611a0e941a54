#include "quillgrid/grid/GridRefresh.h"

#include "quillgrid/cells/CellAccess.h"
#include "quillgrid/grid/DisplayOrder.h"
#include "quillgrid/grid/GridLayout.h"

#include <algorithm>

namespace quillgrid {

namespace {

constexpr std::int32_t LeastScrollBarWidth = 14;

} // namespace

void GridRefresh::Refresh() {
    if (state_.RefreshBusy || state_.Terminated || !state_.Ready) return;
    const FlagGuard busy(state_.RefreshBusy);
    state_.Silent = false;
    LoadSamples();
    std::shared_ptr<Cell> kept;
    const bool sorts = state_.ResortNeeded;
    if (sorts) {
        // What is being typed belongs to its own cell, wherever that stands afterwards.
        if (commit_.Commit() == CommitResult::Cancelled) kept = state_.Current;
        if (state_.Terminated) return;
        Sort();
    }
    for (const auto& cell : state_.Rows.All())
        CellAccess::RefreshStaleText(*cell);
    SetCurrent(kept);
    LayOut();
    if (sorts && ports_.RowsSorted) ports_.RowsSorted();
}

void GridRefresh::LoadSamples() {
    state_.Settings.CellCount = cells_.Count();
    // A form may have cells and yet no row, all hidden for one: those are nobody's to take away.
    if (!state_.UserMode || cells_.Count() == 0) samples_.Load();
}

void GridRefresh::Sort() {
    state_.Rows.Assign(DisplayOrder(cells_, groups_, state_.Settings, ports_.UserLocale));
    state_.ResortNeeded = false;
}

void GridRefresh::SetCurrent(const std::shared_ptr<Cell>& kept) {
    const std::int32_t keptRow = kept ? state_.RowOf(*kept) : 0;
    std::int32_t row = keptRow > 0 ? keptRow : state_.CurrentRow;
    if (row < 1 || row > state_.RowCount()) row = 1;
    state_.Current = state_.RowCell(row);
    state_.CurrentRow = state_.Current ? row : 0;
}

void GridRefresh::LayOut() {
    keys_.Update();
    state_.Colours = ColoursOf(state_.Settings);
    ports_.Window.SetBackColour(state_.Colours.Background);
    state_.Layout = Layout(state_.Settings, Measure());
    state_.FirstVisible = state_.LimitedFirstVisible(state_.FirstVisible);
    PlaceRows();
    view_.UpdateBar();
    view_.Reveal(state_.CurrentRow);
    seat_.Seat();
    seat_.KeepFocus();
    pads_.Follow();
    repaint_.All();
}

void GridRefresh::PlaceRows() {
    std::int32_t place = 0;
    for (const auto& cell : state_.Rows.All())
        CellAccess::SetArea(*cell, CellArea::Value, state_.Layout.ValueArea(place++));
}

LayoutMeasures GridRefresh::Measure() {
    LayoutMeasures measures;
    measures.Surface = ports_.Window.InnerSize();
    measures.RowCount = state_.RowCount();
    measures.LabelHeight = ports_.Metrics.LineHeight(state_.Settings.Font);
    measures.CaptionHeight = ports_.Metrics.LineHeight(state_.Settings.CaptionFont);
    measures.CellHeight = ports_.Metrics.LineHeight(state_.Settings.CellFont);
    measures.ScrollBarWidth = std::max(ports_.Desktop.ScrollBarWidth(), LeastScrollBarWidth);
    if (state_.Settings.BevelInner == qgbiGroupFrame)
        measures.CaptionWidth =
            ports_.Metrics.TextWidth(state_.Settings.CaptionFont, state_.Settings.Caption);
    if (state_.Settings.LabelWidth <= 0) {
        measures.WidestCaption = widths_.Widest(cells_, state_.Settings.Font, measures.LabelHeight);
    }
    return measures;
}

void GridRefresh::Resize() {
    if (state_.ResizeBusy || state_.Terminated) return;
    pads_.Hide();
    const Size size = ports_.Window.InnerSize();
    if (size == state_.RecordedSize && size == LaidOutSize()) return;
    state_.RecordedSize = size;
    if (!state_.Ready) return;
    EnforceMinimum(size);
    Refresh();
}

/// Another one than the recorded when the control was refreshed before it was told of its size, as a hidden
/// one can be.
Size GridRefresh::LaidOutSize() const {
    return {state_.Layout.Control.Width(), state_.Layout.Control.Height()};
}

/// The container may refuse; then the control makes do with what it has.
void GridRefresh::EnforceMinimum(Size size) {
    const Size least = MinimumSizeOf(state_.Settings);
    if (size.Width >= least.Width && size.Height >= least.Height) return;
    const FlagGuard busy(state_.ResizeBusy);
    ports_.Window.Resize(least);
    if (!state_.Terminated) state_.RecordedSize = ports_.Window.InnerSize();
}

} // namespace quillgrid
