#include "Support.h"

#include "Application.h"

#include <QPointer>
#include <QTimer>

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

namespace support {

QStringList Ear::s_heard;

int Run(QObject& test, int argc, char** argv)
{
    ui::Application application(argc, argv);
    ui::Application::setQuitOnLastWindowClosed(false);
    // No public call says that there is a screen reader.
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(true);
    return QTest::qExec(&test, argc, argv);
}

Ear::Ear()
{
    Settle();
    s_heard.clear();
    QAccessible::installUpdateHandler(Hear);
}

Ear::~Ear()
{
    QAccessible::installUpdateHandler(nullptr);
}

QStringList Ear::Take()
{
    Settle();
    return std::exchange(s_heard, {});
}

QStringList Ear::TakeSaid()
{
    QStringList said;
    for (const QString& entry : Take()) {
        if (entry.startsWith("SAY ")) {
            said += entry.mid(4);
        }
    }
    return said;
}

void Ear::Hear(QAccessibleEvent* event)
{
    if (event->type() == QAccessible::Focus && event->object() != nullptr) {
        s_heard += "FOCUS " + event->object()->objectName();
    }
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    if (event->type() == QAccessible::Announcement) {
        const auto* announcement = static_cast<QAccessibleAnnouncementEvent*>(event);
        const bool polite = announcement->politeness() == QAccessible::AnnouncementPoliteness::Polite;
        s_heard += (polite ? "SAY " : "INTERRUPT ") + announcement->message();
    }
#else
    if (event->type() == QAccessible::ObjectShow) {
        const QAccessibleInterface* shown = event->accessibleInterface();
        if (shown != nullptr && shown->role() == QAccessible::Notification) {
            s_heard += "SAY " + shown->child(0)->text(QAccessible::Name);
        }
    }
#endif
}

void Settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

bool WaitActive(QWidget& window)
{
    const bool active = QTest::qWaitForWindowActive(&window);
    Settle();
    return active;
}

void Press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
}

void Type(const QString& text)
{
    QTest::keyClicks(QApplication::focusWidget(), text);
}

QString Focus()
{
    const QWidget* focus = QApplication::focusWidget();
    return focus == nullptr ? "-" : focus->objectName();
}

void WithDialog(const std::function<void()>& action, const std::function<void(QWidget& dialog)>& answer)
{
    bool opened = false;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        if (dialog != nullptr && dialog->isVisible()) {
            timer.stop();
            opened = true;
            const QPointer<QWidget> guarded = dialog;
            answer(*dialog);
            if (QTest::currentTestFailed() && guarded) {
                guarded->close(); // a check in `answer` has failed before its last key
            }
        }
    });
    timer.start(5);
    action();
    QTRY_VERIFY(opened);
}

} // namespace support
