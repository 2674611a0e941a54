#pragma once

#include <string>

namespace quillgrid {

/// A collapsible heading over cells. What is written here shows at the control's next `Refresh`.
class Group {
public:
    const std::string& Key() const { return key_; }

    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string caption) { caption_ = std::move(caption); }
    bool Expanded() const { return expanded_; }
    void SetExpanded(bool expanded) { expanded_ = expanded; }
    const std::string& TooltipText() const { return tooltipText_; }
    void SetTooltipText(std::string text) { tooltipText_ = std::move(text); }

private:
    friend class Groups;

    std::string key_;
    std::string caption_;
    std::string tooltipText_;
    bool expanded_ = true;
};

} // namespace quillgrid
