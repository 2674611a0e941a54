#pragma once

#include <QIcon>
#include <QPalette>

namespace quillgrid::editor {

enum class ToolIcon { First, Previous, Next, Last, New, Save, Revert };

/// Drawn in the palette's text colour, so that they show on light and dark desktops alike.
QIcon MakeToolIcon(ToolIcon icon, const QPalette& palette);

} // namespace quillgrid::editor
