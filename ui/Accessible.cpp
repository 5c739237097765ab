#include "Accessible.h"

#include "AccessibleLineEdit.h"
#include "Labels.h"
#include "Silence.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QLineEdit>
#include <QTimer>

#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
#include "AccessibleBefore68.h"
#endif

namespace ui {

namespace {

QAccessibleInterface* Interface(const QString&, QObject* object)
{
    if (auto* edit = qobject_cast<QLineEdit*>(object)) {
        return NewLineEditInterface(*edit);
    }
    if (auto* line = qobject_cast<LineWidget*>(object)) {
        return new QAccessibleWidget(line, QAccessible::Separator); // a plain widget is called a filler
    }
    if (auto* picture = qobject_cast<PictureWidget*>(object)) {
        return new QAccessibleWidget(picture, QAccessible::Grouping);
    }
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
    return InterfaceBefore68(object);
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

// Blocks all windows, as the one will do that opens, and cannot be seen.
class Blocker final : public QWidget
{
public:
    Blocker()
    {
        setWindowModality(Qt::ApplicationModal);
        setAttribute(Qt::WA_DontShowOnScreen);
    }

protected:
    void closeEvent(QCloseEvent* event) override { event->ignore(); }
};

} // namespace

void SetUpAccessibility()
{
    static LateReader lateReader;
    QAccessible::installFactory(Interface);
    QAccessible::installActivationObserver(&lateReader);
}

void LetReaderCatchUp()
{
    constexpr int moment = 50; // milliseconds, with which 16 of 16 boxes were read whole; without, about half
    if (!keysComeBesideTheProgram || !QAccessible::isActive()) {
        return;
    }
    Blocker blocker;
    Silently([&blocker] { blocker.show(); });
    QEventLoop loop;
    QTimer::singleShot(moment, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    Silently([&blocker] { blocker.hide(); });
}

void Announce(QWidget& source, const QString& text)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
    ShowNotification(*source.window(), text);
#else
    QAccessibleAnnouncementEvent event(&source, text); // polite, as it is constructed
    QAccessible::updateAccessibility(&event);
#endif
}

} // namespace ui
