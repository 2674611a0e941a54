#pragma once

#include "quillgrid/base/Constants.h"

#include <QLocale>
#include <QString>

#include <optional>

namespace quillgrid::example {

/// What the program was asked to do.
struct PlannerOptions {
    int Year = 0; ///< 0 for this one
    AutoHolidayConstants Country = qgahdGermany;
    std::optional<QLocale> Locale; ///< the user's when missing
    QString Screenshot;            ///< PNG to write instead of showing a window
    QString Pdf;                   ///< the same for a page to print
    double Scale = 1;              ///< of the screenshot
    bool Dark = false;

    /// Nothing when the arguments make no sense.
    static std::optional<PlannerOptions> Parse(int argc, char** argv);
    static const char* Usage();

    bool ShowsWindow() const { return Screenshot.isEmpty() && Pdf.isEmpty(); }
};

} // namespace quillgrid::example
