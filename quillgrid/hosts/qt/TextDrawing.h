#pragma once

#include "quillgrid/platform/Canvas.h"

#include <QFont>

#include <string_view>

class QColor;
class QPainter;
class QRect;
class QString;

namespace quillgrid::qt {

class PreparedTexts;

/// Writes the texts of a canvas. Where they stand is the control's affair: sides are absolute here, and a
/// text runs in the direction of its own letters.
class TextDrawing {
public:
    /// As for QtCanvas, to which it belongs.
    TextDrawing(QPainter& painter, const QFont& font, PreparedTexts* texts);

    /// Neither `room` nor `text` is empty.
    void Draw(const QRect& room, std::string_view text, const TextStyle& style, const QColor& ink);

private:
    bool DrawPrepared(const QRect& room, std::string_view text, const TextStyle& style, const QColor& ink);
    void DrawLaidOut(const QRect& room, const QString& text, const TextStyle& style, const QColor& ink);
    QString Shortened(const QString& text, const QFont& font, int width) const;

    QPainter& painter_;
    QFont font_;
    PreparedTexts* texts_;
};

} // namespace quillgrid::qt
