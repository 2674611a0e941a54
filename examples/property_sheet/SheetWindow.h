#pragma once

#include "examples/property_sheet/PropertySheet.h"

#include <QWidget>

#include <functional>

class QBoxLayout;

namespace quillgrid::example {

/// A form, some buttons that change it, and its property sheet beside it.
class SheetWindow : public QWidget {
public:
    SheetWindow();

    /// For a picture that shows what the sheet can do.
    void changeSomeProperties();

private:
    void fillForm();
    void addButton(QBoxLayout& row, const QString& text, const std::function<void(Quillgrid&)>& act);

    qt::QuillgridWidget* form_;
    PropertySheet* sheet_ = nullptr;
};

} // namespace quillgrid::example
