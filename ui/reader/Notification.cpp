#include "Notification.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QWidget>

namespace ui {

namespace {

// The text of a notification, as a label inside it: Orca 43 shows nothing but such labels on a braille line.
class NotificationText final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;
    QString text;
};

// A widget without size, never seen. Its accessible name stays empty: with the text as name the braille line is
// blanked.
class Notification final : public QWidget
{
    Q_OBJECT

public:
    explicit Notification(QWidget* window) : QWidget(window), m_text(new NotificationText(this))
    {
        setObjectName("Notification");
        resize(0, 0);
    }
    void Show(const QString& text)
    {
        m_text->text = text;
        QAccessibleEvent event(this, QAccessible::ObjectShow);
        QAccessible::updateAccessibility(&event);
    }
    NotificationText* Text() const { return m_text; }

private:
    NotificationText* m_text;
};

class NotificationTextInterface final : public QAccessibleObject
{
public:
    explicit NotificationTextInterface(NotificationText* object) : QAccessibleObject(object) {}
    QAccessible::Role role() const override { return QAccessible::StaticText; }
    QAccessible::State state() const override { return {}; }
    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Name ? static_cast<NotificationText*>(object())->text : QString();
    }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(object()->parent()); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
};

class NotificationInterface final : public QAccessibleWidget
{
public:
    explicit NotificationInterface(Notification* widget) : QAccessibleWidget(widget, QAccessible::Notification) {}
    QAccessible::State state() const override { return {}; } // shown, though its widget is not
    QString text(QAccessible::Text) const override { return {}; }
    int childCount() const override { return 1; }
    QAccessibleInterface* child(int index) const override
    {
        return index == 0 ? QAccessible::queryAccessibleInterface(static_cast<Notification*>(widget())->Text())
                          : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        return child != nullptr && child->object() == static_cast<Notification*>(widget())->Text() ? 0 : -1;
    }
};

} // namespace

QAccessibleInterface* NotificationInterfaceOf(QObject* object)
{
    if (auto* notification = qobject_cast<Notification*>(object)) {
        return new NotificationInterface(notification);
    }
    if (auto* text = qobject_cast<NotificationText*>(object)) {
        return new NotificationTextInterface(text);
    }
    return nullptr;
}

void ShowNotification(QWidget& window, const QString& text)
{
    auto* notification = window.findChild<Notification*>(QString(), Qt::FindDirectChildrenOnly);
    if (notification == nullptr) {
        notification = new Notification(&window);
    }
    notification->Show(text);
}

} // namespace ui

#include "Notification.moc"
