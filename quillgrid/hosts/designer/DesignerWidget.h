#pragma once

#include <QIcon>
#include <QString>
#include <QWidget>

namespace quillgrid::designer {

/// What a form designer knows of one widget.
struct DesignerWidget {
    const char* ClassName;
    const char* Header; ///< as programs include it
    const char* DisplayName;
    const char* ToolTip;
    const char* Description;
    const char* ObjectName; ///< of the first one in a form
    QSize Size;             ///< of one that was just dropped, pixels
    QIcon (*Icon)();
    QWidget* (*Create)(QWidget* parent);
};

} // namespace quillgrid::designer
