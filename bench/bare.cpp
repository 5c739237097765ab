// A bare window to measure against: its only handler sets a text and announces it at F2.
#include "Accessible.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMainWindow>

namespace {

class Window final : public QMainWindow
{
public:
    Window() : m_message(*new QLineEdit)
    {
        setWindowTitle("bare");
        setCentralWidget(&m_message);
        m_message.setAccessibleName("Mensajes");
        m_message.setReadOnly(true);
        m_message.setFocus();
    }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() == Qt::Key_F2) {
            const QString text = QString("tres cuartos %1").arg(++m_count);
            m_message.setText(text);
            ui::Announce(m_message, text);
        }
    }

private:
    QLineEdit& m_message;
    int m_count = 0;
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    ui::SetUpAccessibility();
    Window window;
    window.resize(400, 60);
    window.show();
    return QApplication::exec();
}
