#pragma once

#include "quillgrid/base/Rect.h"

#include <QAccessible>
#include <QString>

namespace quillgrid::qt {

/// What a pad tells about one of its parts.
struct PadPart {
    QAccessible::Role Role = QAccessible::NoRole; ///< NoRole: there is no such part
    QString Name{};
    QString Description{};
    QString Key{}; ///< the key that does the same
    QAccessible::State State{};
    Rect Area{}; ///< on the pad; empty while it is out of view
    bool Presses = false;
    bool TakesFocus = false; ///< the keys can go to it
};

} // namespace quillgrid::qt
