#pragma once

#include "quillgrid/locale/Locale.h"

namespace quillgrid {

class Clock;
class PadPlace;
class ScrollBar;
class Site;
class Surface;
class TextMetrics;
class Theme;

/// What the calculator pad asks of its host; all outlive the pad.
struct CalcpadPorts {
    Surface& Window;
    Site& Container;
    const TextMetrics& Metrics;
    Locale UserLocale; ///< how values that are texts are read
};

/// What the list pad asks of its host; all outlive the pad.
struct InputListPorts {
    Surface& Window;
    PadPlace& Place;
    ScrollBar& Bar;
    Site& Container;
    const TextMetrics& Metrics;
    const Clock& Time;
    const Theme& Desktop;
    Locale UserLocale; ///< how a property bag is read
};

} // namespace quillgrid
