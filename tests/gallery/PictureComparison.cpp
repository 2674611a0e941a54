#include "tests/gallery/PictureComparison.h"

#include <algorithm>
#include <cstdlib>

namespace quillgrid::example {

namespace {

bool Differ(QRgb left, QRgb right) {
    const int apart = std::max({std::abs(qRed(left) - qRed(right)), std::abs(qGreen(left) - qGreen(right)),
                                std::abs(qBlue(left) - qBlue(right))});
    return apart > ColourTolerance;
}

QRgb Paled(QRgb colour) {
    const int grey = 160 + qGray(colour) / 3;
    return qRgb(grey, grey, grey);
}

} // namespace

PictureDifference Compare(const QImage& expected, const QImage& actual) {
    PictureDifference found;
    found.SizesDiffer = expected.size() != actual.size();
    if (found.SizesDiffer) return found;
    found.Marked = QImage(actual.size(), QImage::Format_RGB32);
    for (int y = 0; y < actual.height(); ++y) {
        for (int x = 0; x < actual.width(); ++x) {
            const bool differ = Differ(expected.pixel(x, y), actual.pixel(x, y));
            if (differ && found.Pixels++ == 0) found.First = {x, y};
            found.Marked.setPixel(x, y, differ ? qRgb(255, 0, 0) : Paled(actual.pixel(x, y)));
        }
    }
    return found;
}

} // namespace quillgrid::example
