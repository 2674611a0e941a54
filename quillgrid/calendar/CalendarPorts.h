#pragma once

#include "quillgrid/locale/Locale.h"
#include "quillgrid/platform/Clock.h"
#include "quillgrid/platform/PopupMenu.h"
#include "quillgrid/platform/Site.h"
#include "quillgrid/platform/Surface.h"
#include "quillgrid/platform/TextMetrics.h"
#include "quillgrid/platform/Theme.h"

namespace quillgrid {

/// Everything the calendar pad needs of its host. All of it outlives the pad.
struct CalendarPorts {
    Surface& Window;
    Site& Container;
    const TextMetrics& Metrics;
    Clock& Time;
    const Theme& Desktop;
    PopupMenu& Menu;
    Locale UserLocale;
};

} // namespace quillgrid
