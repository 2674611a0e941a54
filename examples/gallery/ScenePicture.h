#pragma once

#include "examples/gallery/Scene.h"

#include <QImage>

#include <memory>

namespace quillgrid::example {

/// The scene as a window, not shown yet.
std::unique_ptr<QWidget> MakeWindow(const Scene& scene);
/// Its picture at the density of the application, which is that of QT_SCALE_FACTOR.
QImage TakePicture(const Scene& scene);

/// Prepares the surroundings of pictures: no desktop, a scale. Before the application exists.
void PrepareForPictures(int scale);
/// Style, font and hinting, the same everywhere. When the application exists.
void UsePictureLook();
/// Tells apart systems that draw the same form differently: the scale, the version of Qt, and a number made
/// of a text and of a scroll bar that Qt draws without this library.
QString DrawingSystem();

} // namespace quillgrid::example
