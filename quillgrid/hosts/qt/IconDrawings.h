#pragma once

#include <array>
#include <string_view>

class QPainter;
class QPalette;
class QRectF;

namespace quillgrid::qt {

/// A ready-made drawing under the key by which cells name it.
struct IconDrawing {
    std::string_view Key;
    void (*Draw)(QPainter& painter, const QRectF& area, const QPalette& palette);
};

inline constexpr std::size_t IconCount = 16;
extern const std::array<IconDrawing, IconCount> Icons;

} // namespace quillgrid::qt
