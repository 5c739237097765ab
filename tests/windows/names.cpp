// Prints, for the file that is named, the title of each window and the object names of all that can have the focus in
// it, a line each.
#include "Application.h"
#include "Windows.h"

#include <QApplication>
#include <QFile>
#include <QMainWindow>

int main(int argc, char** argv)
{
    const ui::Application application(argc, argv);
    QFile file(QApplication::arguments().value(1));
    if (!file.open(QIODevice::WriteOnly)) {
        return EXIT_FAILURE;
    }
    for (const support::Window& window : support::Windows()) {
        auto screen = window.make();
        QMainWindow* form = &screen->Window();
        ui::Form::Open(std::move(screen), ui::Modality::Modeless);
        QStringList line{form->windowTitle()};
        for (const QWidget* widget : form->findChildren<QWidget*>()) {
            if (widget->focusPolicy() != Qt::NoFocus && widget->isVisible() && !widget->objectName().isEmpty()) {
                line += widget->objectName();
            }
        }
        file.write(line.join('\t').toUtf8() + '\n');
        delete form;
    }
    return EXIT_SUCCESS;
}
