#pragma once

#include "quillgrid/hosts/qt/MaskStyle.h"
#include "quillgrid/platform/EditBox.h"

#include <functional>
#include <memory>

class QWidget;

namespace quillgrid::qt {

class GridLineEdit;

/// The port over the line edit. Qt counts UTF-16 units, the control characters: this is where they meet.
class QtEditBox : public EditBox {
public:
    /// Both must outlive the box. `owner` lends its palette and font and takes the focus while `edit` hides.
    QtEditBox(GridLineEdit& edit, QWidget& owner) : edit_(edit), owner_(owner) {}
    ~QtEditBox() override;

    std::string Text() const override;
    std::size_t LengthAtMost() const override;
    void SetText(std::string_view text) override;
    std::size_t SelectionStart() const override;
    std::size_t SelectionLength() const override;
    void Select(std::size_t start, std::size_t length) override;
    void SetLook(const Look& look) override;
    void Place(const Rect& area) override;
    /// The same place in a widget of another width: a mirrored one counts from its right edge.
    void FollowWidget();
    void Hide() override;
    void Focus() override;

    /// Dresses the box anew after the owner's palette, font or style changed.
    void AmbientChanged();
    /// Called for every wish for the focus; the host decides when it is granted.
    std::function<void()> RequestFocus = [] {};
    /// The control put a text into the box, or hid it.
    std::function<void()> TextSet = [] {};

private:
    void Dress();
    void ApplyMask();

    GridLineEdit& edit_;
    QWidget& owner_;
    Rect area_;
    Look look_;
    std::unique_ptr<MaskStyle> style_;
    std::string styledMask_;
};

} // namespace quillgrid::qt
