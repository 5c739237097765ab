#include "Draws.h"
#include "FormCantidad.h"
#include "Screen.h"

#include <QInputDialog>
#include <QMessageBox>
#include <QTime>

using namespace support;

namespace {

const QString question = "La división de la cantidad entre el denominador no es exacta ¿desea continuar?";

// An input box with this title, prompt and offer; `answer` is typed in its place.
DialogAnswer Input(const QString& title, const QString& prompt, const QString& offered, const QString& answer)
{
    return [=](QWidget& dialog) {
        auto& box = dynamic_cast<QInputDialog&>(dialog);
        QCOMPARE(box.windowTitle(), title);
        QCOMPARE(box.labelText(), prompt);
        QCOMPARE(box.textValue(), offered);
        box.setTextValue(answer);
        QTest::keyClick(&dialog, Qt::Key_Return);
    };
}

DialogAnswer Cancel()
{
    return [](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); };
}

DialogAnswer Question(const QString& title, bool yes)
{
    return [=](QWidget& dialog) {
        auto& box = dynamic_cast<QMessageBox&>(dialog);
        QCOMPARE(box.windowTitle(), title);
        QCOMPARE(box.text(), question);
        QCOMPARE(box.icon(), QMessageBox::Warning);
        QTest::mouseClick(box.button(yes ? QMessageBox::Yes : QMessageBox::No), Qt::LeftButton);
    };
}

} // namespace

class tst_FormCantidad : public QObject, private Screen
{
    Q_OBJECT

private:
    int Number(int index) const { return Member<QLineEdit>("Text2", index).text().toInt(); }
    QString Exercise() const { return QString("%1/%2 de %3").arg(Number(0)).arg(Number(1)).arg(Number(2)); }

    // The pupil enters a fraction, and a quantity of which any remainder is accepted.
    void Enter(int numerator, int denominator, int quantity) const
    {
        const auto yes = [](QWidget& dialog) {
            auto* box = qobject_cast<QMessageBox*>(&dialog);
            QVERIFY(box != nullptr);
            QTest::mouseClick(box->button(QMessageBox::Yes), Qt::LeftButton);
        };
        const auto type = [](int value) {
            return [value](QWidget& dialog) {
                dynamic_cast<QInputDialog&>(dialog).setTextValue(QString::number(value));
                QTest::keyClick(&dialog, Qt::Key_Return);
            };
        };
        std::vector<DialogAnswer> fraction{type(numerator), type(denominator)};
        if (Number(2) % denominator != 0) {
            fraction.emplace_back(yes);
        }
        WithDialogs([this] { Choose("MnuOpcFrac"); }, fraction);
        std::vector<DialogAnswer> amount{type(quantity)};
        if (quantity % denominator != 0) {
            amount.emplace_back(yes);
        }
        WithDialogs([this] { Choose("MnuOpcCan"); }, amount);
        QCOMPARE(Exercise(), QString("%1/%2 de %3").arg(numerator).arg(denominator).arg(quantity));
        Activate();
    }

    QStringList Verdict(const QString& answer) const
    {
        Box("Text6").setFocus();
        Box("Text6").setText(answer);
        m_ear->Take();
        Press(Qt::Key_Return);
        return m_ear->TakeSaid();
    }

private slots:
    void init()
    {
        numeros::FijarSemilla(7);
        OpenScreen(std::make_unique<ejercicios::FormCantidad>());
    }
    void cleanup() { CloseScreen(); }

    // Opening

    void opens_with_the_exercise_heard()
    {
        QCOMPARE(m_form->windowTitle(), "Fracción de una cantidad");
        QCOMPARE(m_ear->Take(), QStringList({"FOCUS Text1", "SAY " + Text("TbTexto")}));
        QCOMPARE(Text("Text1"), "CALCULA");
        QCOMPARE(Text("Text3"), "de");
        QCOMPARE(Text("Text5"), "=");
        QCOMPARE(Text("Text6") + Text("Text7"), "");
        QCOMPARE(Text("tbResultados"), "Ejercicios:  0; Errores:  0");
        QVERIFY(Entry("MnuOpcDenLis(0)").isChecked());
    }

    void only_the_answer_accepts_typing()
    {
        for (const QLineEdit* box : m_form->findChildren<QLineEdit*>()) {
            QCOMPARE(box->isReadOnly(), box->objectName() != "Text6");
        }
    }

    // Generation

    void draws_by_its_rule_data()
    {
        QTest::addColumn<int>("option");
        QTest::addColumn<int>("limit");
        QTest::addRow("to 10") << 0 << 10;
        QTest::addRow("to 20") << 1 << 20;
    }
    void draws_by_its_rule()
    {
        QFETCH(int, option);
        QFETCH(int, limit);
        Choose(QString("MnuOpcDenLis(%1)").arg(option));
        const auto rule = [limit] {
            const auto [numerator, denominator, quantity] = reglas::FraccionDeCantidad::Sortear(limit);
            return QString("%1/%2 de %3").arg(numerator.Valor()).arg(denominator.Valor()).arg(quantity.Valor());
        };
        VerifyDraws(20, rule, [this] { return Exercise(); });
    }

    void denominators_go_up_to_ten_until_an_option_is_chosen()
    {
        DrawGreatest();
        Continue();
        QCOMPARE(Number(1), 10);
    }

    void an_option_waits_for_the_next_exercise()
    {
        const QString before = Exercise();
        Choose("MnuOpcDenLis(1)");
        QCOMPARE(Exercise(), before);
        QVERIFY(Entry("MnuOpcDenLis(1)").isChecked() && !Entry("MnuOpcDenLis(0)").isChecked());
        Choose("MnuOpcDenLis(1)"); // the checked one again
        QVERIFY(Entry("MnuOpcDenLis(1)").isChecked() && !Entry("MnuOpcDenLis(0)").isChecked());
        bool large = false;
        for (int i = 0; i < 100; ++i) {
            Continue();
            large = large || Number(1) > 10;
        }
        QVERIFY(large);
        Choose("MnuOpcDenLis(0)");
        for (int i = 0; i < 100; ++i) {
            Continue();
            QVERIFY(Number(1) <= 10);
        }
    }

    void the_seed_is_the_time_of_day()
    {
        VerifySeedOfTheDay([] { return std::make_unique<ejercicios::FormCantidad>(); }, [this] { return Exercise(); });
    }

    // Reading

    void the_reading_has_two_blanks_before_de_data()
    {
        QTest::addColumn<int>("numerator");
        QTest::addColumn<int>("denominator");
        QTest::addColumn<int>("quantity");
        QTest::addColumn<QString>("words");
        QTest::addRow("3/4") << 3 << 4 << 20 << "tres cuartos  de veinte";
        QTest::addRow("1/2") << 1 << 2 << 10 << "un medio  de diez";
        QTest::addRow("0/5") << 0 << 5 << 10 << "cero quinto de diez";
        QTest::addRow("2/16") << 2 << 16 << 32 << "dos dieciseisavos  de treinta y dos";
        QTest::addRow("7/20") << 7 << 20 << 100 << "siete veinteavos  de cien";
        QTest::addRow("2/25") << 2 << 25 << 1000 << "dos veintiquintos  de mil ";
        QTest::addRow("3/6") << 3 << 6 << 0 << "tres Sextos  de cero";
    }
    void the_reading_has_two_blanks_before_de()
    {
        QFETCH(int, numerator);
        QFETCH(int, denominator);
        QFETCH(int, quantity);
        QFETCH(QString, words);
        Enter(numerator, denominator, quantity);
        QCOMPARE(Text("TbTexto"), words);
    }

    void reading_again_puts_a_blank_in_front_and_takes_it_away()
    {
        Enter(3, 4, 20);
        Box("Text6").setFocus();
        m_ear->Take();
        Press(Qt::Key_F1);
        QCOMPARE(m_ear->TakeSaid(), QStringList(" tres cuartos  de veinte"));
        Press(Qt::Key_F1);
        QCOMPARE(m_ear->TakeSaid(), QStringList("tres cuartos  de veinte"));
        Choose("MnuOpcLee");
        QCOMPARE(m_ear->TakeSaid(), QStringList(" tres cuartos  de veinte"));
        QCOMPARE(Focus(), "Text6");
    }

    // Checking

    void judges_by_exact_equality_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("right");
        const auto row = [](const char* answer, bool right) { QTest::newRow(answer) << answer << right; };
        row("15", true);
        row("15.0", true);
        row("15,0", true); // the comma ends the number
        row(" 15 ", true);
        row("15 peras", true);
        row("+15", true);
        row("15.1", false);
        row("-15", false);
        row("30/2", false);
        row("", false);
        row("quince", false);
    }
    void judges_by_exact_equality()
    {
        QFETCH(QString, answer);
        QFETCH(bool, right);
        Enter(3, 4, 20);
        QCOMPARE(Verdict(answer), QStringList(right ? "resultado correcto" : "Resultado incorrecto"));
        QCOMPARE(Text("tbResultados"), right ? "Ejercicios:  1; Errores:  0" : "Ejercicios:  1; Errores:  1");
        QCOMPARE(Focus(), right ? "Command2(0)" : "Text6");
        if (!right) {
            QCOMPARE(Box("Text6").selectedText(), answer);
        }
    }

    void nothing_answers_a_quantity_of_zero()
    {
        Enter(3, 4, 0);
        QCOMPARE(Verdict(""), QStringList("resultado correcto"));
    }

    void a_repeated_verdict_is_the_same_text_and_heard_again()
    {
        Enter(3, 4, 20);
        Box("Text6").setText("1");
        m_ear->Take();
        Button("Command1").click();
        QCOMPARE(m_ear->TakeSaid(), QStringList("Resultado incorrecto"));
        Button("Command1").click();
        QCOMPARE(m_ear->TakeSaid(), QStringList("Resultado incorrecto"));
        QCOMPARE(Text("Text7"), "Resultado incorrecto");
    }

    void wrong_answers_always_count_and_a_right_one_once()
    {
        Enter(3, 4, 20);
        Verdict("1");
        Verdict("2");
        Verdict("15");
        QCOMPARE(Text("tbResultados"), "Ejercicios:  3; Errores:  2");
        Verdict("15");
        QCOMPARE(Text("tbResultados"), "Ejercicios:  3; Errores:  2");
        Verdict("2"); // though the exercise no longer counts
        QCOMPARE(Text("tbResultados"), "Ejercicios:  4; Errores:  3");
        Verdict("15");
        QCOMPARE(Text("tbResultados"), "Ejercicios:  4; Errores:  3");
        Continue();
        Enter(3, 4, 20);
        Verdict("15");
        QCOMPARE(Text("tbResultados"), "Ejercicios:  5; Errores:  3");
    }

    void an_own_exercise_after_a_right_answer_does_not_count_again()
    {
        Enter(3, 4, 20);
        Verdict("15");
        Box("Text6").setText("x");
        Enter(1, 4, 20);
        QCOMPARE(Text("Text6"), "x");
        QCOMPARE(Text("Text7"), "resultado correcto"); // both are left as they were
        Verdict("5");
        QCOMPARE(Text("tbResultados"), "Ejercicios:  1; Errores:  0");
    }

    void keys_in_the_answer_empty_the_verdict()
    {
        Enter(3, 4, 20);
        for (const Qt::Key key : {Qt::Key_7, Qt::Key_A, Qt::Key_Backspace, Qt::Key_Escape}) {
            Verdict("1");
            Press(key);
            QCOMPARE(Text("Text7"), "");
        }
        Verdict("1");
        Press(Qt::Key_Left);
        QCOMPARE(Text("Text7"), "Resultado incorrecto");
        Box("TbTexto").setFocus();
        Type("7");
        QCOMPARE(Text("Text7"), "Resultado incorrecto");
        QCOMPARE(m_ear->TakeSaid(), QStringList("solo lectura")); // emptying has said nothing
    }

    void enter_checks_in_the_answer_alone()
    {
        for (const char* name : {"Text1", "Text2(0)", "TbTexto", "Text7"}) {
            Box(name).setFocus();
            Press(Qt::Key_Return);
        }
        QCOMPARE(Text("tbResultados"), "Ejercicios:  0; Errores:  0");
        Box("Text6").setFocus();
        Press(Qt::Key_Enter);
        QCOMPARE(Text("tbResultados"), "Ejercicios:  1; Errores:  1");
    }

    void the_verdict_is_heard_after_the_focus()
    {
        Enter(3, 4, 20);
        Box("Text6").setText("1");
        Button("Command2(1)").setFocus();
        m_ear->Take();
        Press(Qt::Key_H, Qt::AltModifier);
        QCOMPARE(m_ear->Take(), QStringList({"FOCUS Command1", "FOCUS Text6", "SAY Resultado incorrecto"}));
        Box("Text6").setText("15");
        Press(Qt::Key_H, Qt::AltModifier);
        QCOMPARE(m_ear->Take(), QStringList({"FOCUS Command1", "FOCUS Command2(0)", "SAY resultado correcto"}));
    }

    // The buttons

    void continue_brings_a_new_exercise()
    {
        Verdict("x");
        m_ear->Take();
        Press(Qt::Key_C, Qt::AltModifier);
        QCOMPARE(m_ear->Take(), QStringList({"FOCUS Command2(0)", "FOCUS Text6", "SAY " + Text("TbTexto")}));
        QCOMPARE(Text("Text6") + Text("Text7"), "");
        QCOMPARE(Text("tbResultados"), "Ejercicios:  1; Errores:  1");
    }

    void clear_empties_answer_and_verdict()
    {
        const QString exercise = Exercise();
        Verdict("x");
        m_ear->Take();
        Press(Qt::Key_B, Qt::AltModifier);
        QCOMPARE(m_ear->Take(), QStringList({"FOCUS Command2(1)", "FOCUS Text6", "SAY Resultado"}));
        QCOMPARE(Text("Text6") + Text("Text7"), "");
        QCOMPARE(Exercise(), exercise);
        QCOMPARE(Text("tbResultados"), "Ejercicios:  1; Errores:  1");
    }

    void the_solution_is_shown_selected_and_no_longer_counts()
    {
        Enter(3, 4, 20);
        Verdict("1");
        m_ear->Take();
        Press(Qt::Key_V, Qt::AltModifier);
        QCOMPARE(m_ear->Take(), QStringList({"FOCUS Command2(2)", "FOCUS Text6", "SAY Resultado 15"}));
        QCOMPARE(Text("Text6"), "15");
        QCOMPARE(Box("Text6").selectedText(), "15");
        QCOMPARE(Text("Text7"), "Resultado incorrecto");
        QCOMPARE(Text("tbResultados"), "Ejercicios:  1; Errores:  1");
        Choose("MnuOpcDenLis(1)"); // an option changes nothing about that
        QCOMPARE(Verdict("15"), QStringList("resultado correcto"));
        QCOMPARE(Text("tbResultados"), "Ejercicios:  1; Errores:  1");
    }

    void clearing_changes_nothing_about_the_counting()
    {
        Enter(3, 4, 20);
        Verdict("15");
        Click("Command2(1)");
        Verdict("15");
        QCOMPARE(Text("tbResultados"), "Ejercicios:  1; Errores:  0"); // counted already
        Continue();
        Enter(3, 4, 20);
        Click("Command2(1)");
        Verdict("15");
        QCOMPARE(Text("tbResultados"), "Ejercicios:  2; Errores:  0"); // not yet
    }

    void a_solution_with_decimals_is_cut_to_five_characters()
    {
        const QString point = qEnvironmentVariable("LC_ALL").startsWith("es") ? "," : ".";
        Enter(1, 3, 7);
        Click("Command2(2)");
        QCOMPARE(Text("Text6"), "2" + point + "333");
        Press(Qt::Key_Return); // what is shown is itself no answer
        QCOMPARE(Text("Text7"), "Resultado incorrecto");
        Enter(1, 2, 7);
        Click("Command2(2)");
        QCOMPARE(Text("Text6"), "3" + point + "5");
        Enter(1, 8, 1);
        Click("Command2(2)");
        QCOMPARE(Text("Text6"), "0" + point + "125");
        Enter(1, 3, 32767);
        Click("Command2(2)");
        QCOMPARE(Text("Text6"), "10922");
    }

    void every_drawn_exercise_has_its_whole_solution()
    {
        Choose("MnuOpcDenLis(1)");
        for (int i = 0; i < 40; ++i) {
            Continue();
            Button("Command2(2)").click();
            QCOMPARE(Text("Text6").toInt() * Number(1), Number(2) * Number(0));
            Press(Qt::Key_Return);
            QCOMPARE(Text("Text7"), "resultado correcto");
        }
    }

    // Keys

    void control_or_alt_and_r_lead_to_the_answer()
    {
        for (const char* from : {"Text1", "Command2(2)", "tbResultados", "Text6"}) {
            for (const Qt::KeyboardModifiers held :
                 {Qt::KeyboardModifiers(Qt::ControlModifier), Qt::KeyboardModifiers(Qt::AltModifier),
                  Qt::ControlModifier | Qt::ShiftModifier}) {
                Child<QWidget>(*m_form, from).setFocus();
                Press(Qt::Key_R, held);
                QCOMPARE(Focus(), "Text6");
                QCOMPARE(Text("Text6"), "");
            }
        }
        Box("Text1").setFocus();
        Press(Qt::Key_R);
        Press(Qt::Key_R, Qt::ShiftModifier);
        QCOMPARE(Focus(), "Text1");
        Box("Text6").setFocus();
        Press(Qt::Key_R);
        QCOMPARE(Text("Text6"), "r");
    }

    // Own values

    void an_own_fraction_takes_two_boxes()
    {
        Enter(3, 4, 20);
        m_ear->Take();
        WithDialogs([] { Press(Qt::Key_F2); },
                    {Input("Introducir fracción", "Introduzca el numerador de la fracción:", "3", "2"),
                     Input("Introducir fracción", "Introduzca el denominador de la fracción:", "4", "5")});
        QCOMPARE(Exercise(), "2/5 de 20");
        Activate();
        QCOMPARE(m_ear->TakeSaid(), QStringList("dos quintos  de veinte"));
    }

    void an_own_quantity_takes_one_box()
    {
        Enter(3, 4, 20);
        m_ear->Take();
        WithDialogs([] { Press(Qt::Key_F3); }, {Input("Introducir cantidad", "Introduzca la cantidad:", "20", "40")});
        QCOMPARE(Exercise(), "3/4 de 40");
        Activate();
        QCOMPARE(m_ear->TakeSaid(), QStringList("tres cuartos  de cuarenta"));
    }

    void own_values_out_of_range_are_ignored_data()
    {
        QTest::addColumn<QString>("numerator");
        QTest::addColumn<QString>("denominator"); // not asked for where empty
        QTest::addColumn<QString>("exercise");
        const auto row = [](const char* numerator, const char* denominator, const char* exercise) {
            QTest::addRow("%.12s over %.12s", numerator, denominator) << numerator << denominator << exercise;
        };
        row("-1", "", "3/4 de 20");
        row("-0.4", "", "3/4 de 20");
        row("40000", "", "3/4 de 20");
        row("32767.5", "", "3/4 de 20");
        row("5", "1", "3/4 de 20");
        row("5", "1.9", "3/4 de 20");
        row("5", "-2", "3/4 de 20");
        row("5", "cinco", "3/4 de 20");
        row("5", "99999999999999999999", "3/4 de 20");
        row("0", "2", "0/2 de 20");
        row("uno", "2", "0/2 de 20"); // no number reads as 0
        row("2.5", "4.5", "2/4 de 20");
        row("3.5", "4", "4/4 de 20");
        row("1638", "2", "1638/2 de 20");
    }
    void own_values_out_of_range_are_ignored()
    {
        QFETCH(QString, numerator);
        QFETCH(QString, denominator);
        QFETCH(QString, exercise);
        Enter(3, 4, 20);
        std::vector<DialogAnswer> answers{
            Input("Introducir fracción", "Introduzca el numerador de la fracción:", "3", numerator)};
        if (!denominator.isEmpty()) {
            answers.push_back(
                Input("Introducir fracción", "Introduzca el denominador de la fracción:", "4", denominator));
        }
        WithDialogs([this] { Choose("MnuOpcFrac"); }, answers);
        QCOMPARE(Exercise(), exercise);
    }

    void own_quantities_out_of_range_are_ignored()
    {
        Enter(3, 4, 20);
        for (const char* quantity : {"-1", "", "32768", "-0.5"}) {
            WithDialogs([this] { Choose("MnuOpcCan"); },
                        {Input("Introducir cantidad", "Introduzca la cantidad:", "20", quantity)});
            QCOMPARE(Exercise(), "3/4 de 20");
        }
    }

    void cancelling_either_box_changes_nothing()
    {
        Enter(3, 4, 20);
        m_ear->Take();
        WithDialogs([this] { Choose("MnuOpcFrac"); }, {Cancel()});
        WithDialogs([this] { Choose("MnuOpcFrac"); },
                    {Input("Introducir fracción", "Introduzca el numerador de la fracción:", "3", "9"), Cancel()});
        WithDialogs([this] { Choose("MnuOpcCan"); }, {Cancel()});
        QCOMPARE(Exercise(), "3/4 de 20");
        QCOMPARE(m_ear->TakeSaid(), QStringList());
    }

    void a_remainder_is_asked_about_data()
    {
        QTest::addColumn<bool>("yes");
        QTest::addRow("yes") << true;
        QTest::addRow("no") << false;
    }
    void a_remainder_is_asked_about()
    {
        QFETCH(bool, yes);
        Enter(3, 4, 20);
        WithDialogs([this] { Choose("MnuOpcFrac"); },
                    {Input("Introducir fracción", "Introduzca el numerador de la fracción:", "3", "1"),
                     Input("Introducir fracción", "Introduzca el denominador de la fracción:", "4", "3"),
                     Question("Kelvora", yes)});
        QCOMPARE(Exercise(), yes ? "1/3 de 20" : "3/4 de 20");
        QCOMPARE(Text("TbTexto"), yes ? "un tercio  de veinte" : "tres cuartos  de veinte");
        Enter(1, 3, 21);
        WithDialogs(
            [this] { Choose("MnuOpcCan"); },
            {Input("Introducir cantidad", "Introduzca la cantidad:", "21", "7"), Question("Introducir cantidad", yes)});
        QCOMPARE(Exercise(), yes ? "1/3 de 7" : "1/3 de 21");
    }

    void after_a_box_the_focus_is_where_it_was()
    {
        for (const char* name : {"Text6", "Text1", "Command2(1)"}) {
            for (const Qt::Key key : {Qt::Key_F2, Qt::Key_F3}) {
                Child<QWidget>(*m_form, name).setFocus();
                WithDialogs([key] { Press(key); }, {Cancel()});
                m_form->activateWindow(); // as a window manager does
                QTRY_COMPARE(Focus(), name);
            }
        }
    }

    void leaving_closes_the_screen_and_a_new_one_starts_afresh()
    {
        Verdict("x");
        Choose("MnuOpcSal");
        Settle();
        QVERIFY(!m_form);
        OpenScreen(std::make_unique<ejercicios::FormCantidad>());
        QCOMPARE(Text("tbResultados"), "Ejercicios:  0; Errores:  0");
    }
};

KELVORA_TEST_MAIN(tst_FormCantidad)
#include "tst_FormCantidad.moc"
