#pragma once

#include <cstdint>

class QKeyEvent;

namespace quillgrid::qt {

/// Stands for every key that types a character and has no code of its own.
inline constexpr std::int32_t KeyOfOtherCharacter = 231;

/// The control's code for the key of an event: one of KeyCode, the upper-case letter or digit, F1..F24 as
/// 112..135, KeyOfOtherCharacter; 0 for a key that types nothing and has no code.
std::int32_t KeyCodeOf(const QKeyEvent& event);
/// The held modifiers as a sum of ShiftState.
std::int32_t ShiftStateOf(const QKeyEvent& event);
/// Whether the key's text is typed text (Enter, Backspace and Escape included) rather than a command.
bool IsTyping(const QKeyEvent& event);
/// Whether the key is only a modifier on its way to something else.
bool IsModifierKey(const QKeyEvent& event);
/// Whether the control wants the key before any shortcut of the window does.
bool ClaimsBeforeShortcuts(const QKeyEvent& event);

} // namespace quillgrid::qt
