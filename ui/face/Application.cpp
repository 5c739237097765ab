#include "Application.h"

#include "Accessible.h"
#include "Announcer.h"
#include "KeyOrder.h"
#include "Look.h"
#include "Menu.h"
#include "Timing.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFontDatabase>
#include <QIcon>
#include <QKeyEvent>
#include <QLibraryInfo>
#include <QLocale>
#include <QMutex>
#include <QResource>
#include <QThread>
#include <QTranslator>
#include <QWindow>

#include <cstdio>
#include <cstdlib>
#include <tuple>
#include <utility>
#include <vector>

namespace ui {

namespace {

// Whether a finger has just pressed a key, of which nothing in the program has heard yet.
bool IsNewKey(const QObject& receiver, const QEvent& event)
{
    return event.type() == QEvent::ShortcutOverride && receiver.isWindowType() && event.spontaneous() &&
           !static_cast<const QKeyEvent&>(event).isAutoRepeat();
}

// Where the program carries fonts, so that it looks the same on every system.
constexpr const char* ownFonts = ":/fonts/";

void UseOwnFonts()
{
    if (!QFile::exists(ownFonts)) {
        return;
    }
    for (const QString& file : QDir(ownFonts).entryList()) {
        const QResource font(ownFonts + file);
        // The bytes of the program itself, not a copy of them.
        QFontDatabase::addApplicationFontFromData(
            QByteArray::fromRawData(reinterpret_cast<const char*>(font.data()), static_cast<qsizetype>(font.size())));
    }
    QFont type = QApplication::font(); // of menus and boxes, in the size that the desktop has
    type.setFamilies({"DejaVu Sans"});
    QApplication::setFont(type);
}

} // namespace

class Application::Dispatch final : public QApplication
{
public:
    Dispatch(int& argc, char** argv);

    bool notify(QObject* receiver, QEvent* event) override;

protected:
    bool event(QEvent* event) override;

private:
    void MakeSelectionLegible();

    KeyOrder m_keys;
    const bool m_isWayland = platformName().startsWith("wayland");
    int m_depth = 0;
    Announcer m_announcer;
    QTranslator m_translator;
};

Application::Dispatch::Dispatch(int& argc, char** argv) : QApplication(argc, argv)
{
    setApplicationName("Kelvora");
    setDesktopFileName("org.kelvora.kelvora");
    setWindowIcon(QIcon(":/kelvora.png")); // Wayland takes that of the desktop file
    UseOwnFonts();
    // Told to the screen reader as the language of the application, whatever the desktop's is.
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
    // For Qt's own texts, such as the context menus of text boxes; a system without the file has them in English, and
    // editions that bring their own Qt carry it.
    if (m_translator.load("qtbase_es", QLibraryInfo::path(QLibraryInfo::TranslationsPath)) ||
        m_translator.load(":/qtbase_es")) {
        installTranslator(&m_translator);
    }
    SetUpAccessibility();
    MakeSelectionLegible();
}

bool Application::Dispatch::event(QEvent* event)
{
    const bool handled = QApplication::event(event);
    if (event->type() == QEvent::ApplicationPaletteChange) {
        MakeSelectionLegible();
    }
    return handled;
}

bool Application::Dispatch::notify(QObject* receiver, QEvent* event)
{
    if (receiver->thread() != thread()) { // Qt has threads of its own
        return QApplication::notify(receiver, event);
    }
    if (m_isWayland && event->type() == QEvent::Show) {
        OpenWithoutGrab(*receiver);
    }
    if (m_isWayland && event->type() == QEvent::FocusAboutToChange && receiver->isWindowType()) {
        CloseMenus(); // which without a grab would stay open in front of another window, and keep Qt from noticing that
    }
    if (m_isWayland && IsNewKey(*receiver, *event)) {
        LetReaderHearKey();
    }
    const QEvent::Type type = event->type(); // the event may be gone when it has been handled
    if (m_keys.Postpones(*receiver, *event)) {
        return true;
    }
    ++m_depth;
    const bool handled = QApplication::notify(receiver, event);
    --m_depth;
    if (m_depth == 0) {
        m_announcer.EventEnded(type);
    }
    return handled;
}

// Most themes have white type on a light blue that it can hardly be read on.
void Application::Dispatch::MakeSelectionLegible()
{
    QPalette colors = palette(); // those that the theme gives are not set here, and go on following it
    const QColor type = colors.color(QPalette::HighlightedText);
    const QColor legible = ReadableOn(colors.color(QPalette::Highlight), type);
    if (legible != type) {
        colors.setColor(QPalette::HighlightedText, legible);
        setPalette(colors);
    }
}

namespace {

// While it lives, what Qt warns of is held back; where it ends the program, as it does without a display, a line in
// Spanish takes the place of all that and of an abort. Afterwards the warnings come, of what was missing but not
// missed.
class Beginning final
{
public:
    Beginning() { s_usual = qInstallMessageHandler(Hear); }
    ~Beginning()
    {
        qInstallMessageHandler(s_usual);
        const QMutexLocker locker(&s_mutex);
        for (const auto& [type, category, text] : std::exchange(s_warnings, {})) {
            s_usual(type, QMessageLogContext(nullptr, 0, nullptr, category), text);
        }
    }
    Beginning(const Beginning&) = delete;
    Beginning& operator=(const Beginning&) = delete;

private:
    static void Hear(QtMsgType type, const QMessageLogContext& context, const QString& text)
    {
        const QMutexLocker locker(&s_mutex); // Qt has threads of its own
        if (type == QtFatalMsg) {
            std::fputs(
                "kelvora: no se puede abrir ninguna ventana: no hay pantalla, o falta la parte de Qt que la usa\n",
                stderr);
            std::_Exit(EXIT_FAILURE);
        } else if (type == QtDebugMsg) { // somebody has asked for it
            s_usual(type, context, text);
        } else {
            s_warnings.emplace_back(type, context.category, text);
        }
    }

    inline static QtMessageHandler s_usual = nullptr;
    inline static QMutex s_mutex;
    inline static std::vector<std::tuple<QtMsgType, const char*, QString>> s_warnings;
};

} // namespace

Application::Application(int& argc, char** argv)
    : m_dispatch([&] {
          const Beginning beginning;
          return std::make_unique<Dispatch>(argc, argv);
      }())
{
}

Application::~Application() = default;

int Application::Run()
{
    const int status = Dispatch::exec();
    QWidgetList windows = QApplication::topLevelWidgets(); // open still, where a fatal error is the end
    windows.removeIf([](const QWidget* window) { return window->parent() != nullptr; });
    qDeleteAll(windows);
    return status;
}

void End()
{
    QApplication::closeAllWindows();
    QCoreApplication::exit(EXIT_SUCCESS);
}

} // namespace ui
