// Announcements for Qt before 6.8, which has no event for them; Debian 12 has Qt 6.4. A screen reader tells a
// notification that appears: here is one that nobody sees. To be taken out with the support of such a Qt.
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
