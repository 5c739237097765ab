// What the screen reader finds in the windows where Qt's own answer is missing or wrong.
#pragma once

#include <QString>

class QWidget;

namespace ui {

// Whether the screen reader by itself reads a control in focus whose name changes. Before Qt 6.8 it gets no name with
// that event, on Windows before 6.11 no event.
#if defined(Q_OS_WIN)
inline constexpr bool newNamesAreRead = QT_VERSION >= QT_VERSION_CHECK(6, 11, 0);
#elif defined(Q_OS_MACOS)
inline constexpr bool newNamesAreRead = false; // not tried
#else
inline constexpr bool newNamesAreRead = QT_VERSION >= QT_VERSION_CHECK(6, 8, 0);
#endif

// Puts our accessible interfaces before Qt's, and tells a screen reader that comes after the first window where the
// focus is. To be called once, before that window.
void SetUpAccessibility();

// Sends `text` to the screen reader as a message of `source`, at once. Screens speak through the Announcer instead.
void Announce(QWidget& source, const QString& text);

} // namespace ui
