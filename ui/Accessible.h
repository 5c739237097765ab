// What the screen reader finds in the windows where Qt's own answer is missing or wrong.
#pragma once

#include <QString>

class QWidget;

namespace ui {

// What is to be reckoned with of the screen readers of each platform. On Linux their age goes with that of Qt: Orca 43
// came with Qt 6.4, Orca 48 with 6.8.
#if defined(Q_OS_WIN)
inline constexpr bool newNamesAreRead = QT_VERSION >= QT_VERSION_CHECK(6, 11, 0);
inline constexpr bool boxesCutMessagesOff = true;
inline constexpr bool keysComeBesideTheProgram = false;
#elif defined(Q_OS_MACOS) // not tried
inline constexpr bool newNamesAreRead = false;
inline constexpr bool boxesCutMessagesOff = true;
inline constexpr bool keysComeBesideTheProgram = false;
#else
inline constexpr bool newNamesAreRead = QT_VERSION >= QT_VERSION_CHECK(6, 8, 0); // of the control in focus, by itself
inline constexpr bool boxesCutMessagesOff = QT_VERSION >= QT_VERSION_CHECK(6, 8, 0); // that were said before they open
inline constexpr bool keysComeBesideTheProgram = QT_VERSION >= QT_VERSION_CHECK(6, 8, 0); // and not by way of it
#endif

// Puts our accessible interfaces before Qt's, and tells a screen reader that comes after the first window where the
// focus is. To be called once, before that window.
void SetUpAccessibility();

// To be called before a box opens by a key. Where keys come to the reader beside the program, it handles them with the
// program's help: a box that is there before that is cut off, unread, by the key that has opened it. So the reader gets
// a moment, in which keys do nothing.
void LetReaderCatchUp();

// Sends `text` to the screen reader as a message of `source`, at once. Screens speak through the Announcer instead.
void Announce(QWidget& source, const QString& text);

} // namespace ui
