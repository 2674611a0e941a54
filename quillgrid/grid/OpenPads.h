#pragma once

#include "quillgrid/base/Event.h"
#include "quillgrid/base/Rect.h"
#include "quillgrid/base/Variant.h"
#include "quillgrid/grid/GridState.h"
#include "quillgrid/grid/PadFactory.h"
#include "quillgrid/platform/PadWindow.h"

#include <array>
#include <memory>
#include <optional>
#include <utility>

namespace quillgrid {

/// Which pad is showing, and for which cell; closes them.
///
/// The pad-open flag of the state and what is seen are two things: the flag is set without a pad while the
/// host drops something down, and it is not set while the calculator shows.
class OpenPads {
public:
    OpenPads(GridState& state, PadFactory* factory) : state_(state), factory_(factory) {}

    /// Whether the host has pads at all.
    bool IsOffered() const { return factory_ != nullptr; }
    /// Only where pads are offered.
    PadFactory& Factory() const { return *factory_; }

    /// Sets the flag for a cell, and remembers what it holds.
    void Begin(const std::shared_ptr<Cell>& cell);
    /// The same, and makes the pad's window ready to be shown below the cell's value.
    PadWindow& Detach(PadKind kind, const std::shared_ptr<Cell>& cell);
    /// What the host is about to drop down for a cell; called off by `Hide` and when the cell goes or is
    /// left.
    void Await(const std::shared_ptr<Cell>& cell, Connection waiting);
    /// The cell goes.
    void Forget(const Cell& cell);
    /// Hides all pads and takes the flag back.
    void Hide();
    /// Hides a pad that no longer stands where its cell is; nothing waits for a cell that was left.
    void Follow();
    /// No window is touched any more.
    void Terminate();

    std::optional<PadKind> Shown() const;
    bool IsShown(PadKind kind) const;
    bool IsOpen() const { return state_.PadOpen || Shown(); }
    bool BelongsTo(const Cell& cell) const { return IsOpen() && cell_.lock().get() == &cell; }

    /// The cell for which the pad opened; null when it is not the current one any more.
    std::shared_ptr<Cell> CurrentCell() const;
    /// What that cell held when the pad opened.
    const Variant& ValueBefore() const { return before_; }

private:
    PadWindow* At(PadKind kind) const { return windows_[static_cast<std::size_t>(kind)]; }

    GridState& state_;
    PadFactory* factory_;
    std::array<PadWindow*, 3> windows_{}; ///< of the pads that were ever shown
    std::weak_ptr<Cell> cell_;
    Rect value_;
    Variant before_;
    std::weak_ptr<Cell> waiter_;
    Connection waiting_;
};

} // namespace quillgrid
