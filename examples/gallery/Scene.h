#pragma once

#include "quillgrid/hosts/qt/QuillgridWidget.h"

#include <QString>

#include <functional>
#include <vector>

namespace quillgrid::example {

/// One form of a picture.
struct SceneForm {
    QString Title; ///< written above it; "" for none
    QSize Size;    ///< logical pixels
    /// Cells and properties, before the form is shown.
    std::function<void(qt::QuillgridWidget&)> Fill;
    /// What a user does with the form then; may be missing.
    std::function<void(qt::QuillgridWidget&)> Act{};
    QString Locale = QStringLiteral("en_GB"); ///< of its numbers and dates
    /// Makes something else in the form's place, at its own size.
    std::function<QWidget*()> Make{};
};

/// One picture: forms side by side.
struct Scene {
    QString Name;    ///< of the picture's file, without its suffix
    QString Section; ///< of the page
    QString Text;    ///< what the picture shows
    int Columns = 1;
    std::vector<SceneForm> Forms{};
    bool Dark = false;
    int Scale = 1;       ///< pixels for each logical pixel
    bool Golden = false; ///< guarded by a test
    bool RightToLeft = false;
};

/// In the order of the page; scenes of one section follow each other.
const std::vector<Scene>& AllScenes();

} // namespace quillgrid::example
