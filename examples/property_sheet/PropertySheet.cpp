#include "examples/property_sheet/PropertySheet.h"

#include "examples/property_sheet/SheetRows.h"

#include <array>

namespace quillgrid::example {
namespace {

constexpr std::array Headings{"Look", "Colours", "Input", "Rows", "Calendar"};

CellTemplateConstants TemplateFor(RowKind kind) {
    switch (kind) {
    case RowKind::YesNo: return qgctboolean;
    case RowKind::Number: return qgctInteger;
    case RowKind::Colour: return qgctSysColor;
    case RowKind::Choice: return qgctlist;
    default: return qgctNone;
    }
}

/// A few, beside the colours of the desktop that the template brings along.
void AddPlainColours(Cell& cell) {
    struct Named {
        Colour Value;
        const char* Name;
    };
    constexpr std::array<Named, 9> plain{{{Rgb(255, 255, 255), "White"},
                                          {Rgb(255, 250, 225), "Ivory"},
                                          {Rgb(255, 222, 173), "Sand"},
                                          {Rgb(226, 240, 217), "Mint"},
                                          {Rgb(214, 230, 245), "Sky"},
                                          {Rgb(255, 0, 0), "Red"},
                                          {Rgb(0, 110, 60), "Green"},
                                          {Rgb(25, 70, 140), "Blue"},
                                          {Rgb(0, 0, 0), "Black"}}};
    for (const Named& colour : plain)
        cell.Listitems().Add({.Text = colour.Name, .ItemData = static_cast<std::int32_t>(colour.Value)});
}

} // namespace

PropertySheet::PropertySheet(qt::QuillgridWidget& form, QWidget* parent)
    : QuillgridWidget(parent), form_(form) {
    grid().SetLanguage(qglgEnglish);
    grid().SetGrouped(true);
    grid().SetShowGroupBox(true);
    grid().SetBevelWidth(0);
    grid().SetBorderWidth(0);
    for (const char* heading : Headings)
        grid().AddGroup({.Key = heading});
    // The sheet gives back only what was written to this one.
    form_.grid().Properties().Item("AutoHolidays")->SetValue(form_.grid().AutoHolidays());
    for (const auto& property : form_.grid().Properties()) {
        if (const SheetRow* row = FindRow(property->Key())) addProperty(property->Key(), *row);
    }
    grid().Update();
    connect(this, &QuillgridWidget::change, this, [this](Cell* cell) { apply(*cell); });
    connect(&form_, &QuillgridWidget::propertyChanged, this, [this](const QString& key) {
        form_.grid().Refresh();
        show(key.toStdString());
    });
}

void PropertySheet::addProperty(const std::string& name, const SheetRow& row) {
    const auto cell =
        grid().Add({.Key = name, .Caption = name, .CellTemplate = TemplateFor(row.Kind), .Group = row.Group});
    if (row.Kind == RowKind::Number) {
        cell->SetMin(row.Least);
        cell->SetMax(row.Most);
        cell->SetAllowEmpty(false);
    }
    if (row.Kind == RowKind::Colour) AddPlainColours(*cell);
    for (const Choice& choice : row.Choices)
        cell->Listitems().Add({.Text = choice.Name, .ItemData = choice.Number});
    cell->SetEnabled(name != "CellCount"); // setting it would put sample cells in the place of the form's
    cell->SetValue(valueOf(name));
}

void PropertySheet::apply(Cell& cell) {
    try {
        const bool isEmpty = cell.Value().IsNull(); // an empty text, that is
        form_.grid().Properties().Item(cell.Key())->SetValue(isEmpty ? Variant("") : cell.Value());
    } catch (const ControlError& error) {
        showMessage(QString::fromStdString(error.Description()));
    }
    show(cell.Key());
}

/// The form may have limited what it was given, so what it holds now is shown, not what was typed.
void PropertySheet::show(const std::string& property) {
    const auto cell = grid().Cells().Find(property);
    if (!cell) return; // the fonts have no place in a property sheet
    cell->SetValue(valueOf(property));
    cell->Refresh();
}

Variant PropertySheet::valueOf(const std::string& property) {
    return form_.grid().Properties().Item(property)->Value();
}

} // namespace quillgrid::example
