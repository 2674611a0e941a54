#pragma once

#include <memory>

namespace quillgrid {

class CellOwner;

/// The way from cells to their control, shared by all cells of a control and cut in one stroke when it goes:
/// a cell that the host still holds then finds null instead of a dead control.
struct OwnerLink {
    CellOwner* Owner = nullptr;
};
using OwnerLinkReference = std::shared_ptr<OwnerLink>;

} // namespace quillgrid
