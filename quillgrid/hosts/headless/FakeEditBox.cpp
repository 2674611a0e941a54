#include "quillgrid/hosts/headless/FakeEditBox.h"

#include "quillgrid/base/Text.h"

#include <algorithm>

namespace quillgrid::headless {

void FakeEditBox::SetText(std::string_view text) {
    text_ = text;
    start_ = CharacterCount(text_);
    length_ = 0;
    NoteReadable();
}

void FakeEditBox::Select(std::size_t start, std::size_t length) {
    const std::size_t count = CharacterCount(text_);
    start_ = std::min(start, count);
    length_ = std::min(length, count - start_);
}

void FakeEditBox::NoteReadable() {
    if (CurrentLook.Mask.empty()) ReadByAll.push_back(text_);
}

void FakeEditBox::SetLook(const Look& look) {
    CurrentLook = look;
    NoteReadable();
    if (Inks.empty() || Inks.back() != look.Ink) Inks.push_back(look.Ink);
}

void FakeEditBox::Place(const Rect& area) {
    Area = area;
    Visible = true;
}

void FakeEditBox::Hide() {
    Visible = false;
    if (focus_ == FocusPlace::EditBox) focus_ = FocusPlace::Surface;
}

void FakeEditBox::Insert(char32_t character) {
    if (CurrentLook.ReadOnly) return;
    std::string bytes;
    AppendUtf8(bytes, character);
    Replace(start_, length_, bytes);
}

void FakeEditBox::Backspace() {
    if (CurrentLook.ReadOnly) return;
    if (length_ > 0) return Replace(start_, length_, "");
    if (start_ > 0) Replace(start_ - 1, 1, "");
}

std::size_t FakeEditBox::Offset(std::size_t character) const {
    return FirstCharacters(text_, character).size();
}

void FakeEditBox::Replace(std::size_t start, std::size_t length, std::string_view with) {
    const std::size_t from = Offset(start);
    text_.replace(from, Offset(start + length) - from, with);
    start_ = start + CharacterCount(with);
    length_ = 0;
}

} // namespace quillgrid::headless
