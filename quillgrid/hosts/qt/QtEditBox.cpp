#include "quillgrid/hosts/qt/QtEditBox.h"

#include "quillgrid/base/Text.h"
#include "quillgrid/hosts/qt/BoxStyleSheet.h"
#include "quillgrid/hosts/qt/Conversions.h"
#include "quillgrid/hosts/qt/GridLineEdit.h"
#include "quillgrid/hosts/qt/QtTheme.h"

#include <QStyle>

#include <algorithm>

namespace quillgrid::qt {

namespace {

/// Characters in the first `units` UTF-16 units.
std::size_t CharactersIn(const QString& text, qsizetype units) {
    std::size_t count = 0;
    for (qsizetype i = 0; i < std::min(units, text.size()); ++i) {
        const bool secondHalf = text[i].isLowSurrogate() && i > 0 && text[i - 1].isHighSurrogate();
        if (!secondHalf) ++count;
    }
    return count;
}

/// UTF-16 units of the first `characters` characters.
int UnitsOf(const QString& text, std::size_t characters) {
    qsizetype unit = 0;
    for (; characters > 0 && unit < text.size(); --characters) {
        const bool pair =
            text[unit].isHighSurrogate() && unit + 1 < text.size() && text[unit + 1].isLowSurrogate();
        unit += pair ? 2 : 1;
    }
    return static_cast<int>(unit);
}

/// Sides are those of the form, mirrored with it; the direction of the text has no say.
Qt::Alignment BoxAlignment(AlignmentConstants alignment, bool mirrored) {
    const bool right = (alignment == qgalRightJustify) != mirrored;
    const Qt::Alignment side = alignment == qgalCenter ? Qt::AlignHCenter
                               : right                 ? Qt::AlignRight
                                                       : Qt::AlignLeft;
    return side | Qt::AlignVCenter | Qt::AlignAbsolute;
}

} // namespace

QtEditBox::~QtEditBox() {
    if (style_) edit_.setStyle(nullptr);
}

std::string QtEditBox::Text() const {
    return FromQString(edit_.text());
}

std::size_t QtEditBox::LengthAtMost() const {
    return static_cast<std::size_t>(edit_.text().size());
}

void QtEditBox::SetText(std::string_view text) {
    edit_.setText(ToQString(text));
    edit_.setCursorPosition(0);
    TextSet();
}

std::size_t QtEditBox::SelectionStart() const {
    const int start = edit_.hasSelectedText() ? edit_.selectionStart() : edit_.cursorPosition();
    return CharactersIn(edit_.text(), start);
}

std::size_t QtEditBox::SelectionLength() const {
    if (!edit_.hasSelectedText()) return 0;
    return CharactersIn(edit_.text(), edit_.selectionEnd()) - SelectionStart();
}

void QtEditBox::Select(std::size_t start, std::size_t length) {
    const QString text = edit_.text();
    const int first = UnitsOf(text, start);
    const int last = UnitsOf(text, start + std::min(length, static_cast<std::size_t>(text.size())));
    edit_.setCursorPosition(first);
    const bool whole = first == 0 && last == text.size();
    // The end with the caret is what is seen of a long text: of a new one its beginning, of a completed one
    // what was added.
    edit_.setSelection(whole ? last : first, whole ? -last : last - first);
}

void QtEditBox::SetLook(const Look& look) {
    if (look == look_) return;
    look_ = look;
    Dress();
}

void QtEditBox::AmbientChanged() {
    styledMask_.clear();
    Dress();
}

void QtEditBox::Dress() {
    QPalette palette = owner_.palette();
    palette.setColor(QPalette::Base, ToQColor(look_.Paper, owner_.palette()));
    palette.setColor(QPalette::Text, ToQColor(look_.Ink, owner_.palette()));
    edit_.setPalette(palette);
    const QFont font = ToQFont(look_.TextFont, owner_.font());
    edit_.setFont(font);
    const QString rules = BoxStyleSheet(owner_, palette, font);
    if (rules != edit_.styleSheet()) edit_.setStyleSheet(rules);
    edit_.setAlignment(BoxAlignment(look_.Alignment, owner_.isRightToLeft()));
    edit_.setReadOnly(look_.ReadOnly);
    ApplyMask();
}

void QtEditBox::ApplyMask() {
    edit_.setEchoMode(look_.Mask.empty() ? QLineEdit::Normal : QLineEdit::Password);
    if (look_.Mask.empty() || look_.Mask == styledMask_) return;
    const char32_t mask = DecodeFirst(look_.Mask).Character;
    // The box paints its mask in single UTF-16 units.
    auto style =
        std::make_unique<MaskStyle>(owner_.style()->name(), mask > 0xFFFF ? '*' : static_cast<int>(mask));
    edit_.setStyle(style.get());
    style_ = std::move(style);
    styledMask_ = look_.Mask;
}

void QtEditBox::Place(const Rect& area) {
    area_ = area;
    FollowWidget();
    edit_.setVisible(!area.IsEmpty());
    if (area.IsEmpty()) return;
    if (owner_.focusProxy() != &edit_) owner_.setFocusProxy(&edit_);
}

void QtEditBox::FollowWidget() {
    edit_.setGeometry(ToQRect(OnWidget(area_, owner_)));
}

void QtEditBox::Hide() {
    // Qt passes the focus of a box that hides on to the next control of the window.
    owner_.setFocusProxy(nullptr);
    if (edit_.hasFocus()) owner_.setFocus(Qt::OtherFocusReason);
    edit_.hide();
    TextSet();
}

void QtEditBox::Focus() {
    RequestFocus();
}

} // namespace quillgrid::qt
