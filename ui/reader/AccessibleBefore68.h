// Accessibility for Qt before 6.8, which Debian 12 has: announcements without an event of their own. Goes when the
// oldest Qt that is supported does.
#pragma once

#include <QString>

class QAccessibleInterface;
class QObject;
class QWidget;

namespace ui {

// Our interface for `object`, or null where Qt's own serves.
QAccessibleInterface* InterfaceBefore68(QObject* object);

// Has a notification with `text` appear in `window`.
void ShowNotification(QWidget& window, const QString& text);

} // namespace ui
