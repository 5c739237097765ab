// What the screen reader finds in the windows where Qt's own answer is missing or wrong.
#pragma once

#include <QAccessible>
#include <QString>

class QWidget;

namespace ui {

// Puts our accessible interfaces before Qt's, and tells a screen reader that comes after the first window where the
// focus is. To be called once, before that window.
void SetUpAccessibility();

// What a screen reader is to take the widget for; a plain one is called a filler. To be called before anybody asks.
void SetRole(QWidget& widget, QAccessible::Role role);

// Sends `text` to the screen reader as a message of `source`, at once. Screens speak through the Announcer instead.
void Announce(QWidget& source, const QString& text);

} // namespace ui
