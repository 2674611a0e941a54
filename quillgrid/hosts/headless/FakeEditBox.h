#pragma once

#include "quillgrid/hosts/headless/FakeSurface.h"
#include "quillgrid/platform/EditBox.h"

#include <string>
#include <vector>

namespace quillgrid::headless {

/// An edit box with a text, a selection and no looks: typing replaces the selection, as everywhere.
class FakeEditBox : public EditBox {
public:
    explicit FakeEditBox(FocusPlace& focus) : focus_(focus) {}

    bool Visible = false;
    Rect Area;
    Look CurrentLook;
    std::vector<Colour> Inks;           ///< every text colour that was set, in order
    std::vector<std::string> ReadByAll; ///< every text that stood there without a mask

    std::string Text() const override { return text_; }
    void SetText(std::string_view text) override;
    std::size_t SelectionStart() const override { return start_; }
    std::size_t SelectionLength() const override { return length_; }
    void Select(std::size_t start, std::size_t length) override;
    void SetLook(const Look& look) override;
    void Place(const Rect& area) override;
    void Hide() override;
    void Focus() override { focus_ = FocusPlace::EditBox; }

    /// What a key does that the control let through.
    void Insert(char32_t character);
    void Backspace();

private:
    void NoteReadable();
    /// Byte position of a character.
    std::size_t Offset(std::size_t character) const;
    void Replace(std::size_t start, std::size_t length, std::string_view with);

    FocusPlace& focus_;
    std::string text_;
    std::size_t start_ = 0;
    std::size_t length_ = 0;
};

} // namespace quillgrid::headless
