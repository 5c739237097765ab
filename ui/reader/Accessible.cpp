#include "Accessible.h"

#include "AccessibleLineEdit.h"
#include "Habits.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QLineEdit>

#ifdef Q_OS_LINUX
#include "Notification.h"
#endif

namespace ui {

namespace {

constexpr const char* roleProperty = "accessibleRole";

QAccessibleInterface* Interface(const QString&, QObject* object)
{
    if (auto* edit = qobject_cast<QLineEdit*>(object)) {
        return NewLineEditInterface(*edit);
    }
    if (auto* widget = qobject_cast<QWidget*>(object)) {
        if (const QVariant role = widget->property(roleProperty); role.isValid()) {
            return new QAccessibleWidget(widget, static_cast<QAccessible::Role>(role.toInt()));
        }
    }
#ifdef Q_OS_LINUX
    return NotificationInterfaceOf(object);
#else
    return nullptr;
#endif
}

// Qt reaches the screen reader while the program is already starting. What happens before is lost, and where that is
// the first window, the pupil hears nothing of it: the window and its focus are told again then.
class LateReader final : public QAccessible::ActivationObserver
{
public:
    void accessibilityActiveChanged(bool active) override
    {
        if (active && QApplication::activeWindow() != nullptr) {
            QMetaObject::invokeMethod(qApp, TellFocus, Qt::QueuedConnection);
        }
    }

private:
    static void TellFocus()
    {
        QWidget* window = QApplication::activeWindow();
        QWidget* focus = QApplication::focusWidget();
        if (window == nullptr || focus == nullptr) {
            return;
        }
        QAccessible::State active;
        active.active = true;
        QAccessibleStateChangeEvent opened(window, active);
        QAccessible::updateAccessibility(&opened);
        QAccessibleEvent focused(focus, QAccessible::Focus);
        QAccessible::updateAccessibility(&focused);
    }
};

} // namespace

void SetUpAccessibility()
{
    static LateReader lateReader;
    QAccessible::installFactory(Interface);
    QAccessible::installActivationObserver(&lateReader);
}

void SetRole(QWidget& widget, QAccessible::Role role)
{
    widget.setProperty(roleProperty, static_cast<int>(role));
}

void Announce(QWidget& source, const QString& text)
{
#ifdef Q_OS_LINUX
    if (!ReaderHabits().takesAnnouncements) {
        ShowNotification(*source.window(), text);
        return;
    }
#endif
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    QAccessibleAnnouncementEvent event(&source, text); // polite, as it is constructed
    QAccessible::updateAccessibility(&event);
#endif
}

} // namespace ui
