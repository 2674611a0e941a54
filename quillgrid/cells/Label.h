#pragma once

#include "quillgrid/base/Constants.h"
#include "quillgrid/base/Export.h"
#include "quillgrid/base/Rect.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace quillgrid {

/// The caption of a cell: what was given, what is painted, the access key, and where layout put it.
class QUILLGRID_EXPORT Label {
public:
    Label() = default;
    Label(Label&&) = default;
    Label& operator=(Label&&) = default;

    /// As given, access-key marks ("&") included.
    const std::string& Caption() const { return caption_; }
    /// The character after the first "&" becomes the access key; without one the earlier access key stays.
    void SetCaption(std::string caption);
    /// The caption without any "&".
    const std::string& DisplayCaption() const { return display_ ? *display_ : caption_; }
    /// Code point of the lower-cased access character, 0 when there never was one.
    std::int32_t AccessKey() const { return accessKey_; }

    /// Pixels as seen; kept with the scroll offset added.
    void Move(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height);
    std::int32_t Left() const { return Kept().Area.Left; }
    /// Measured from the first row, that is with the scroll offset of `Move` added.
    std::int32_t Top() const { return Kept().Area.Top; }
    std::int32_t Width() const { return Kept().Area.Width(); }
    std::int32_t Height() const { return Kept().Area.Height(); }
    /// Where the label is seen: with the present scroll offset taken off again.
    Rect SeenAt() const;

    std::int32_t ScrollOffset() const { return scrollOffset_; }
    void SetScrollOffset(std::int32_t offset) { scrollOffset_ = offset; }
    AlignmentConstants Alignment() const { return alignment_; }
    void SetAlignment(AlignmentConstants alignment) { alignment_ = alignment; }
    /// The width of the display caption as it was last measured; nothing after another caption was set or
    /// when it was measured in another round.
    std::optional<std::int32_t> MeasuredWidth(std::uint32_t round) const {
        return round_ == round ? std::optional(width_) : std::nullopt;
    }
    void SetMeasuredWidth(std::int32_t width, std::uint32_t round) {
        width_ = width;
        round_ = round;
    }
    /// Three values that layout keeps here.
    std::int32_t LayoutValue(std::size_t which) const { return which < 3 ? Kept().Values[which] : 0; }
    void SetLayoutValue(std::size_t which, std::int32_t value) {
        if (which < 3) Writable().Values[which] = value;
    }

private:
    /// What a layout may keep here and most leave alone.
    struct Place {
        Rect Area;
        std::array<std::int32_t, 3> Values{};
    };

    const Place& Kept() const;
    Place& Writable();

    // What is read of all labels whenever a form is laid out stands together.
    std::uint32_t round_ = 0; ///< none
    std::int32_t accessKey_ = 0;
    std::int32_t width_ = 0;
    std::unique_ptr<std::string> display_; ///< only where it differs from the caption
    std::string caption_;
    std::int32_t scrollOffset_ = 0;
    AlignmentConstants alignment_ = qgalLeftJustify;
    std::unique_ptr<Place> place_; ///< none while all of it is 0
};

} // namespace quillgrid
