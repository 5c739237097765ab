// What the tests of windows share: a main function with the program's own application, a pupil's keys, and an ear for
// what goes out to the screen reader.
#pragma once

#include <QAccessible>
#include <QStringList>
#include <QTest>
#include <QWidget>

#include <functional>
#include <vector>

namespace support {

// Has a screen reader on the desktop, or none.
void SetReader(bool on);

// Runs the cases of `test` in the program's application, on a desktop with a screen reader.
int Run(QObject& test, int argc, char** argv);

// Records, while it lives, what a screen reader is told: "FOCUS name" when the focus moves, "SAY text" for
// announcements; and the bell: "BEEP".
class Ear
{
public:
    Ear();
    ~Ear();
    Ear(const Ear&) = delete;
    Ear& operator=(const Ear&) = delete;

    // Whether the reader was told since the last call that `window` is the active one.
    bool TakeActive(const QWidget& window);

    // All that was told since the last call, once everything pending has been handled.
    QStringList Take();

    // The announcements among it, without "SAY ".
    QStringList TakeSaid();

    // All that was told since the last call, whatever is still pending.
    static QStringList TakeSoFar() { return std::exchange(s_heard, {}); }

private:
    static void Hear(QAccessibleEvent* event);

    static QStringList s_heard;
    static QStringList s_active;
};

// Handles everything that is pending.
void Settle();

// Waits until `window` is active and has settled; false where it does not become so.
bool WaitActive(QWidget& window);

// Presses keys on whatever has the focus.
void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void Type(const QString& text);

// The object name of the widget that has the focus, or "-".
QString Focus();

// Runs `action`, which opens modal dialogs one after the other, and each of the `answers` with its dialog. Fails the
// test where fewer dialogs open, or more.
using DialogAnswer = std::function<void(QWidget& dialog)>;
void WithDialogs(const std::function<void()>& action, const std::vector<DialogAnswer>& answers);
void WithDialog(const std::function<void()>& action, const DialogAnswer& answer);

// The child of this name, which must exist.
template <class T>
T& Child(const QWidget& window, QAnyStringView name)
{
    auto* child = window.findChild<T*>(name.toString());
    if (child == nullptr) {
        qFatal("no %s", qPrintable(name.toString()));
    }
    return *child;
}

} // namespace support

#define KELVORA_TEST_MAIN(Test)                                                                                        \
    int main(int argc, char** argv)                                                                                    \
    {                                                                                                                  \
        Test test;                                                                                                     \
        return support::Run(test, argc, argv);                                                                         \
    }
