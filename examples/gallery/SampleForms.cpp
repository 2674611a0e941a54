#include "examples/gallery/SampleForms.h"

#include "quillgrid/base/DateTime.h"

#include <QApplication>
#include <QMouseEvent>

namespace quillgrid::example {

namespace {

Variant SomeDay() {
    return Variant(DateTime{*DayFromDate(2026, 5, 3), 0});
}
Variant SomeTime() {
    return Variant(DateTime{0, *SecondsFromParts(14, 30, 0)});
}

struct TemplateRow {
    CellTemplateConstants Template;
    const char* Key;
    const char* Caption;
    Variant Value;
};

std::vector<TemplateRow> TemplateRows() {
    return {
        {qgctNone, "none", "Plain text", "Good morning"},
        {qgctInteger, "integer", "Integer", 4711},
        {qgctNumber, "number", "Number", 99.9},
        {qgctCurrency, "currency", "Currency", 1234.5},
        {qgctEuro, "euro", "Euro", 1234.5},
        {qgctPercent, "percent", "Percent", 42.0},
        {qgctSpin, "spin", "Spin", 12},
        {qgctDate, "date", "Date", SomeDay()},
        {qgctTime, "time", "Time", SomeTime()},
        {qgctboolean, "boolean", "Boolean", true},
        {qgctPassword, "password", "Password", "open sesame"},
        {qgctlist, "list", "List", 2},
        {qgctCombo, "combo", "Combo", "Typed or chosen"},
        {qgctColor, "colour", "Colour", 0x008000},
        {qgctSysColor, "syscolour", "System colour", -2147483635.0},
        {qgctSalutation, "salutation", "Salutation", 1},
        {qgctFont, "font", "Font", 1},
        {qgctImagelist, "image", "Image", 8},
        {qgctPrinter, "printer", "Printer", {}},
        {qgctFile, "file", "File", "letters/2026/may.txt"},
        {qgctwww, "web", "Web address", "www.example.org"},
        {qgctEmail, "mail", "E-mail", "jo@example.org"},
        {qgctPhone, "phone", "Phone", "+49 89 1234-56"},
        {qgctPhone2, "phone2", "Second phone", "+49 171 234567"},
        {qgctFax, "fax", "Fax", "+49 89 1234-99"},
    };
}

/// The installed fonts differ; this one is what the picture is written in.
void ChooseKnownFont(Cell& cell) {
    for (std::int32_t i = 1; i <= static_cast<std::int32_t>(cell.Listitems().Count()); ++i) {
        if (cell.Listitems().Item(i)->Text() == "DejaVu Sans") cell.SetListIndex(i);
    }
}

void FillList(Cell& cell) {
    const char* texts[] = {"Low", "Middle", "High"};
    for (std::int16_t i = 0; i < 3; ++i)
        cell.Listitems().Add({.Text = texts[i], .ItemData = Variant(std::int32_t{i + 1})});
    cell.SetValue(Variant(std::int32_t{2}));
}

void SendMouse(qt::QuillgridWidget& form, QEvent::Type type, QPoint position, Qt::MouseButton button) {
    QMouseEvent event(type, position, form.mapToGlobal(position), button,
                      type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&form, &event);
}

} // namespace

Cell& AddCell(Quillgrid& grid, const char* key, const char* caption, Variant value,
              CellTemplateConstants cellTemplate) {
    return *grid.Add(
        {.Key = key, .Caption = caption, .Value = std::move(value), .CellTemplate = cellTemplate});
}

void FillAddress(Quillgrid& grid) {
    AddCell(grid, "salutation", "&Salutation", 1, qgctSalutation);
    AddCell(grid, "name", "&Name", "Gy\u00f6rgyi J\u00e4ger")
        .SetTooltipText("The name as it stands on letters. First names come first, titles are left out; two "
                        "people at one "
                        "address are two records.");
    AddCell(grid, "born", "&Born", SomeDay(), qgctDate);
    AddCell(grid, "member", "&Member", true, qgctboolean);
    AddCell(grid, "paid", "&Paid", 75.0, qgctPercent);
    AddCell(grid, "fee", "&Fee", 120.5, qgctCurrency);
    AddCell(grid, "colour", "&Colour", 0xFF0000, qgctColor);
    AddCell(grid, "phone", "P&hone", "+49 89 1234-56", qgctPhone);
}

void FillTemplates(Quillgrid& grid) {
    for (const TemplateRow& row : TemplateRows()) {
        Cell& cell = AddCell(grid, row.Key, row.Caption, row.Value, row.Template);
        if (row.Template == qgctlist) FillList(cell);
        // A combo keeps the value that it had before.
        if (row.Template == qgctCombo) cell.SetValue(row.Value);
        if (row.Template == qgctFont) ChooseKnownFont(cell);
    }
}

void FillGroups(Quillgrid& grid) {
    AddCell(grid, "number", "Number", 4711, qgctInteger);
    AddCell(grid, "active", "Active", true, qgctboolean);
    grid.AddGroup({.Key = "person", .Caption = "Person"});
    AddCell(grid, "name", "Name", "J\u00e4ger");
    AddCell(grid, "born", "Born", SomeDay(), qgctDate);
    grid.AddGroup({.Key = "money", .Caption = "Money"});
    AddCell(grid, "rebate", "Rebate", 15.0, qgctPercent);
    AddCell(grid, "fee", "Fee", 120.5, qgctCurrency);
    grid.AddGroup({.Key = "contact", .Caption = "Contact"});
    AddCell(grid, "phone", "Phone", "+49 89 1234-56", qgctPhone);
    AddCell(grid, "mail", "E-mail", "jo@example.org", qgctEmail);
}

void FillPlain(Quillgrid& grid, int cells) {
    const char* captions[] = {"Name", "Street", "Town", "Country"};
    const char* values[] = {"J\u00e4ger", "Quellweg 7", "Gy\u0151r", "Hungary"};
    for (int i = 0; i < cells; ++i)
        AddCell(grid, captions[i], captions[i], values[i]);
}

void AsPropertyList(Quillgrid& grid) {
    grid.SetStyle(qgstPropertyList);
    grid.SetBorderStyle(qgbsSunken);
}

void Hover(qt::QuillgridWidget& form, QPoint position) {
    SendMouse(form, QEvent::MouseMove, position, Qt::NoButton);
}

void Press(qt::QuillgridWidget& form, QPoint position) {
    Hover(form, position);
    SendMouse(form, QEvent::MouseButtonPress, position, Qt::LeftButton);
}

QPoint ButtonOf(qt::QuillgridWidget& form, const char* key) {
    const Rect area = form.grid().ValueArea(*form.grid().Cells().Item(key));
    return {area.Right - 8, (area.Top + area.Bottom) / 2};
}

void Enter(qt::QuillgridWidget& form, const char* key) {
    form.activateWindow();
    form.setFocus();
    form.grid().Cells().Item(key)->SetFocus();
    QApplication::processEvents();
}

} // namespace quillgrid::example
