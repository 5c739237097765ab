#include "Support.h"

#include "Application.h"
#include "Bell.h"

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QTimer>

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

namespace support {

QStringList Ear::s_heard;
QStringList Ear::s_active;

void SetReader(bool on)
{
    // No public call says so.
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(on);
}

int Run(QObject& test, int argc, char** argv)
{
    const ui::Application application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    SetReader(true);
    return QTest::qExec(&test, argc, argv);
}

Ear::Ear()
{
    Settle();
    s_heard.clear();
    s_active.clear();
    QAccessible::installUpdateHandler(Hear);
    ui::ReplaceBell([] { s_heard += "BEEP"; });
}

Ear::~Ear()
{
    QAccessible::installUpdateHandler(nullptr);
    ui::ReplaceBell({});
}

QStringList Ear::Take()
{
    // Announcements go out at the end of an event; a test may have written outside of any.
    QCoreApplication::postEvent(qApp, new QEvent(QEvent::User));
    Settle();
    return std::exchange(s_heard, {});
}

bool Ear::TakeActive(const QWidget& window)
{
    Settle();
    return std::exchange(s_active, {}).contains(window.objectName());
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
    if (event->type() == QAccessible::StateChanged &&
        static_cast<QAccessibleStateChangeEvent*>(event)->changedStates().active != 0) {
        s_active += event->object()->objectName();
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

void WithDialogs(const std::function<void()>& action, const std::vector<DialogAnswer>& answers)
{
    std::size_t opened = 0;
    QPointer<QWidget> answered;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        const QPointer<QWidget> dialog = QApplication::activeModalWidget();
        if (!dialog || dialog == answered || qobject_cast<QDialog*>(dialog) == nullptr) {
            return;
        }
        const QWidget* focus = QApplication::focusWidget();
        if (focus == nullptr || focus->window() != dialog) {
            return; // before it has the focus, access keys do nothing
        }
        answered = dialog;
        if (opened < answers.size()) {
            answers[opened](*dialog);
        }
        ++opened;
        if (dialog && (opened > answers.size() || QTest::currentTestFailed())) {
            dialog->close(); // nobody answers it, or a check in the answer has failed before its last key
        }
    });
    timer.start(5);
    action();
    QTRY_COMPARE(opened, answers.size());
}

void WithDialog(const std::function<void()>& action, const DialogAnswer& answer)
{
    WithDialogs(action, {answer});
}

} // namespace support
