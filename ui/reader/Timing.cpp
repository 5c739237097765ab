#include "Timing.h"

#include "Accessible.h"
#include "Announcer.h"
#include "Habits.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QLabel>
#include <QMessageBox>
#include <QThread>
#include <QTimer>

namespace ui {

namespace {

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

void LetReaderCatchUp()
{
    constexpr int moment = 50; // milliseconds, with which 16 of 16 boxes were read whole; without, about half
    if (!ReaderHabits().keysComeBesideTheProgram || !QAccessible::isActive()) {
        return;
    }
    Blocker blocker;
    Silently([&blocker] { blocker.show(); });
    QEventLoop loop;
    QTimer::singleShot(moment, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    Silently([&blocker] { blocker.hide(); });
}

} // namespace

void OnceFocusIsTold(QWidget& widget, std::function<void()> action)
{
    // Qt sends the screen reader's event right behind that of the widget, which is being handled.
    QMetaObject::invokeMethod(&widget, std::move(action), Qt::QueuedConnection);
}

void SayNewName(QWidget& control, const QString& name)
{
    if (control.hasFocus() && !ReaderHabits().newNamesAreRead) { // to ask for the habits takes a moment
        Announcer::Instance().Say(control, name);
    }
}

void SayWithName(QWidget& control, const QString& name, const QString& more)
{
    const bool isRead = control.hasFocus() && ReaderHabits().newNamesAreRead;
    Announcer::Instance().Say(control, (isRead ? QString() : name + "; ") + more);
}

FocusTrace::FocusTrace() : m_before(QApplication::focusWidget())
{
    m_look = QObject::connect(qApp, &QApplication::focusChanged, qApp, [this](QWidget*, const QWidget* now) {
        m_wasElsewhere = m_wasElsewhere || now == nullptr || !m_before || now->window() != m_before->window();
    });
}

FocusTrace::~FocusTrace()
{
    QObject::disconnect(m_look);
}

QWidget* FocusTrace::Unheard() const
{
    const bool stays = m_before && m_before == QApplication::focusWidget() && !m_wasElsewhere;
    return stays && Announcer::Instance().IsSilent(*m_before->window()) ? m_before : nullptr;
}

void SayBeforeBox(QMessageBox& box, QWidget& screen, const QString& said)
{
    if (auto* label = ReaderHabits().boxesCutMessagesOff ? box.findChild<QLabel*>("qt_msgbox_label") : nullptr) {
        label->setAccessibleName(said.trimmed() + ". " + box.text());
    } else {
        Announce(screen, said);
    }
}

void LetReaderHearKey()
{
    constexpr unsigned long lead = 30; // milliseconds; with 15 none of 320 answers was cut off, without one in ten
    if (ReaderHabits().keysComeBesideTheProgram && QAccessible::isActive()) {
        QThread::msleep(lead);
    }
}

int OpenBox(QDialog& box)
{
    LetReaderCatchUp();
    bool isAnswered = false;
    const QMetaObject::Connection answered =
        QObject::connect(&box, &QDialog::finished, &box, [&isAnswered] { isAnswered = true; });
    int answer = box.exec();
    while (!isAnswered && box.isHidden()) { // it is to open once more; at the program's end it is not hidden
        answer = box.exec();
    }
    QObject::disconnect(answered);
    return answer;
}

} // namespace ui
