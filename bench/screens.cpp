// Works the screens as fast as the event loop goes, to see what an opening, an exercise or a reading costs.
//
//   screens names                  the names of all exercise screens
//   screens open                   processor time of opening each window
//   screens exercises NAME N       N exercises on a screen; nothing is printed, for a profiler
//   screens readings N             N readings of the sum's operation, likewise
//   screens soak N                 N exercises on every screen and N / 50 openings: memory and time at begin and end
#include "Application.h"
#include "Azar.h"
#include "Support.h"
#include "Windows.h"

#include <QAbstractButton>
#include <QFile>
#include <QMainWindow>

#include <cstdio>
#include <ctime>

namespace {

// Milliseconds of processor time since the start.
double Cpu()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return 1000.0 * static_cast<double>(time.tv_sec) + 1e-6 * static_cast<double>(time.tv_nsec);
}

// Kibibytes of memory that are the process's own.
int Resident()
{
    QFile rollup("/proc/self/smaps_rollup");
    if (!rollup.open(QIODevice::ReadOnly)) {
        qFatal("no memory figures on this system");
    }
    int kib = 0;
    for (const QByteArray& line : rollup.readAll().split('\n')) {
        kib += line.startsWith("Private_") ? line.simplified().split(' ').at(1).toInt() : 0;
    }
    return kib;
}

QMainWindow* Open(const support::Window& window)
{
    auto screen = window.make();
    QMainWindow* form = &screen->Window();
    ui::Form::Open(std::move(screen), ui::Modality::Modeless);
    support::Settle();
    return form;
}

void Close(QMainWindow* form)
{
    form->close();
    support::Settle();
}

void Press(const QMainWindow& form, const QString& caption)
{
    for (QAbstractButton* button : form.findChildren<QAbstractButton*>()) {
        if (button->text() == caption) {
            button->click();
            support::Settle();
            return;
        }
    }
    qFatal("no %s", qPrintable(caption));
}

// A new one, something typed, the solution, and its check.
void Exercise(const QMainWindow& form)
{
    Press(form, "&Continuar");
    support::Press(Qt::Key_1);
    support::Settle();
    Press(form, "&Ver solución");
    Press(form, "&Hecho");
}

const support::Window& Named(const QString& name)
{
    const auto window = std::ranges::find(support::Windows(), name, &support::Window::name);
    if (window == support::Windows().end()) {
        qFatal("no such window");
    }
    return *window;
}

double Median(std::vector<double> values)
{
    std::ranges::sort(values);
    return values.at(values.size() / 2);
}

void MeasureOpenings()
{
    constexpr int times = 20;
    std::printf("%-24s%12s%12s\n", "ms of CPU, bare figures", "first", "median");
    for (const support::Window& window : support::Windows()) {
        std::vector<double> spent;
        for (int i = 0; i < times; ++i) {
            const double before = Cpu();
            QMainWindow* form = Open(window);
            spent.push_back(Cpu() - before);
            Close(form);
        }
        std::printf("%-24s%12.2f%12.2f\n", qPrintable(window.name), spent.front(), Median(spent));
    }
}

// The counters have 16 bits: a screen is closed before they are full.
void Soak(const support::Window& window, int exercises)
{
    constexpr int perScreen = 10'000;
    constexpr int sample = 1000;
    QMainWindow* form = Open(window);
    double firstTime = 0;
    int firstMemory = 0;
    double mark = Cpu();
    for (int i = 0; i < exercises; ++i) {
        if (i % perScreen == perScreen - 1) {
            Close(form);
            form = Open(window);
        }
        if (i == exercises - sample) {
            mark = Cpu();
        }
        Exercise(*form);
        if (i == sample - 1) {
            firstTime = Cpu() - mark;
            firstMemory = Resident();
        }
    }
    const double lastTime = Cpu() - mark;
    const int growth = Resident() - firstMemory;
    Close(form);
    const int openings = exercises / 50;
    int firstOpenings = 0;
    for (int i = 0; i < openings; ++i) {
        Close(Open(window));
        firstOpenings = i == openings / 20 ? Resident() : firstOpenings;
    }
    std::printf("%-22s%14.3f%14.3f%14d%14d\n", qPrintable(window.name), firstTime / sample, lastTime / sample, growth,
                Resident() - firstOpenings);
    (void)std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv)
{
    const ui::Application application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    numeros::FijarSemilla(1);
    const QStringList arguments = QApplication::arguments();
    const QString what = arguments.value(1);
    if (what == "names") {
        for (const support::Window& window : support::Windows()) {
            if (window.name != "Form1") {
                std::printf("%s\n", qPrintable(window.name));
            }
        }
    } else if (what == "open") {
        MeasureOpenings();
    } else if (what == "exercises") {
        const QMainWindow* form = Open(Named(arguments.value(2)));
        for (int i = 0; i < arguments.value(3).toInt(); ++i) {
            Exercise(*form);
        }
    } else if (what == "readings") {
        Open(Named("Form2"));
        for (int i = 0; i < arguments.value(2).toInt(); ++i) {
            support::Press(Qt::Key_F3);
            support::Settle();
        }
    } else if (what == "soak") {
        std::printf("%-22s%14s%14s%14s%14s\n", "", "first, ms", "last, ms", "growth, KiB", "reopened, KiB");
        for (const support::Window& window : support::Windows()) {
            if (window.name != "Form1") {
                Soak(window, arguments.value(2).toInt());
            }
        }
    } else {
        qFatal("names, open, exercises, readings or soak");
    }
    return EXIT_SUCCESS;
}
