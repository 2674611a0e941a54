#pragma once

#include <QIcon>
#include <QString>
#include <QWidget>

namespace quillgrid::designer {

/// What a form designer knows of one widget.
struct DesignerWidget {
    const char* ClassName = nullptr;
    const char* Header = nullptr; ///< as programs include it
    const char* DisplayName = nullptr;
    const char* ToolTip = nullptr;
    const char* Description = nullptr;
    const char* ObjectName = nullptr; ///< of the first one in a form
    QSize Size;                       ///< of one that was just dropped, pixels
    QIcon (*Icon)() = nullptr;
    QWidget* (*Create)(QWidget* parent) = nullptr;
};

} // namespace quillgrid::designer
