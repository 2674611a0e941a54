#pragma once

#include "examples/year_planner/PlannerOptions.h"
#include "examples/year_planner/YearView.h"

class QHBoxLayout;

namespace quillgrid::example {

/// A year with a bar above it: which year, whose holidays, and the way to paper.
class PlannerWindow : public QWidget {
public:
    explicit PlannerWindow(const PlannerOptions& options);
    YearView& view() { return *view_; }

private:
    void AddYear(QHBoxLayout& bar);
    void AddCountries(QHBoxLayout& bar, AutoHolidayConstants chosen);
    void AddPrinting(QHBoxLayout& bar);
    void AskAndPrint();

    YearView* view_;
};

} // namespace quillgrid::example
