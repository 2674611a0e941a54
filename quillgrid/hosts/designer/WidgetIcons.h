#pragma once

#include <QIcon>

namespace quillgrid::designer {

/// The widgets in small, in colours that can be told from a light and from a dark background.
QIcon FormIcon();
QIcon CalendarIcon();
QIcon CalculatorIcon();

} // namespace quillgrid::designer
