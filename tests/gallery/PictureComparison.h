#pragma once

#include "examples/gallery/PictureFile.h"

#include <QImage>
#include <QPoint>

namespace quillgrid::example {

/// A pixel differs when its red, green or blue is further apart than this, of 255: what the files may have
/// merged, and a little for rounding by another processor's instructions. Not one pixel may differ.
inline constexpr int ColourTolerance = ColourMerge + 3;

struct PictureDifference {
    bool SizesDiffer = false;
    qint64 Pixels = 0; ///< that differ
    QPoint First{};    ///< of them, in reading order
    QImage Marked{};   ///< the actual picture, paled, with what differs in red
};

PictureDifference Compare(const QImage& expected, const QImage& actual);

} // namespace quillgrid::example
