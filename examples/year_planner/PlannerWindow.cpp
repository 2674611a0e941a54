#include "examples/year_planner/PlannerWindow.h"

#include <QComboBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace quillgrid::example {

PlannerWindow::PlannerWindow(const PlannerOptions& options) : view_(new YearView) {
    setWindowTitle(QStringLiteral("Year planner"));
    auto* column = new QVBoxLayout(this);
    auto* bar = new QHBoxLayout;
    bar->setContentsMargins(8, 0, 8, 0);
    column->addLayout(bar);
    column->addWidget(view_, 1);
    if (options.Year != 0) view_->setYear(options.Year);
    AddYear(*bar);
    AddCountries(*bar, options.Country);
    bar->addStretch(1);
    AddPrinting(*bar);
}

void PlannerWindow::AddYear(QHBoxLayout& bar) {
    auto* label = new QLabel(QStringLiteral("&Year"));
    auto* year = new QSpinBox;
    year->setRange(YearView::FirstYear, YearView::LastYear);
    year->setValue(view_->year());
    label->setBuddy(year);
    bar.addWidget(label);
    bar.addWidget(year);
    connect(year, &QSpinBox::valueChanged, view_, &YearView::setYear);
}

void PlannerWindow::AddCountries(QHBoxLayout& bar, AutoHolidayConstants chosen) {
    auto* label = new QLabel(QStringLiteral("&Holidays"));
    auto* countries = new QComboBox;
    for (const auto& [name, preset] : {std::pair{"Germany", qgahdGermany},
                                       {"Austria", qgahdAustria},
                                       {"Switzerland", qgahdSwitzerland},
                                       {"International", qgahdInternational},
                                       {"None", qgahdNone}})
        countries->addItem(QLatin1String(name), static_cast<int>(preset));
    label->setBuddy(countries);
    bar.addWidget(label);
    bar.addWidget(countries);
    connect(countries, &QComboBox::currentIndexChanged, view_, [this, countries] {
        view_->setHolidays(static_cast<AutoHolidayConstants>(countries->currentData().toInt()));
    });
    countries->setCurrentIndex(countries->findData(static_cast<int>(chosen)));
    view_->setHolidays(chosen);
}

void PlannerWindow::AddPrinting(QHBoxLayout& bar) {
    auto* print = new QPushButton(QStringLiteral("&Print to PDF..."));
    bar.addWidget(print);
    connect(print, &QPushButton::clicked, this, &PlannerWindow::AskAndPrint);
}

void PlannerWindow::AskAndPrint() {
    const QString path = QFileDialog::getSaveFileName(this, {}, QStringLiteral("%1.pdf").arg(view_->year()),
                                                      QStringLiteral("PDF (*.pdf)"));
    if (!path.isEmpty() && !view_->printPdf(path))
        QMessageBox::warning(this, windowTitle(), QStringLiteral("%1 cannot be written.").arg(path));
}

} // namespace quillgrid::example
