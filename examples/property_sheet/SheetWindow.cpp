#include "examples/property_sheet/SheetWindow.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillgrid::example {
namespace {

constexpr int Width = 820;
constexpr int Height = 620;

QLabel* Heading(const QString& text) {
    auto* label = new QLabel(text);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

} // namespace

SheetWindow::SheetWindow() : form_(new qt::QuillgridWidget) {
    setWindowTitle(tr("Property sheet"));
    fillForm();
    auto* columns = new QHBoxLayout(this);
    columns->setSpacing(16);
    auto* left = new QVBoxLayout;
    auto* right = new QVBoxLayout;
    columns->addLayout(left, 4);
    columns->addLayout(right, 5);

    left->addWidget(Heading(tr("A form")));
    left->addWidget(form_, 1);
    auto* buttons = new QHBoxLayout;
    left->addLayout(buttons);
    auto* note =
        new QLabel(tr("The buttons set properties of the form. The sheet beside it hears of it and follows; "
                      "what is chosen or typed there changes the form at once."));
    note->setWordWrap(true);
    left->addWidget(note);

    right->addWidget(Heading(tr("Its properties, in a second form")));
    sheet_ = new PropertySheet(*form_);
    right->addWidget(sheet_, 1);

    addButton(*buttons, tr("&Style"), [](Quillgrid& form) {
        form.SetStyle(form.Style() == qgstDefault ? qgstPropertyList : qgstDefault);
    });
    addButton(*buttons, tr("&Labels"), [](Quillgrid& form) {
        form.SetAlignment(form.Alignment() == qgalLeftJustify ? qgalRightJustify : qgalLeftJustify);
    });
    addButton(*buttons, tr("&Border"), [](Quillgrid& form) { form.SetBorderWidth(form.BorderWidth() + 4); });
    addButton(*buttons, tr("&Order"), [](Quillgrid& form) { form.SetSorted(!form.Sorted()); });
    resize(Width, Height);
}

void SheetWindow::fillForm() {
    Quillgrid& form = form_->grid();
    form.SetLanguage(qglgEnglish);
    form.Add({.Key = "name", .Caption = "Name", .Value = "Ada Lovelace"});
    form.Add({.Key = "born",
              .Caption = "Born",
              .Value = DateTime{*DayFromParts(1815, 12, 10)},
              .CellTemplate = qgctDate});
    form.Add({.Key = "fee", .Caption = "Fee", .Value = 1250, .CellTemplate = qgctCurrency});
    form.Add({.Key = "letters", .Caption = "Newsletter", .Value = true, .CellTemplate = qgctboolean});
    form.Add({.Key = "done", .Caption = "Progress", .Value = 65, .CellTemplate = qgctPercent});
    form.Add({.Key = "word", .Caption = "Password", .Value = "engine", .CellTemplate = qgctPassword});
    form.Add({.Key = "mail", .Caption = "E-mail", .Value = "ada@example.org", .CellTemplate = qgctEmail});
    form.SetCaption("Member");
    form.Update();
}

void SheetWindow::addButton(QBoxLayout& row, const QString& text,
                            const std::function<void(Quillgrid&)>& act) {
    auto* button = new QPushButton(text);
    row.addWidget(button);
    connect(button, &QPushButton::clicked, this, [this, act] { act(form_->grid()); });
}

void SheetWindow::changeSomeProperties() {
    Properties& properties = form_->grid().Properties();
    properties.Item("ShowCaption")->SetValue(true);
    properties.Item("BorderStyle")->SetValue(qgbsRaised);
    properties.Item("BorderWidth")->SetValue(10);
    properties.Item("BevelOuter")->SetValue(qgboFlat);
    sheet_->setFocus();
    sheet_->grid().Cells().Item("BorderWidth")->SetFocus();
}

} // namespace quillgrid::example
