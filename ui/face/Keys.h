// Key presses in the numbers that the screens know: key codes, a mask of the modifiers, character codes.
#pragma once

class QKeyEvent;

namespace ui {

namespace KeyCode {
inline constexpr int Left = 37;
inline constexpr int Up = 38;
inline constexpr int Right = 39;
inline constexpr int Down = 40;
inline constexpr int Delete = 46;
inline constexpr int L = 76;
inline constexpr int R = 82;
inline constexpr int F1 = 112;
inline constexpr int F2 = 113;
inline constexpr int F3 = 114;
inline constexpr int F4 = 115;
} // namespace KeyCode

namespace ShiftMask {
inline constexpr int Shift = 1;
inline constexpr int Control = 2;
inline constexpr int Alt = 4;
} // namespace ShiftMask

namespace KeyAscii {
inline constexpr int Backspace = 8;
inline constexpr int Enter = 13;
inline constexpr int Escape = 27;
} // namespace KeyAscii

// What a handler does with a key press: leaves it to the control; uses it and lets the control have it too; keeps it
// for itself.
enum class KeyResult { Pass, Share, Swallow };

// Letters and digits have the code of their capital character; 0 for a key that no screen answers to.
int KeyCodeOf(const QKeyEvent& event);

// The modifiers held, as a sum of ShiftMask.
int ShiftMaskOf(const QKeyEvent& event);

// The character that a key press types: printable characters, Backspace, Enter, Escape, and 1 to 26 for Control with a
// letter. 0 for keys that type none (cursor keys, function keys, Tab, anything with Alt, unless Control is held too:
// some systems give AltGr as both).
int KeyAsciiOf(const QKeyEvent& event);

// Whether the key has a printable character, whatever the modifiers.
bool TypesText(const QKeyEvent& event);

} // namespace ui
