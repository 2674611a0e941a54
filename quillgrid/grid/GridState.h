#pragma once

#include "quillgrid/cells/Cell.h"
#include "quillgrid/cells/SortedCells.h"
#include "quillgrid/grid/EffectiveColours.h"
#include "quillgrid/grid/GridLayout.h"
#include "quillgrid/grid/GridSettings.h"
#include "quillgrid/grid/TabPolicy.h"
#include "quillgrid/platform/Glyph.h"

#include <cstdint>
#include <memory>
#include <string>

namespace quillgrid {

/// A part of the control that answers the mouse with its look.
struct MousePart {
    enum class Kind : std::uint8_t { None, CloseBox, MenuBox, CellButton };

    Kind Place = Kind::None;
    std::int32_t Row = 0; ///< of a cell button

    friend bool operator==(const MousePart&, const MousePart&) = default;
};

/// What the collaborators of the control share: plain values, and questions about them. After every raised
/// event whoever works on a cell asks again whether it is still there.
struct GridState {
    GridSettings Settings;
    SortedCells Rows;
    std::shared_ptr<Cell> Current;
    std::weak_ptr<const void> Self; ///< the control as a whole, to be held by what it calls back from outside
    Cell* Working = nullptr;        ///< the cell whose input is being converted stands in for the current one
    std::int32_t CurrentRow = 0;
    std::int32_t FirstVisible = 1;
    GridLayout Layout;
    Size RecordedSize; ///< of the surface, as of the last Resize
    EffectiveColours Colours;
    MousePart Hot;     ///< under the pointer
    MousePart Pressed; ///< held down
    std::string CurrentGroup;
    TabPolicy Tab = TabPolicy::LeaveAtEnds;
    bool UserMode = true;
    bool Silent = false;
    bool ResortNeeded = true;
    bool Ready = false; ///< start-up has finished
    bool RefreshBusy = false;
    bool CommitBusy = false;
    bool LeavingFocus =
        false;             ///< the focus is just going: what the commit changes still counts as the user's
    bool Dropping = false; ///< something is dropped on a cell: that counts as the user's too
    bool ResizeBusy = false;
    bool PadOpen = false;    ///< a pad shows, or the host has dropped something down
    bool Left = false;       ///< the focus has gone: the edit box stays hidden until it is back
    bool CalledBack = false; ///< since the focus has begun to go, a handler has sent the user back
    bool Terminated = false; ///< the control is gone; only the calls under way still see this state

    std::int32_t LastVisible() const;
    bool IsInView(std::int32_t row) const { return row >= FirstVisible && row <= LastVisible(); }
    /// The row limited to what a scroll position may be.
    std::int32_t LimitedFirstVisible(std::int32_t row) const;
    std::int32_t RowCount() const { return Rows.Count(); }
    /// The cell of a row (1-based), null outside.
    std::shared_ptr<Cell> RowCell(std::int32_t row) const;
    /// The row of a cell, 0 when it is not shown.
    std::int32_t RowOf(const Cell& cell) const;
    /// Where the row is seen; empty when it is out of view.
    Rect RowArea(std::int32_t row) const;
    Rect ValueArea(std::int32_t row) const;
    ButtonLook LookOf(const MousePart& part) const {
        return part == Pressed ? ButtonLook::Pressed : part == Hot ? ButtonLook::Hot : ButtonLook::Normal;
    }
    bool IsCurrent(const Cell& cell) const { return !Terminated && Current.get() == &cell; }
};

/// Sets a flag for as long as it lives, exceptions included.
class FlagGuard {
public:
    explicit FlagGuard(bool& flag, bool value = true) : FlagGuard(flag, value, flag) {}
    FlagGuard(bool& flag, bool value, bool afterwards) : flag_(flag), afterwards_(afterwards) {
        flag_ = value;
    }
    ~FlagGuard() { flag_ = afterwards_; }
    FlagGuard(const FlagGuard&) = delete;
    FlagGuard& operator=(const FlagGuard&) = delete;

private:
    bool& flag_;
    bool afterwards_;
};

} // namespace quillgrid
