#pragma once

#include <QString>

class QFont;
class QPalette;
class QWidget;

namespace quillgrid::qt {

/// What a line edit must say for itself to look as it was told where a style sheet of the program, of a
/// window or of the form has rules for line edits. Empty where there is no style sheet.
QString BoxStyleSheet(const QWidget& form, const QPalette& palette, const QFont& font);

} // namespace quillgrid::qt
