#pragma once

#include <QImage>
#include <QString>

namespace quillgrid::example {

/// To fit a table of 256 colours, which makes a file a third as large, colours that are this near to a more
/// frequent one, of 255 in each of red, green and blue, become that one.
inline constexpr int ColourMerge = 5;

/// Writes a small PNG. False when it cannot be written.
bool WritePicture(const QImage& picture, const QString& path);

} // namespace quillgrid::example
