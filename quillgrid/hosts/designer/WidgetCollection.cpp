#include "quillgrid/hosts/designer/WidgetCollection.h"

#include "quillgrid/hosts/designer/WidgetIcons.h"
#include "quillgrid/hosts/designer/WidgetPlugin.h"
#include "quillgrid/hosts/qt/CalculatorWidget.h"
#include "quillgrid/hosts/qt/CalendarWidget.h"
#include "quillgrid/hosts/qt/QuillgridWidget.h"

namespace quillgrid::designer {

namespace {

/// A preview, and a program that loads the form, show the form as it works.
bool IsBeingDesigned(const QWidget* parent) {
    while (parent && !parent->inherits("QDesignerFormWindowInterface"))
        parent = parent->parentWidget();
    return parent != nullptr;
}

QWidget* NewForm(QWidget* parent) {
    using qt::QuillgridWidget;
    const auto mode = IsBeingDesigned(parent) ? QuillgridWidget::DesignMode : QuillgridWidget::UserMode;
    return new QuillgridWidget(parent, mode);
}

template <typename Widget>
QWidget* New(QWidget* parent) {
    return new Widget(parent);
}

const DesignerWidget Widgets[] = {
    {"quillgrid::qt::QuillgridWidget",
     "quillgrid/hosts/qt/QuillgridWidget.h",
     "Input Form",
     "Input form: typed, checked cells under each other",
     "A list of labelled cells. The program defines them through grid(); a form designer shows samples.",
     "form",
     {360, 220},
     FormIcon,
     NewForm},
    {"quillgrid::qt::CalendarWidget",
     "quillgrid/hosts/qt/CalendarWidget.h",
     "Holiday Calendar",
     "Calendar: a month with its public holidays",
     "A month to pick a date from, with holidays, week numbers and coloured ranges of dates.",
     "calendar",
     {240, 200},
     CalendarIcon,
     New<qt::CalendarWidget>},
    {"quillgrid::qt::CalculatorWidget",
     "quillgrid/hosts/qt/CalculatorWidget.h",
     "Calculator",
     "Calculator: four operations and keys with formulas",
     "A pocket calculator whose function keys can hold formulas.",
     "calculator",
     {200, 180},
     CalculatorIcon,
     New<qt::CalculatorWidget>},
};

} // namespace

WidgetCollection::WidgetCollection(QObject* parent) : QObject(parent) {
    for (const DesignerWidget& widget : Widgets)
        widgets_.append(new WidgetPlugin(widget, this));
}

} // namespace quillgrid::designer
