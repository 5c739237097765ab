#include "Application.h"

#include "Accessible.h"
#include "Dialogs.h"
#include "Entero16.h"

#include <QLibraryInfo>
#include <QLocale>

namespace ui {

Application::Application(int& argc, char** argv) : QApplication(argc, argv)
{
    setApplicationName("Kelvora");
    setDesktopFileName("kelvora");
    // Told to the screen reader as the language of the application, whatever the desktop's is.
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
    // For Qt's own texts, such as the context menus of text boxes; a system without the file has them in English.
    if (m_translator.load("qtbase_es", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        installTranslator(&m_translator);
    }
    InstallAccessibleInterfaces();
}

bool Application::notify(QObject* receiver, QEvent* event)
{
    const QEvent::Type type = event->type(); // the event may be gone when it has been handled
    bool handled = true;
    ++m_depth;
    try {
        handled = QApplication::notify(receiver, event);
    } catch (const numeros::Desbordamiento&) {
        FatalBox("Un número se ha salido del intervalo permitido, de -32768 a 32767. El programa va a cerrarse.");
        exit(EXIT_FAILURE);
    }
    --m_depth;
    if (m_depth == 0) {
        m_announcer.EventEnded(type);
    }
    return handled;
}

void End()
{
    QApplication::closeAllWindows();
    QCoreApplication::exit(EXIT_SUCCESS);
}

} // namespace ui
