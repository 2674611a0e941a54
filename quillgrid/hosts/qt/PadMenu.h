#pragma once

#include "quillgrid/platform/PopupMenu.h"

#include <QMenu>
#include <QPointer>

namespace quillgrid::qt {

/// A menu over a pad.
class PadMenu : public PopupMenu {
public:
    explicit PadMenu(QWidget& pad) : pad_(pad) {}

    void Show(Point at, const std::vector<PopupEntry>& entries, Choice chosen) override;
    void Close() override;

private:
    QWidget& pad_;
    QPointer<QMenu> menu_;
};

} // namespace quillgrid::qt
