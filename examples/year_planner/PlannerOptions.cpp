#include "examples/year_planner/PlannerOptions.h"

#include "examples/year_planner/YearView.h"

namespace quillgrid::example {

namespace {

std::optional<AutoHolidayConstants> CountryOf(const QString& name) {
    if (name == u"de") return qgahdGermany;
    if (name == u"at") return qgahdAustria;
    if (name == u"ch") return qgahdSwitzerland;
    if (name == u"int") return qgahdInternational;
    return name == u"none" ? std::optional(qgahdNone) : std::nullopt;
}

/// False when the option is unknown or its value does not fit.
bool Take(PlannerOptions& options, const QString& name, const QString& value) {
    bool fits = !value.isEmpty();
    if (name == u"--year") {
        options.Year = value.toInt(&fits);
        fits = fits && options.Year >= YearView::FirstYear && options.Year <= YearView::LastYear;
    } else if (name == u"--country") {
        const auto country = CountryOf(value);
        options.Country = country.value_or(qgahdNone);
        fits = country.has_value();
    } else if (name == u"--locale") {
        options.Locale = QLocale(value);
        fits = options.Locale->language() != QLocale::C;
    } else if (name == u"--screenshot") {
        options.Screenshot = value;
    } else if (name == u"--pdf") {
        options.Pdf = value;
    } else if (name == u"--scale") {
        options.Scale = value.toDouble(&fits);
        fits = fits && options.Scale >= 0.5 && options.Scale <= 8;
    } else {
        fits = false;
    }
    return fits;
}

} // namespace

std::optional<PlannerOptions> PlannerOptions::Parse(int argc, char** argv) {
    PlannerOptions options;
    for (int i = 1; i < argc; ++i) {
        const QString name = QString::fromLocal8Bit(argv[i]);
        if (name == u"--dark") {
            options.Dark = true;
        } else if (i + 1 == argc || !Take(options, name, QString::fromLocal8Bit(argv[++i]))) {
            return std::nullopt;
        }
    }
    return options;
}

const char* PlannerOptions::Usage() {
    return "usage: year_planner [--year YEAR] [--country de|at|ch|int|none] [--locale NAME] [--dark]\n"
           "                    [--screenshot FILE.png] [--scale N] [--pdf FILE.pdf]\n"
           "\n"
           "Shows the twelve months of a year with the holidays of a country. --screenshot and --pdf write a "
           "file\n"
           "instead of showing a window, the picture at a scale of 0.5 to 8.\n";
}

} // namespace quillgrid::example
