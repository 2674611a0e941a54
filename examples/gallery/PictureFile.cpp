#include "examples/gallery/PictureFile.h"

#include <QHash>
#include <QImageWriter>

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <utility>
#include <vector>

namespace quillgrid::example {

namespace {

constexpr std::size_t MostColours = 256;

bool AreNear(QRgb left, QRgb right, int apart) {
    return std::abs(qRed(left) - qRed(right)) <= apart && std::abs(qGreen(left) - qGreen(right)) <= apart &&
           std::abs(qBlue(left) - qBlue(right)) <= apart;
}

/// The picture's colours, the most frequent first.
std::vector<QRgb> ColoursOf(const QImage& picture) {
    QHash<QRgb, qint64> counts;
    for (int y = 0; y < picture.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = 0; x < picture.width(); ++x)
            ++counts[line[x]];
    }
    std::vector<std::pair<qint64, QRgb>> order;
    for (auto it = counts.cbegin(); it != counts.cend(); ++it)
        order.emplace_back(-it.value(), it.key());
    std::sort(order.begin(), order.end());
    std::vector<QRgb> colours;
    for (const auto& [count, colour] : order)
        colours.push_back(colour);
    return colours;
}

struct ColourTable {
    QList<QRgb> Colours;
    QHash<QRgb, uchar> Places;
};

/// Each colour takes the place of a more frequent one that is near; nothing when the table overflows.
std::optional<ColourTable> MakeTable(const std::vector<QRgb>& colours, int apart) {
    ColourTable table;
    for (const QRgb colour : colours) {
        const auto near = std::find_if(table.Colours.cbegin(), table.Colours.cend(),
                                       [&](QRgb other) { return AreNear(colour, other, apart); });
        const auto place = static_cast<std::size_t>(near - table.Colours.cbegin());
        if (place == MostColours) return std::nullopt;
        if (near == table.Colours.cend()) table.Colours.append(colour);
        table.Places.insert(colour, static_cast<uchar>(place));
    }
    return table;
}

QImage Indexed(const QImage& picture, const ColourTable& table) {
    QImage indexed(picture.size(), QImage::Format_Indexed8);
    indexed.setColorTable(table.Colours);
    for (int y = 0; y < picture.height(); ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        uchar* to = indexed.scanLine(y);
        for (int x = 0; x < picture.width(); ++x)
            to[x] = table.Places.value(from[x]);
    }
    return indexed;
}

QImage Small(const QImage& picture) {
    const std::vector<QRgb> colours = ColoursOf(picture);
    for (int apart = 0; apart <= ColourMerge; ++apart) {
        if (const auto table = MakeTable(colours, apart)) return Indexed(picture, *table);
    }
    return picture;
}

} // namespace

bool WritePicture(const QImage& picture, const QString& path) {
    QImageWriter writer(path, "png");
    writer.setCompression(100);
    return writer.write(Small(picture.convertToFormat(QImage::Format_RGB32)));
}

} // namespace quillgrid::example
