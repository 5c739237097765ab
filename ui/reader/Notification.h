// What serves as an announcement where either Qt has no event for that, as before 6.8, or the screen reader does not
// take it, as Orca 43. A screen reader tells a notification that appears: here is one that nobody sees.
#pragma once

#include <QString>

class QAccessibleInterface;
class QObject;
class QWidget;

namespace ui {

// Our interface for `object` where that is a part of a notification, or null.
QAccessibleInterface* NotificationInterfaceOf(QObject* object);

// Has a notification with `text` appear in `window`.
void ShowNotification(QWidget& window, const QString& text);

} // namespace ui
