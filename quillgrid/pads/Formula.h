#pragma once

#include "quillgrid/base/Variant.h"

#include <cstdint>
#include <string>
#include <utility>

namespace quillgrid {

/// What a formula key of the calculator applies to the value shown.
class Formula {
public:
    const std::string& Key() const { return key_; }
    /// The position at which it was added.
    std::int32_t Index() const { return index_; }
    /// Digits, a point or comma, + - * / =, X for the value shown, "(" which says nothing and ")" which is
    /// "=". Computed from left to right.
    const std::string& Text() const { return text_; }
    void SetText(std::string text) { text_ = std::move(text); }
    /// Key or position of an image in the host's image list.
    const Variant& ListImage() const { return listImage_; }
    void SetListImage(Variant image) { listImage_ = std::move(image); }
    const std::string& TooltipText() const { return tooltipText_; }
    void SetTooltipText(std::string text) { tooltipText_ = std::move(text); }

private:
    friend class Formulas;

    std::string key_;
    std::string text_;
    std::string tooltipText_;
    Variant listImage_;
    std::int32_t index_ = 0;
};

} // namespace quillgrid
