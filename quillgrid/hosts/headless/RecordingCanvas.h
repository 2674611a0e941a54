#pragma once

#include "quillgrid/platform/Canvas.h"

#include <cstddef>
#include <string>
#include <vector>

namespace quillgrid::headless {

/// Writes down every call, one line each; draws nothing.
class RecordingCanvas : public Canvas {
public:
    void Fill(const Rect& area, Colour colour) override;
    void Line(Point from, Point to, Colour colour) override;
    void Edge(const Rect& area, EdgeKind kind) override;
    void PushButton(const Rect& area, ButtonLook look) override;
    void DrawGlyph(const Rect& area, Glyph glyph, ButtonLook look) override;
    void Text(const Rect& area, std::string_view text, const TextStyle& style) override;
    void Image(const Rect& area, const Picture& picture) override;
    void PlacePicture(const Picture& picture, const PicturePlacement& placement) override;
    void SetClip(const Rect& area) override;
    void ClearClip() override;

    const std::vector<std::string>& Calls() const { return calls_; }
    std::size_t Count() const { return calls_.size(); }
    void Clear() { calls_.clear(); }
    /// The lines that begin with `start`.
    std::vector<std::string> Starting(std::string_view start) const;
    /// The texts that were drawn, in order, without their places.
    const std::vector<std::string>& Texts() const { return texts_; }

private:
    std::vector<std::string> calls_;
    std::vector<std::string> texts_;
};

} // namespace quillgrid::headless
