#include "Dialogs.h"
#include "Support.h"

#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

using namespace support;

class tst_Dialogs : public QObject
{
    Q_OBJECT

private slots:
    void a_message_has_its_text_and_one_button()
    {
        WithDialog([] { ui::MsgBox("Una línea\r\nOtra", "Título"); },
                   [](QWidget& dialog) {
                       auto& box = dynamic_cast<QMessageBox&>(dialog);
                       QCOMPARE(box.windowTitle(), "Título");
                       QCOMPARE(box.text(), "Una línea\r\nOtra");
                       QCOMPARE(box.buttons().size(), 1);
                       QCOMPARE(box.buttons().front()->text(), "Aceptar");
                       QTest::keyClick(&dialog, Qt::Key_Return);
                   });
    }

    void an_enter_that_is_held_down_does_not_answer_a_box()
    {
        const auto hold = [](QWidget& dialog, QWidget& focus) {
            for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
                QKeyEvent held(QEvent::KeyPress, key, Qt::NoModifier, "\r", true);
                QCoreApplication::sendEvent(&focus, &held);
                QVERIFY(dialog.isVisible());
            }
            if (auto* box = qobject_cast<QLineEdit*>(&focus)) { // what else is held goes on
                QKeyEvent held(QEvent::KeyPress, Qt::Key_7, Qt::NoModifier, "7", true);
                QCoreApplication::sendEvent(box, &held);
                QCOMPARE(box->text(), "7");
            }
            QTest::keyClick(&focus, Qt::Key_Return);
        };
        WithDialog([] { ui::MsgBox("Texto"); },
                   [hold](QWidget& dialog) { hold(dialog, *dialog.findChild<QPushButton*>()); });
        WithDialog([] { ui::InputBox("Introduzca la cantidad:", "Introducir cantidad"); },
                   [hold](QWidget& dialog) { hold(dialog, *dialog.findChild<QLineEdit*>()); });
    }

    void without_a_title_it_bears_the_applications_name()
    {
        WithDialog([] { ui::MsgBox("Texto"); },
                   [](QWidget& dialog) {
                       QCOMPARE(dialog.windowTitle(), "Kelvora");
                       QTest::keyClick(&dialog, Qt::Key_Escape);
                   });
    }

    void a_question_is_answered_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<bool>("yes");
        QTest::addRow("S") << static_cast<int>(Qt::Key_S) << true;
        QTest::addRow("N") << static_cast<int>(Qt::Key_N) << false;
        QTest::addRow("Escape") << static_cast<int>(Qt::Key_Escape) << false;
    }
    void a_question_is_answered()
    {
        QFETCH(int, key);
        QFETCH(bool, yes);
        ui::Answer answer = yes ? ui::Answer::No : ui::Answer::Yes;
        WithDialog([&answer] { answer = ui::MsgBoxYesNo("¿desea continuar?", "Introducir cantidad"); },
                   [key](QWidget& dialog) {
                       auto& box = dynamic_cast<QMessageBox&>(dialog);
                       QCOMPARE(box.icon(), QMessageBox::Warning);
                       QCOMPARE(box.button(QMessageBox::Yes)->text(), "&Sí");
                       QCOMPARE(box.button(QMessageBox::No)->text(), "&No");
                       const bool escape = key == Qt::Key_Escape;
                       Press(Qt::Key(key), escape ? Qt::NoModifier : Qt::AltModifier);
                   });
        QCOMPARE(answer, yes ? ui::Answer::Yes : ui::Answer::No);
    }

    void an_input_begins_with_its_default_and_gives_what_is_typed()
    {
        std::string typed;
        WithDialog([&typed] { typed = ui::InputBox("Introduzca la cantidad:", "Introducir cantidad", "24"); },
                   [](QWidget& dialog) {
                       auto& box = dynamic_cast<QInputDialog&>(dialog);
                       QCOMPARE(box.windowTitle(), "Introducir cantidad");
                       QCOMPARE(box.labelText(), "Introduzca la cantidad:");
                       QCOMPARE(box.textValue(), "24");
                       QCOMPARE(box.okButtonText(), "Aceptar");
                       QCOMPARE(box.cancelButtonText(), "Cancelar");
                       auto* edit = dialog.findChild<QLineEdit*>();
                       QCOMPARE(QAccessible::queryAccessibleInterface(edit)->text(QAccessible::Name),
                                "Introduzca la cantidad:");
                       QTest::keyClicks(edit, "37");
                       QTest::keyClick(edit, Qt::Key_Return);
                   });
        QCOMPARE(QString::fromStdString(typed), "37");
    }

    void a_cancelled_input_is_empty()
    {
        std::string typed = "x";
        WithDialog([&typed] { typed = ui::InputBox("Introduzca valor a descomponer: ", "Introducir valor", "8"); },
                   [](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        QCOMPARE(typed, std::string());
    }

    void qt_speaks_spanish_where_its_translation_is_installed()
    {
        QCOMPARE(QLocale().name(), "es_ES");
        QCOMPARE(QCoreApplication::translate("QWidgetTextControl", "&Paste"), "&Pegar");
    }
};

KELVORA_TEST_MAIN(tst_Dialogs)
#include "tst_Dialogs.moc"
