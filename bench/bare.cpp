// A bare window to measure against: a box to type into and nothing else, not a line of ours.
#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    window.setWindowTitle("bare");
    auto* box = new QLineEdit;
    window.setCentralWidget(box);
    box->setAccessibleName("Mensajes");
    window.resize(400, 60);
    window.show();
    return QApplication::exec();
}
