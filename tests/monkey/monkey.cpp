// A monkey at the keyboard and the mouse: random events over all windows, and after each of them what must be true of
// every one. Arguments: number of events and seed; the same ones do the same again. Without a seed it takes a new one.
#include "Application.h"
#include "Azar.h"
#include "Form1.h"
#include "Support.h"
#include "Windows.h"

#include <QActionGroup>
#include <QClipboard>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QPointer>
#include <QRegularExpression>
#include <QTimer>

#include <map>
#include <random>

namespace {

// What a window's score line says: exercises and errors.
struct Score
{
    int exercises = 0;
    int errors = 0;
};

class Monkey final : public QObject
{
    Q_OBJECT

public:
    Monkey(std::uint32_t seed, int events) : m_random(seed), m_seed(seed), m_events(events)
    {
        m_timer.setSingleShot(true);
        connect(&m_timer, &QTimer::timeout, this, &Monkey::Tick);
        m_timer.start();
    }

    bool IsDone() const { return m_done >= m_events; }

    // What it has come to see; a long walk leads to every window.
    void Report()
    {
        qInfo("%d windows, %d announcements, %d points, %d events in boxes", static_cast<int>(m_seen.size()), m_said,
              m_checks, m_boxes);
        constexpr int longWalk = 20'000;
        if (m_events >= longWalk && std::min({m_said, m_checks, m_boxes}) == 0) {
            Fail("nothing was told, counted or typed into");
        }
        for (const support::Window& window : support::Windows()) {
            if (m_events >= longWalk && !m_seen.contains(window.name)) {
                Fail(window.name + " was not seen");
            }
        }
    }

private:
    // In turns an event, a pause for what is told one turn later, and a look at what has come of it. The timer runs on
    // while an event has opened a box and does not return before that is closed.
    void Tick()
    {
        m_timer.start();
        const QWidget* modal = QApplication::activeModalWidget();
        if (modal != nullptr && modal->testAttribute(Qt::WA_DontShowOnScreen)) {
            return; // a box is about to open, and no window can be reached
        }
        switch (m_turn = (m_turn + 1) % 3) {
        case 0:
            if (IsDone()) {
                QCoreApplication::exit(EXIT_SUCCESS);
                return;
            }
            ++m_done;
            m_given = Given();
            m_plainKey = false;
            support::Ear::TakeSoFar();
            Act();
            break;
        case 1:
            break;
        default:
            Look();
            break;
        }
    }

    // All windows closed: the program would have ended, and starts again.
    static void Restart() { ui::Form::Open(std::make_unique<app::Form1>(), ui::Modality::Modeless); }

    void Act()
    {
        QWidget* window = QApplication::activeModalWidget();
        if (window == nullptr) {
            window = QApplication::activePopupWidget();
        }
        if (window == nullptr) {
            const QList<QWidget*> windows = Windows();
            if (windows.isEmpty()) {
                Note("restart");
                Restart();
                return;
            }
            window = QApplication::activeWindow();
            if (window == nullptr || One(20)) {
                window = windows.at(Below(windows.size()));
                Note("activate " + window->objectName());
                window->activateWindow();
                return;
            }
        }
        switch (Below(24)) {
        case 0:
            Click(*window);
            break;
        case 1:
            Choose(*window);
            break;
        case 2:
            Note("resize " + window->objectName());
            window->resize(Below(1600), Below(1200));
            break;
        case 3:
            if (One(8)) {
                Note("close " + window->objectName());
                window->close();
            }
            break;
        case 4:
            Note("clipboard");
            QGuiApplication::clipboard()->setText(texts.at(Below(texts.size())));
            break;
        case 5:
            Keyboard(*window, Qt::Key_F4, Qt::AltModifier, One(10));
            break;
        default:
            Key(*window);
            break;
        }
    }

    void Key(QWidget& window)
    {
        struct Pressed
        {
            Qt::Key key;
            Qt::KeyboardModifiers modifiers;
        };
        static constexpr Pressed keys[]{
            {Qt::Key_Tab, Qt::NoModifier},       {Qt::Key_Tab, Qt::NoModifier},
            {Qt::Key_Tab, Qt::NoModifier},       {Qt::Key_Backtab, Qt::ShiftModifier},
            {Qt::Key_Return, Qt::NoModifier},    {Qt::Key_Return, Qt::NoModifier},
            {Qt::Key_Enter, Qt::KeypadModifier}, {Qt::Key_Space, Qt::NoModifier},
            {Qt::Key_Escape, Qt::NoModifier},    {Qt::Key_F1, Qt::NoModifier},
            {Qt::Key_F2, Qt::NoModifier},        {Qt::Key_F3, Qt::NoModifier},
            {Qt::Key_F4, Qt::NoModifier},        {Qt::Key_Right, Qt::ControlModifier},
            {Qt::Key_Left, Qt::ControlModifier}, {Qt::Key_Up, Qt::ControlModifier},
            {Qt::Key_Down, Qt::ControlModifier}, {Qt::Key_Right, Qt::NoModifier},
            {Qt::Key_Left, Qt::NoModifier},      {Qt::Key_Up, Qt::NoModifier},
            {Qt::Key_Down, Qt::NoModifier},      {Qt::Key_Home, Qt::NoModifier},
            {Qt::Key_End, Qt::NoModifier},       {Qt::Key_Backspace, Qt::NoModifier},
            {Qt::Key_Delete, Qt::NoModifier},    {Qt::Key_A, Qt::ControlModifier},
            {Qt::Key_C, Qt::ControlModifier},    {Qt::Key_V, Qt::ControlModifier},
            {Qt::Key_X, Qt::ControlModifier},    {Qt::Key_Z, Qt::ControlModifier},
            {Qt::Key_R, Qt::ControlModifier},    {Qt::Key_H, Qt::AltModifier},
            {Qt::Key_C, Qt::AltModifier},        {Qt::Key_B, Qt::AltModifier},
            {Qt::Key_V, Qt::AltModifier},        {Qt::Key_O, Qt::AltModifier},
            {Qt::Key_P, Qt::AltModifier},        {Qt::Key_A, Qt::AltModifier},
            {Qt::Key_E, Qt::AltModifier},        {Qt::Key_D, Qt::AltModifier},
            {Qt::Key_G, Qt::AltModifier},        {Qt::Key_S, Qt::AltModifier},
            {Qt::Key_N, Qt::AltModifier},        {Qt::Key_Alt, Qt::NoModifier},
        };
        if (One(2)) { // something typed
            static const QString typed = "0123456789012345678901234567890123456789-+.,=|lLñ€ ";
            const QChar character = typed.at(Below(typed.size()));
            Note("type " + QString(character));
            m_plainKey = character != ' '; // which presses a button
            QWidget* target = Target(window);
            QTest::sendKeyEvent(QTest::Click, target, Qt::Key(character.toUpper().unicode()), QString(character),
                                Qt::NoModifier);
        } else {
            const Pressed& pressed = keys[Below(std::size(keys))];
            Keyboard(window, pressed.key, pressed.modifiers, true);
        }
    }

    void Keyboard(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers, bool really)
    {
        if (!really) {
            return;
        }
        Note("key " + QKeySequence(key | modifiers).toString());
        if (key == Qt::Key_F4 && modifiers == Qt::AltModifier) { // the window manager's
            window.close();
            return;
        }
        QTest::keyClick(Target(window), key, modifiers);
    }

    void Click(QWidget& window)
    {
        const QList<QWidget*> widgets = window.findChildren<QWidget*>();
        if (widgets.isEmpty()) {
            return;
        }
        QWidget* widget = widgets.at(Below(widgets.size()));
        if (widget->isVisible() && widget->window() == &window) {
            Note("click " + widget->objectName());
            const QPointer<QWidget> pressed(widget);
            QTest::mousePress(widget, Qt::LeftButton);
            if (pressed) { // the press may have closed its window
                QTest::mouseRelease(widget, Qt::LeftButton);
            }
        }
    }

    void Choose(QWidget& window)
    {
        QList<QAction*> actions;
        for (QAction* action : window.findChildren<QAction*>()) {
            if (action->menu() == nullptr && !action->objectName().isEmpty()) {
                actions += action;
            }
        }
        if (!actions.isEmpty()) {
            QAction* action = actions.at(Below(actions.size()));
            Note("choose " + action->objectName());
            action->trigger();
        }
    }

    static QWidget* Target(QWidget& window)
    {
        QWidget* focus = QApplication::focusWidget();
        return focus != nullptr && focus->window() == &window ? focus : &window;
    }

    static QList<QWidget*> Windows()
    {
        QList<QWidget*> windows;
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (qobject_cast<QMainWindow*>(window) != nullptr && window->isVisible()) {
                windows += window;
            }
        }
        std::ranges::sort(windows, {}, &QObject::objectName); // in an order that is always the same
        return windows;
    }

    // The numbers that the exercises give, and their boxes, which nobody may type into.
    static QList<std::pair<QPointer<QLineEdit>, QString>> Given()
    {
        QList<std::pair<QPointer<QLineEdit>, QString>> given;
        for (const QWidget* window : Windows()) {
            for (QLineEdit* box : window->findChildren<QLineEdit*>(QRegularExpression("^(Text[12]|TBIni)\\("))) {
                if (box->isReadOnly()) {
                    given.emplaceBack(box, box->text());
                }
            }
        }
        return given;
    }

    void Look()
    {
        const QStringList said = support::Ear::TakeSoFar().filter(QRegularExpression("^(SAY|INTERRUPT) "));
        if (said.size() > 1 || !said.filter("INTERRUPT").isEmpty()) {
            Fail("told: " + said.join(" / "));
        }
        m_said += static_cast<int>(said.size());
        m_boxes += qobject_cast<QDialog*>(QApplication::activeModalWidget()) != nullptr ? 1 : 0;
        for (const QWidget* window : Windows()) {
            m_seen.insert(window->objectName());
            for (const QActionGroup* group : window->findChildren<QActionGroup*>()) {
                const auto actions = group->actions();
                if (std::ranges::count_if(actions, &QAction::isChecked) != 1) {
                    Fail(group->objectName() + " has not one checked entry");
                }
            }
            LookAtScore(*window);
        }
        if (m_plainKey) {
            for (const auto& [box, text] : m_given) {
                if (box && box->text() != text) {
                    Fail(box->objectName() + " was " + text + " and is " + box->text());
                }
            }
        }
        const QWidget* active = QApplication::activeWindow();
        const QWidget* focus = QApplication::focusWidget();
        const bool inMenu = QApplication::activePopupWidget() != nullptr;
        if (active != nullptr && !inMenu && (focus == nullptr || !focus->isVisible() || !focus->isEnabled())) {
            const QWidget* lost = active->focusWidget();
            Fail("no focus in " + active->objectName() + ", where it was on " +
                 (lost == nullptr ? "nothing" : lost->objectName()));
        }
    }

    // Both numbers stand in their places, never fall, and grow by one at a time.
    void LookAtScore(const QWidget& window)
    {
        static const QRegularExpression form(R"(^Ejercicios: *(\d+)[.;] Errores: *(\d+)\.?$)");
        QString text;
        for (const QLineEdit* box : window.findChildren<QLineEdit*>()) {
            text = box->accessibleName() == "Marcador" ? box->text() : text;
        }
        for (const QLabel* label : window.findChildren<QLabel*>()) {
            text = label->text().startsWith("Ejercicios") ? label->text() : text;
        }
        if (text.isEmpty()) {
            return; // the menu
        }
        const QRegularExpressionMatch match = form.match(text);
        if (!match.hasMatch()) {
            Fail("the score is " + text);
        }
        const Score now{match.captured(1).toInt(), match.captured(2).toInt()};
        const auto was = m_scores.find(&window);
        if (was != m_scores.end() && was->second.window) {
            const Score& old = was->second.score;
            const auto grew = [](int from, int to) { return to == from || to == from + 1; };
            m_checks += now.exercises + now.errors - old.exercises - old.errors;
            if (!grew(old.exercises, now.exercises) || !grew(old.errors, now.errors)) {
                Fail("the score jumped to " + text);
            }
        }
        m_scores[&window] = {&window, now};
    }

    // A whole number below `end`, which is not 0.
    template <class Number>
    int Below(Number end)
    {
        return static_cast<int>(m_random() % static_cast<std::uint32_t>(end));
    }

    bool One(int of) { return Below(of) == 0; }

    void Note(const QString& what)
    {
        m_last += (QString("%1 %2").arg(m_done).arg(what));
        if (m_last.size() > 20) {
            m_last.removeFirst();
        }
    }

    [[noreturn]] void Fail(const QString& what)
    {
        qFatal("%s\n%s\nagain: monkey %d %u", qPrintable(m_last.join("\n")), qPrintable(what), m_events, m_seed);
    }

    struct Known
    {
        QPointer<const QWidget> window; // another may be at the same place later
        Score score;
    };

    inline static const QList<QString> texts{"7",          "1234567890", "-3", "abc",
                                             "     |    ", "\r\n\r\n",   "½ ", QString(5000, '9')};

    std::mt19937 m_random;
    std::uint32_t m_seed;
    int m_events;
    int m_done = 0;
    int m_said = 0;
    int m_checks = 0;
    int m_boxes = 0;
    QSet<QString> m_seen;
    bool m_plainKey = false;
    QTimer m_timer;
    int m_turn = -1;
    QList<std::pair<QPointer<QLineEdit>, QString>> m_given; // before the event
    std::map<const QWidget*, Known> m_scores;
    QStringList m_last;
};

} // namespace

int main(int argc, char** argv)
{
    const ui::Application application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QStringList arguments = QApplication::arguments();
    const int events = arguments.value(1, "1000").toInt();
    const std::uint32_t seed = arguments.size() > 2 ? arguments.at(2).toUInt() : std::random_device()();
    qInfo("monkey %d %u", events, seed);
    numeros::FijarSemilla(seed);
    support::SetReader(true);
    const support::Ear ear;
    Monkey monkey(seed, events);
    while (!monkey.IsDone()) { // the program may end itself meanwhile
        QApplication::exec();
    }
    monkey.Report();
    return EXIT_SUCCESS;
}

#include "monkey.moc"
