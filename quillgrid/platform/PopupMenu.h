#pragma once

#include "quillgrid/base/Rect.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace quillgrid {

struct PopupEntry {
    std::string Text; ///< shown as it is; "&" marks no access key
    bool Checked = false;

    friend bool operator==(const PopupEntry&, const PopupEntry&) = default;
};

/// A menu that opens beside the mouse and does not wait for its closing.
class PopupMenu {
public:
    /// The position of the entry, from 0.
    using Choice = std::function<void(std::size_t)>;

    virtual ~PopupMenu() = default;

    /// Opens at a point of the surface, in place of a menu that is still open. `chosen` is called once when
    /// the user picks an entry, and never when the user does not.
    virtual void Show(Point at, const std::vector<PopupEntry>& entries, Choice chosen) = 0;
    /// Closes what is open; nothing is chosen.
    virtual void Close() = 0;
};

} // namespace quillgrid
