#pragma once

#include "quillgrid/grid/GridState.h"
#include "quillgrid/platform/EditBox.h"
#include "quillgrid/platform/ImageSource.h"
#include "quillgrid/platform/Surface.h"

#include <memory>
#include <string>

namespace quillgrid {

/// Keeps the edit box over the value of the current cell and knows whether its text was typed. Re-seating the
/// same cell keeps a typed text; only another cell, another value or Refill put a new one in.
class EditSeat {
public:
    EditSeat(const GridState& state, EditBox& box, Surface& window, const ImageSource* images)
        : state_(state), box_(box), window_(window), images_(images) {}

    /// Places, dresses and fills the box for the current cell; hides it for headings, unseen data, rows out
    /// of view and while the focus is elsewhere, unless something is dropped.
    void Seat();
    /// The box shows the cell's text again, fully selected; what was typed is dropped.
    void Refill();
    void Hide();
    /// Gives the focus to the box, or to the surface while the box is hidden.
    void TakeFocus();
    /// The same, only when the control has the focus already.
    void KeepFocus();
    /// The text in the colour of errors until taken back.
    void ShowError(bool error);

    bool IsSeated() const { return shown_; }
    bool IsSeatedOn(const Cell& cell) const { return shown_ && cell_.lock().get() == &cell; }
    /// Whether the box holds another text than it was filled with.
    bool IsEdited() const;
    std::string Text() const;
    EditBox& Box() { return box_; }

private:
    EditBox::Look LookFor(const Cell& cell, bool error) const;
    Rect Area(const Cell& cell) const;
    bool MayShow() const;
    void Empty();
    void Fill(const std::shared_ptr<Cell>& cell);

    const GridState& state_;
    EditBox& box_;
    Surface& window_;
    const ImageSource* images_;
    std::weak_ptr<Cell> cell_;
    std::string filled_;
    bool shown_ = false;
};

} // namespace quillgrid
