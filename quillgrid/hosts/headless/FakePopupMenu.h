#pragma once

#include "quillgrid/platform/PopupMenu.h"

#include <utility>

namespace quillgrid::headless {

/// A menu that stays open until a test picks an entry or closes it.
class FakePopupMenu : public PopupMenu {
public:
    Point Place{};
    std::vector<PopupEntry> Entries; ///< empty while no menu is open
    int Shown = 0;

    void Show(Point at, const std::vector<PopupEntry>& entries, Choice chosen) override {
        Place = at;
        Entries = entries;
        chosen_ = std::move(chosen);
        ++Shown;
    }
    void Close() override {
        Entries.clear();
        chosen_ = nullptr;
    }
    void Pick(std::size_t position) {
        Entries.clear();
        if (const Choice chosen = std::exchange(chosen_, nullptr)) chosen(position);
    }

private:
    Choice chosen_;
};

} // namespace quillgrid::headless
