// Prints exercises of every screen and every choice of its options, as they are seen and heard, to be held against
// those of another state of the program: the first forty whole, then a sum of all after each hundred. Arguments: how
// many of each choice; of which screen (the index of its button), or all.
#include "Application.h"
#include "Azar.h"
#include "Form1.h"
#include "Pantallas.h"
#include "Support.h"

#include <QAbstractButton>
#include <QActionGroup>
#include <QCryptographicHash>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTimer>

#include <cstdio>

namespace {

QStringList boxes;

// Answers the boxes that open meanwhile.
class Answers final : public QObject
{
public:
    Answers()
    {
        connect(&m_timer, &QTimer::timeout, this, [] {
            auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (box != nullptr) {
                const auto* message = qobject_cast<QMessageBox*>(box);
                boxes += box->windowTitle() + '/' + (message == nullptr ? "" : message->text());
                box->accept();
            }
        });
        m_timer.start(0);
    }

private:
    QTimer m_timer;
};

QMainWindow& Front()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        auto* screen = qobject_cast<QMainWindow*>(window);
        if (screen != nullptr && screen->isVisible() && screen->objectName() != "Form1") {
            return *screen;
        }
    }
    qFatal("no screen");
}

QMainWindow& Menu()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == "Form1") {
            return *qobject_cast<QMainWindow*>(window);
        }
    }
    qFatal("no menu");
}

QString Shown(const QMainWindow& screen)
{
    QStringList shown;
    for (const QWidget* widget : screen.centralWidget()->findChildren<QWidget*>()) {
        if (widget->objectName().isEmpty() || widget->objectName().startsWith("qt_")) {
            continue;
        }
        QString text;
        if (const auto* box = qobject_cast<const QLineEdit*>(widget)) {
            text = box->text() + '[' + box->selectedText();
        } else if (const auto* lines = qobject_cast<const QPlainTextEdit*>(widget)) {
            text = lines->toPlainText();
        } else if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
            text = button->text() + '[' + (button->isVisible() ? button->accessibleName() : QString());
        } else if (const auto* label = qobject_cast<const QLabel*>(widget)) {
            text = label->text();
        }
        const QRect at = widget->geometry();
        shown += widget->objectName() + ':' + text +
                 QString(":%1,%2,%3,%4").arg(at.x()).arg(at.y()).arg(at.width()).arg(at.height()) +
                 (widget->isVisible() ? "" : "-") + (widget->isEnabled() ? "" : "!");
    }
    return shown.join('|').replace('\n', "\\n").replace('\r', "\\r");
}

class Dump
{
public:
    Dump(QString name, int exercises) : m_name(std::move(name)), m_exercises(exercises) {}

    void Run(QMainWindow& screen)
    {
        std::printf("== %s\n", qPrintable(m_name));
        Note(screen, "opened");
        for (int i = 0; i < m_exercises; ++i) {
            m_raw = i < 40;
            Press(screen, "Command2(0)");
            Note(screen, "new");
            Use(screen, i);
            Press(screen, "Command2(2)");
            Note(screen, "solution");
            Press(screen, screen.findChild<QWidget*>("CBHecho") != nullptr ? "CBHecho" : "Command1");
            Note(screen, "checked");
            if (i % 100 == 99) {
                std::printf("%d %s\n", i + 1, m_hash.result().toHex().constData());
            }
        }
        (void)std::fflush(stdout);
    }

private:
    void Use(QMainWindow& screen, int i)
    {
        // Something of the screen's own buttons.
        QList<QPushButton*> own;
        for (auto* button : screen.centralWidget()->findChildren<QPushButton*>()) {
            const QString name = button->objectName();
            if (button->isVisible() && name != "Command1" && name != "CBHecho" && !name.startsWith("Command2")) {
                own += button;
            }
        }
        if (!own.isEmpty()) {
            own.at(i % own.size())->click();
            Note(screen, "pressed");
        }
        if (i % 5 == 4) {
            QList<QLineEdit*> open;
            for (auto* box : screen.centralWidget()->findChildren<QLineEdit*>()) {
                if (box->isVisible() && !box->isReadOnly() && box->objectName() != "TbValor") {
                    open += box;
                }
            }
            for (auto* box : open) {
                box->setFocus();
                QTest::keyClicks(box, QString::number(i / 5 % 13 - 1));
                Note(screen, "typed");
            }
            for (const Qt::Key key : {Qt::Key_F2, Qt::Key_F3, Qt::Key_F4, Qt::Key_L}) {
                if (QWidget* focus = QApplication::focusWidget()) {
                    QTest::keyClick(focus, key);
                    Note(screen, "key");
                }
            }
            Press(screen, screen.findChild<QWidget*>("CBHecho") != nullptr ? "CBHecho" : "Command1");
            Note(screen, "answered");
            if (i % 10 == 9) {
                Press(screen, "Command2(1)");
                Note(screen, "cleared");
            }
        }
    }

    static void Press(const QMainWindow& screen, const char* name)
    {
        support::Child<QAbstractButton>(screen, name).click();
    }

    void Note(const QMainWindow& screen, const char* when)
    {
        const QString line = QString("%1 @%2 %3 ## %4 ## %5")
                                 .arg(when, support::Focus(), Shown(screen), m_ear.Take().join('/'), boxes.join('/'));
        boxes.clear();
        m_hash.addData(line.toUtf8());
        if (m_raw) {
            std::puts(qPrintable(line));
        }
    }

    QString m_name;
    int m_exercises;
    bool m_raw = true;
    QCryptographicHash m_hash{QCryptographicHash::Sha1};
    support::Ear m_ear;
};

void Close(QMainWindow& screen)
{
    screen.close();
    support::Settle();
}

// Every way to choose one entry of each list of options.
QList<QList<int>> Choices(const QList<QActionGroup*>& lists)
{
    QList<QList<int>> choices{{}};
    for (const QActionGroup* list : lists) {
        QList<QList<int>> longer;
        for (const QList<int>& choice : choices) {
            for (int i = 0; i < list->actions().size(); ++i) {
                longer += choice + QList<int>{i};
            }
        }
        choices = longer;
    }
    return choices;
}

QMainWindow& Open(int index)
{
    support::Child<QAbstractButton>(Menu(), QString("Command1(%1)").arg(index)).click();
    support::Settle();
    QMainWindow& screen = Front();
    support::WaitActive(screen);
    return screen;
}

} // namespace

int main(int argc, char** argv)
{
    const ui::Application application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    support::SetReader(true);
    numeros::FijarSemilla(7);
    ui::Form::Open(std::make_unique<app::Form1>(), ui::Modality::Modeless);
    support::Settle();
    const Answers answers;
    const int exercises = QApplication::arguments().value(1, "100").toInt();
    const int only = QApplication::arguments().value(2, "-1").toInt();
    for (int index = 0; index < std::ssize(app::pantallas); ++index) {
        if (only >= 0 && index != only) {
            continue;
        }
        QMainWindow* screen = &Open(index);
        const auto choices = Choices(screen->findChildren<QActionGroup*>());
        Close(*screen);
        for (const QList<int>& choice : choices) {
            screen = &Open(index);
            QString name = screen->objectName();
            const auto lists = screen->findChildren<QActionGroup*>();
            for (qsizetype i = 0; i < lists.size(); ++i) {
                lists[i]->actions().at(choice[i])->trigger();
                name += " " + lists[i]->actions().at(choice[i])->objectName();
            }
            support::Settle();
            Dump(name, exercises).Run(*screen);
            Close(*screen);
        }
    }
    return EXIT_SUCCESS;
}
