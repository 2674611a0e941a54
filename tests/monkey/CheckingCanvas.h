#pragma once

#include "quillgrid/platform/Canvas.h"

#include <string>

namespace quillgrid::monkey {

/// Draws nothing and complains when a coordinate or a text cannot be right.
class CheckingCanvas : public Canvas {
public:
    /// Everything has to stand near the surface.
    explicit CheckingCanvas(Size surface) : surface_(surface) {}

    const std::string& Complaint() const { return complaint_; }
    std::size_t Calls() const { return calls_; }

    void Fill(const Rect& area, Colour) override { Check(area); }
    void Line(Point from, Point to, Colour) override { Check({from.X, from.Y, to.X, to.Y}); }
    void Edge(const Rect& area, EdgeKind) override { Check(area); }
    void PushButton(const Rect& area, ButtonLook) override { Check(area); }
    void DrawGlyph(const Rect& area, Glyph glyph, ButtonLook) override;
    void Text(const Rect& area, std::string_view text, const TextStyle& style) override;
    void Image(const Rect& area, const Picture&) override { Check(area); }
    void PlacePicture(const Picture&, const PicturePlacement&) override { ++calls_; }
    void SetClip(const Rect& area) override;
    void ClearClip() override;

private:
    void Check(const Rect& area);
    void Complain(const std::string& what, const Rect& area);

    Size surface_;
    std::string complaint_;
    std::size_t calls_ = 0;
    bool clipped_ = false;
};

} // namespace quillgrid::monkey
