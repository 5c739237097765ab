#include "Dialogs.h"
#include "Habits.h"
#include "SampleForm.h"
#include "Support.h"

#include <QDialogButtonBox>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QProxyStyle>
#include <QPushButton>
#include <QScopeGuard>
#include <QTimer>
#include <qpa/qwindowsysteminterface.h>

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

    void a_box_that_is_hidden_opens_again_and_is_answered_then()
    {
        ui::Answer answer = ui::Answer::No;
        WithDialog([&answer] { answer = ui::MsgBoxYesNo("¿desea continuar?"); },
                   [](QWidget& dialog) {
                       dialog.hide();
                       QTimer::singleShot(0, &dialog, [&dialog] {
                           QVERIFY(WaitActive(dialog));
                           Press(Qt::Key_Return);
                       });
                   });
        QCOMPARE(answer, ui::Answer::Yes);
    }

    void enter_answers_yes_in_whatever_order_the_desktop_has_the_buttons_data()
    {
        QTest::addColumn<int>("layout");
        QTest::addRow("Windows") << static_cast<int>(QDialogButtonBox::WinLayout);
        QTest::addRow("macOS") << static_cast<int>(QDialogButtonBox::MacLayout);
        QTest::addRow("KDE") << static_cast<int>(QDialogButtonBox::KdeLayout);
        QTest::addRow("GNOME") << static_cast<int>(QDialogButtonBox::GnomeLayout);
    }
    void enter_answers_yes_in_whatever_order_the_desktop_has_the_buttons()
    {
        class Style final : public QProxyStyle
        {
        public:
            explicit Style(int layout) : m_layout(layout) {}
            int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* data) const override
            {
                return hint == SH_DialogButtonLayout ? m_layout : QProxyStyle::styleHint(hint, option, widget, data);
            }

        private:
            int m_layout;
        };
        QFETCH(int, layout);
        const QString usual = QApplication::style()->name();
        const auto restore = qScopeGuard([&usual] { QApplication::setStyle(usual); });
        QApplication::setStyle(new Style(layout));
        ui::Answer answer = ui::Answer::No;
        QList<int> places;
        WithDialog([&answer] { answer = ui::MsgBoxYesNo("¿desea continuar?"); },
                   [&places](QWidget& dialog) {
                       auto& box = dynamic_cast<QMessageBox&>(dialog);
                       QCOMPARE(QApplication::focusWidget(), box.button(QMessageBox::Yes));
                       places = {box.button(QMessageBox::Yes)->x(), box.button(QMessageBox::No)->x()};
                       Press(Qt::Key_Return);
                   });
        QCOMPARE(answer, ui::Answer::Yes);
        const bool noFirst = layout == QDialogButtonBox::GnomeLayout || layout == QDialogButtonBox::MacLayout;
        QCOMPARE(places[1] < places[0], noFirst);
    }

    void what_was_just_said_is_told_before_the_text_and_not_again()
    {
        sample::Sample form;
        form.Open();
        QVERIFY(WaitActive(*form.Window()));
        Ear ear;
        QString label;
        const auto show = [&] {
            ui::MsgBox("El producto");
            ui::MsgBox("Otra cosa");
        };
        form.Form().The<ui::Button>("CbUno").OnClick = [&](int) {
            form.Form().The<ui::TextBox>("Text3").Text(" Resultado incorrecto");
            show();
        };
        QStringList told;
        QStringList before; // said before the box had the focus
        const auto answer = [&](QWidget& dialog) {
            for (const QString& heard : Ear::TakeSoFar()) {
                before += heard.startsWith("SAY") ? QStringList(heard) : QStringList();
            }
            QCOMPARE(dialog.parentWidget(), form.Window());
            const auto& text = Child<QLabel>(dialog, "qt_msgbox_label");
            told += QAccessible::queryAccessibleInterface(&const_cast<QLabel&>(text))->text(QAccessible::Name);
            told += text.text();
            QTest::keyClick(&dialog, Qt::Key_Return);
        };
        WithDialogs([&form] { Child<QPushButton>(*form.Window(), "CbUno").click(); }, {answer, answer});
        WithDialog([] { ui::InputBox("Introduzca la cantidad:", "Introducir cantidad"); },
                   [&form](QWidget& dialog) {
                       QCOMPARE(dialog.parentWidget(), form.Window());
                       QTest::keyClick(&dialog, Qt::Key_Escape);
                   });
        const QString withText = ui::ReaderHabits().boxesCutMessagesOff ? "Resultado incorrecto. " : "";
        QCOMPARE(told, QStringList({withText + "El producto", "El producto", "Otra cosa", "Otra cosa"}));
        QCOMPARE(before,
                 ui::ReaderHabits().boxesCutMessagesOff ? QStringList() : QStringList("SAY  Resultado incorrecto"));
        form.Window()->activateWindow();
        QVERIFY(WaitActive(*form.Window()));
        QCOMPARE(ear.TakeSaid(), QStringList());
    }

    void a_reader_that_gets_keys_beside_the_program_has_a_moment_before_a_box_opens_data()
    {
        QTest::addColumn<bool>("readerIsOn");
        QTest::addColumn<std::function<void()>>("open");
        const std::function message = [] { ui::MsgBox("Texto"); };
        const std::function input = [] { ui::InputBox("Introduzca la cantidad:", "Introducir cantidad"); };
        QTest::addRow("message") << true << std::function<void()>(message);
        QTest::addRow("input") << true << std::function<void()>(input);
        QTest::addRow("no reader") << false << std::function<void()>(message);
    }
    void a_reader_that_gets_keys_beside_the_program_has_a_moment_before_a_box_opens()
    {
        QFETCH(bool, readerIsOn);
        QFETCH(std::function<void()>, open);
        SetReader(readerIsOn);
        const auto restore = qScopeGuard([] { SetReader(true); });
        bool blocked = false;
        bool closed = false;
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, &look, [&] {
            QWidget* modal = QApplication::activeModalWidget();
            if (modal != nullptr && modal->testAttribute(Qt::WA_DontShowOnScreen)) {
                blocked = true;
                closed = closed || modal->close(); // by nothing
            }
        });
        look.start(1);
        WithDialog(open, [](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        QCOMPARE(blocked, readerIsOn && ui::ReaderHabits().keysComeBesideTheProgram);
        QVERIFY(!closed);
    }

    void keys_that_come_while_a_box_is_about_to_open_do_nothing()
    {
        sample::Sample form;
        form.Open();
        QVERIFY(WaitActive(*form.Window()));
        int clicks = 0;
        ui::TextBox& box = form.Form().All<ui::TextBox>("Text1")[0];
        form.Form().The<ui::Button>("CbUno").OnClick = [&](int) {
            ++clicks;
            // Keys that a screen reader was asked about come back while the box has not opened yet.
            for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
                QCoreApplication::postEvent(form.Window()->windowHandle(),
                                            new QKeyEvent(type, Qt::Key_Space, Qt::NoModifier, " "));
            }
            QWindowSystemInterface::handleCloseEvent(form.Window()->windowHandle());
            ui::MsgBox("Texto");
        };
        form.Form().The<ui::Button>("CbUno").SetFocus();
        WithDialog([&form] { Child<QPushButton>(*form.Window(), "CbUno").click(); },
                   [](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
        QCOMPARE(clicks, 1);
        QVERIFY(form.Window()->isVisible());
        QCOMPARE(box.Text(), std::string("uno"));
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
