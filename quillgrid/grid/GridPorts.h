#pragma once

#include "quillgrid/grid/PadFactory.h"
#include "quillgrid/locale/Locale.h"
#include "quillgrid/platform/Clock.h"
#include "quillgrid/platform/CurrencyConverter.h"
#include "quillgrid/platform/EditBox.h"
#include "quillgrid/platform/ImageSource.h"
#include "quillgrid/platform/ScrollBar.h"
#include "quillgrid/platform/Site.h"
#include "quillgrid/platform/Surface.h"
#include "quillgrid/platform/TextMetrics.h"
#include "quillgrid/platform/Theme.h"

#include <functional>

namespace quillgrid {

/// Everything the control needs of its host. All of it outlives the control.
struct GridPorts {
    Surface& Window;
    EditBox& Editor;
    ScrollBar& Bar;
    Site& Container;
    const TextMetrics& Metrics;
    Clock& Time;
    const Theme& Desktop;
    Locale UserLocale;
    ImageSource* Images = nullptr;
    CurrencyConverter* Currencies = nullptr; ///< null: the euro and what it replaced
    PadFactory* Pads = nullptr;              ///< null: the host is asked by DropDown instead
    /// The rows were put in order anew, other ones perhaps. The control is left as it is then.
    std::function<void()> RowsSorted{};
};

} // namespace quillgrid
