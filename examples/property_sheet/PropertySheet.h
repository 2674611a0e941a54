#pragma once

#include "quillgrid/hosts/qt/QuillgridWidget.h"

#include <string>

namespace quillgrid::example {

struct SheetRow;

/// A form whose cells are the properties of another form. What is typed here is set there at once, and what
/// changes there shows here.
class PropertySheet : public qt::QuillgridWidget {
    Q_OBJECT

public:
    /// The form must live as long as the sheet.
    explicit PropertySheet(qt::QuillgridWidget& form, QWidget* parent = nullptr);

private:
    void addProperty(const std::string& name, const SheetRow& row);
    void apply(Cell& cell);
    void show(const std::string& property);
    Variant valueOf(const std::string& property);

    qt::QuillgridWidget& form_;
};

} // namespace quillgrid::example
