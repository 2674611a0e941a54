#include "quillgrid/hosts/qt/KeyTranslation.h"

#include "quillgrid/grid/Keys.h"

#include <QKeyEvent>

#include <algorithm>
#include <array>

namespace quillgrid::qt {

namespace {

constexpr std::int32_t FirstFunctionKey = 112;

struct KeyRow {
    int QtKey;
    std::int32_t Code;
};

constexpr std::array<KeyRow, 20> Keys{{
    {Qt::Key_Backspace, KeyBackspace},
    {Qt::Key_Tab, KeyTab},
    {Qt::Key_Backtab, KeyTab},
    {Qt::Key_Return, KeyEnter},
    {Qt::Key_Enter, KeyEnter},
    {Qt::Key_Shift, KeyShift},
    {Qt::Key_Control, KeyControl},
    {Qt::Key_Alt, KeyAlt},
    {Qt::Key_Escape, KeyEscape},
    {Qt::Key_Space, KeySpace},
    {Qt::Key_PageUp, KeyPageUp},
    {Qt::Key_PageDown, KeyPageDown},
    {Qt::Key_End, KeyEnd},
    {Qt::Key_Home, KeyHome},
    {Qt::Key_Left, KeyLeft},
    {Qt::Key_Up, KeyUp},
    {Qt::Key_Right, KeyRight},
    {Qt::Key_Down, KeyDown},
    {Qt::Key_Insert, KeyInsert},
    {Qt::Key_Delete, KeyDelete},
}};

/// AltGr types characters, and arrives as Ctrl+Alt on some platforms.
bool IsCommand(Qt::KeyboardModifiers modifiers) {
    const bool control = modifiers.testFlag(Qt::ControlModifier);
    const bool alt = modifiers.testFlag(Qt::AltModifier);
    return control != alt || modifiers.testFlag(Qt::MetaModifier);
}

} // namespace

std::int32_t KeyCodeOf(const QKeyEvent& event) {
    const int key = event.key();
    const auto* row =
        std::find_if(Keys.begin(), Keys.end(), [key](const KeyRow& one) { return one.QtKey == key; });
    if (row != Keys.end()) return row->Code;
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24) return FirstFunctionKey + key - Qt::Key_F1;
    const bool letterOrDigit =
        (key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9);
    if (letterOrDigit) return key;
    return event.text().isEmpty() ? 0 : KeyOfOtherCharacter;
}

std::int32_t ShiftStateOf(const QKeyEvent& event) {
    const Qt::KeyboardModifiers held = event.modifiers();
    return (held.testFlag(Qt::ShiftModifier) ? ShiftShift : ShiftNone) +
           (held.testFlag(Qt::ControlModifier) ? ShiftControl : ShiftNone) +
           (held.testFlag(Qt::AltModifier) ? ShiftAlt : ShiftNone);
}

bool IsTyping(const QKeyEvent& event) {
    switch (KeyCodeOf(event)) {
    case KeyEnter:
    case KeyBackspace:
    case KeyEscape: return !IsCommand(event.modifiers());
    case KeyTab:
    case KeyDelete: return false;
    default: break;
    }
    const QString text = event.text();
    return !text.isEmpty() && !IsCommand(event.modifiers()) && text.at(0).category() != QChar::Other_Control;
}

bool IsModifierKey(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock: return true;
    default: return false;
    }
}

bool ClaimsBeforeShortcuts(const QKeyEvent& event) {
    const std::int32_t shift = ShiftStateOf(event);
    const std::int32_t code = KeyCodeOf(event);
    if (IsTyping(event)) return true;
    if (shift == ShiftAlt) return code == KeyDown;
    if (shift == ShiftControl) return code == KeyHome || code == KeyEnd || code == KeyUp || code == KeyDown;
    if (shift == ShiftShift) return code == KeyInsert;
    return shift == ShiftNone && (code == KeyF4 || (code >= KeyPageUp && code <= KeyDown));
}

} // namespace quillgrid::qt
