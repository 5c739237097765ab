#include "Draws.h"
#include "Escalera.h"
#include "FormFactores.h"
#include "Habits.h"
#include "Lectura.h"
#include "Screen.h"

#include <QClipboard>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTextBlock>

using namespace support;

namespace {

const QString emptyRow = "     |    ";

DialogAnswer Message(const QString& text)
{
    return [text](QWidget& dialog) {
        const auto& box = dynamic_cast<QMessageBox&>(dialog);
        QCOMPARE(box.text(), text);
        QCOMPARE(box.windowTitle(), "Kelvora");
        QCOMPARE(box.buttons().size(), 1);
        QTest::keyClick(&dialog, Qt::Key_Return);
    };
}

QString WrongProduct(int product, int value)
{
    return QString("El producto de los factores calculados (%1 es distinto del valor inicial (%2)")
        .arg(product)
        .arg(value);
}

QString WrongFactors(const QString& own, const QString& right)
{
    return "Los factores primos obtenidos por usted son diferentes a los que corresponden a la cantidad utilizada.\r\n"
           "Valores calculados : " +
           own + "\r\nValores correctos: " + right;
}

} // namespace

class tst_FormFactores : public QObject, private Screen
{
    Q_OBJECT

private:
    QPlainTextEdit& Ladder() const { return Child<QPlainTextEdit>(*m_form, "TbDesco"); }
    QStringList Rows() const { return Ladder().toPlainText().split('\n'); }
    void SetValue(const QString& value) const { Box("TbValor").setText(value); }

    // Types divisors into the column behind the bar, from the first row of a fresh ladder on.
    void TypeDivisors(const QStringList& divisors) const
    {
        Button("Command2(1)").click();
        for (qsizetype row = 0; row < divisors.size(); ++row) {
            QTextCursor cursor(Ladder().document()->findBlockByNumber(static_cast<int>(row)));
            cursor.movePosition(QTextCursor::Right, QTextCursor::MoveAnchor, 6);
            Ladder().setFocus();
            Ladder().setTextCursor(cursor);
            Type(divisors[row]);
        }
    }

    // Where the next ladder is written from.
    void VerifyCaretAtTheStart() const
    {
        Type("7");
        QCOMPARE(Rows()[0], "7    |    ");
    }

    // Checks a value against divisors; the box that answers must hold `message`, none must open where it is empty.
    QStringList Verdict(const QString& value, const QStringList& divisors, const QString& message = {}) const
    {
        SetValue(value);
        TypeDivisors(divisors);
        m_ear->Take();
        const auto check = [this] { Button("Command1").click(); };
        if (message.isEmpty()) {
            check();
        } else {
            QStringList told;
            const DialogAnswer close = Message(message);
            WithDialog(check, [&](QWidget& dialog) {
                auto& label = const_cast<QLabel&>(Child<QLabel>(dialog, "qt_msgbox_label"));
                const QString name = QAccessible::queryAccessibleInterface(&label)->text(QAccessible::Name);
                if (name != label.text()) { // with the text, where it is not told on its own
                    told += name.left(name.size() - label.text().size() - 2);
                }
                close(dialog);
            });
            Activate();
            return m_ear->TakeSaid() + told;
        }
        return m_ear->TakeSaid();
    }

    QString ValueInWords() const { return QString::fromStdString(lenguaje::EnLetrasSolo(Text("TbValor").toInt())); }

    // As it is told: newer readers get it with the text of the box, in which a blank has no use.
    static QString Told(const QString& verdict)
    {
        return ui::ReaderHabits().boxesCutMessagesOff ? verdict.trimmed() : verdict;
    }

private slots:
    void init()
    {
        numeros::FijarSemilla(7);
        OpenScreen(std::make_unique<ejercicios::FormFactores>());
    }
    void cleanup() { CloseScreen(); }

    // Opening

    void opens_with_an_empty_ladder_and_a_value()
    {
        QCOMPARE(m_form->windowTitle(), "DESCOMPOSICIÓN EN FACTORES PRIMOS");
        QCOMPARE(m_ear->Take(), QStringList({"FOCUS TbInstruc", "SAY " + ValueInWords()}));
        QCOMPARE(Text("TbInstruc"), "Realiza la descomposición en factores primos");
        QCOMPARE(Rows(), QStringList(15, emptyRow) + QStringList(""));
        QVERIFY(Text("TbValor").toInt() >= 1 && Text("TbValor").toInt() <= 100);
        QCOMPARE(Text("TbFactores") + Text("Text1"), "");
        QCOMPARE(Text("tbResultados"), "Ejercicios:  0; Errores:  0");
        QCOMPARE(Child<QLabel>(*m_form, "LbFactores").text(), "Factores primos");
    }

    void the_bars_stand_in_a_line()
    {
        const QFontMetrics metrics(Ladder().font());
        QCOMPARE(metrics.horizontalAdvance("1"), metrics.horizontalAdvance("|"));
        QCOMPARE(metrics.horizontalAdvance("1"), metrics.horizontalAdvance(" "));
        QVERIFY(15 * metrics.height() < Ladder().height());
    }

    // Values

    void draws_values_in_the_chosen_range_data()
    {
        QTest::addColumn<int>("option");
        QTest::addColumn<int>("limit");
        QTest::addRow("10") << 0 << 10;
        QTest::addRow("20") << 1 << 20;
        QTest::addRow("100") << 2 << 100;
        QTest::addRow("1000") << 3 << 1000;
    }
    void draws_values_in_the_chosen_range()
    {
        QFETCH(int, option);
        QFETCH(int, limit);
        const QString before = Text("TbValor");
        Choose(QString("MnuOpcValLis(%1)").arg(option));
        QCOMPARE(Text("TbValor"), before); // until Continuar
        VerifyDraws(
            20, [limit] { return QString::number(numeros::Sortear(limit, 1)); }, [this] { return Text("TbValor"); });
        DrawNext({limit - 1});
        Continue();
        QCOMPARE(Text("TbValor"), QString::number(limit));
    }

    void draws_up_to_a_hundred_until_a_range_is_chosen()
    {
        numeros::SustituirSorteo([](int count) { return count - 1; });
        Continue();
        QCOMPARE(Text("TbValor"), "100");
    }

    void the_first_value_is_one_of_a_hundred_by_the_timer()
    {
        VerifySeedOfTheTimer([] { return std::make_unique<ejercicios::FormFactores>(); },
                             [this] { return Text("TbValor"); });
        for (unsigned seed = 0; seed < 40; ++seed) {
            CloseScreen();
            numeros::FijarSemilla(seed);
            numeros::Sembrar(0);
            const int drawn = numeros::Sortear(100, 1); // of 1 to 100
            OpenScreen(std::make_unique<ejercicios::FormFactores>());
            QCOMPARE(Text("TbValor"), QString::number(drawn));
        }
    }

    void an_own_value_is_taken_up_to_a_thousand_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("value");
        QTest::addRow("plain") << "360"
                               << "360";
        QTest::addRow("negative") << "-12"
                                  << "12";
        QTest::addRow("half to even") << "2.5"
                                      << "2";
        QTest::addRow("the largest") << "1000"
                                     << "1000";
        QTest::addRow("too large") << "1000.1"
                                   << "77";
        QTest::addRow("beyond measure") << QString(400, '9') << "77";
        QTest::addRow("zero") << "0"
                              << "77";
        QTest::addRow("no number") << "doce"
                                   << "77";
        QTest::addRow("empty") << ""
                               << "77";
    }
    void an_own_value_is_taken_up_to_a_thousand()
    {
        QFETCH(QString, answer);
        QFETCH(QString, value);
        SetValue("77");
        Button("Command2(2)").click(); // seen, so that it does not count
        TypeDivisors({"7"});
        Press(Qt::Key_Tab);
        const QStringList rows = Rows();
        m_ear->Take();
        WithDialog([] { Press(Qt::Key_F2); },
                   [answer](QWidget& dialog) {
                       auto& box = dynamic_cast<QInputDialog&>(dialog);
                       QCOMPARE(box.windowTitle(), "Introducir valor");
                       QCOMPARE(box.labelText(), "Introduzca valor a descomponer: ");
                       QCOMPARE(box.textValue(), "");
                       box.setTextValue(answer);
                       QTest::keyClick(&dialog, Qt::Key_Return);
                   });
        QCOMPARE(Text("TbValor"), value);
        QCOMPARE(Rows(), value == "77" ? rows : QStringList(15, emptyRow) + QStringList(""));
        QCOMPARE(Text("TbFactores"), "7 ");
        Activate();
        QCOMPARE(m_ear->TakeSaid(), value == "77" ? QStringList() : QStringList(ValueInWords()));
        Box("Text1").setFocus();
        Press(Qt::Key_Tab); // which puts the value of the exercise there
        QCOMPARE(Text("Text1"), value);
        Verdict("7", {"7"});
        QCOMPARE(Text("tbResultados"), "Ejercicios:  0; Errores:  0");
    }

    void the_value_is_told_in_words_data()
    {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QString>("words");
        QTest::addRow("1") << "1"
                           << "uno";
        QTest::addRow("76") << "76"
                            << "setenta y seis";
        QTest::addRow("1000") << "1000"
                              << "mil ";
        QTest::addRow("none") << ""
                              << "cero";
        QTest::addRow("negative") << "-12"
                                  << "menos doce";
    }
    void the_value_is_told_in_words()
    {
        QFETCH(QString, value);
        QFETCH(QString, words);
        SetValue(value);
        for (const char* name : {"TbInstruc", "TbValor", "TbDesco", "TbFactores", "Command1", "Command2(2)"}) {
            Child<QWidget>(*m_form, name).setFocus();
            m_ear->Take();
            Press(Qt::Key_F3);
            QCOMPARE(m_ear->Take(), QStringList("SAY " + words));
            QCOMPARE(Focus(), name);
        }
        QCOMPARE(Text("Text1"), "");
    }

    void continuing_tells_the_new_value()
    {
        Verdict("13", {"13"});
        Box("Text1").setFocus(); // which puts the old value into itself when the focus goes
        m_ear->Take();
        Press(Qt::Key_C, Qt::AltModifier);
        QCOMPARE(m_ear->Take(), QStringList({"FOCUS Command2(0)", "FOCUS TbDesco", "SAY " + ValueInWords()}));
        QCOMPARE(Text("Text1"), "13");
        Press(Qt::Key_B, Qt::AltModifier);
        QCOMPARE(m_ear->TakeSaid(), QStringList("Escalera |"));
    }

    void the_value_is_selected_when_the_focus_comes()
    {
        SetValue("77");
        Press(Qt::Key_Tab);
        QCOMPARE(Focus(), "TbValor");
        Settle();
        QCOMPARE(Box("TbValor").selectedText(), "77");
        Type("12");
        QCOMPARE(Text("TbValor"), "12");
    }

    // The ladder

    void keys_type_over_and_bars_stay()
    {
        Ladder().setFocus();
        Type("12345678");
        QCOMPARE(Rows()[0], "12345|    "); // the bar is refused, and what follows with it
        Press(Qt::Key_Right);
        Type("6789");
        QCOMPARE(Rows()[0], "12345|6789");
        Press(Qt::Key_Backspace);
        QCOMPARE(Rows()[0], "12345|678 ");
        Press(Qt::Key_Home);
        Press(Qt::Key_Delete);
        QCOMPARE(Rows()[0], " 2345|678 ");
        QCOMPARE(Rows().size(), 16);
        for (int i = 0; i < 5; ++i) {
            Press(Qt::Key_Right);
        }
        Press(Qt::Key_Delete);
        QCOMPARE(Rows()[0], " 2345|678 ");
        Type("=");
        QCOMPARE(Rows()[0], " 2345=678 ");
    }

    void what_a_bar_refuses_beeps_and_says_the_row()
    {
        Ladder().setFocus();
        Type("12345");
        m_ear->Take();
        const QStringList refused{"BEEP", "SAY 12345|    "};
        Type("6");
        QCOMPARE(m_ear->Take(), refused);
        Press(Qt::Key_Delete);
        QCOMPARE(m_ear->Take(), refused);
        Press(Qt::Key_Right);
        Press(Qt::Key_Backspace);
        QCOMPARE(m_ear->Take(), refused);
        Press(Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(m_ear->Take(), refused);
        Ladder().insertPlainText("9"); // as drop and assistive software do
        QCOMPARE(m_ear->Take(), refused);
        Type("9");
        QCOMPARE(m_ear->Take(), QStringList());
    }

    void enter_takes_the_place_of_a_character()
    {
        Ladder().setFocus();
        Type("12");
        Press(Qt::Key_Home);
        Press(Qt::Key_Return);
        QCOMPARE(Rows().size(), 17);
        QCOMPARE(Rows()[0] + "/" + Rows()[1], "/2   |    ");
        for (int i = 0; i < 4; ++i) {
            Press(Qt::Key_Right);
        }
        Press(Qt::Key_Return);
        QCOMPARE(Rows().size(), 17); // not over a bar
    }

    void the_caret_stays_in_its_row_while_the_focus_is_elsewhere()
    {
        Ladder().setFocus();
        Press(Qt::Key_Down);
        Type("12");
        Press(Qt::Key_Backtab, Qt::ShiftModifier);
        Press(Qt::Key_Tab);
        Settle();
        Type("3");
        QCOMPARE(Rows()[1], "123  |    ");
    }

    void a_selection_collapses_to_its_start()
    {
        Ladder().setFocus();
        Type("123");
        Press(Qt::Key_Home);
        Press(Qt::Key_Right, Qt::ShiftModifier);
        Press(Qt::Key_Right, Qt::ShiftModifier);
        Type("9");
        QCOMPARE(Rows()[0], "923  |    ");
        Press(Qt::Key_A, Qt::ControlModifier);
        Press(Qt::Key_Delete);
        QCOMPARE(Rows()[0], " 23  |    ");
        QCOMPARE(Rows().size(), 16);
    }

    void nothing_but_keys_changes_it()
    {
        Ladder().setFocus();
        Type("12");
        const QString before = Ladder().toPlainText();
        QApplication::clipboard()->setText("77777");
        for (const auto& [key, held] :
             {std::pair(Qt::Key_V, Qt::ControlModifier), std::pair(Qt::Key_X, Qt::ControlModifier),
              std::pair(Qt::Key_Z, Qt::ControlModifier), std::pair(Qt::Key_Y, Qt::ControlModifier),
              std::pair(Qt::Key_K, Qt::ControlModifier), std::pair(Qt::Key_Insert, Qt::ShiftModifier)}) {
            Press(Qt::Key_A, Qt::ControlModifier);
            Press(key, held);
            QCOMPARE(Ladder().toPlainText(), before);
        }
        Ladder().paste();
        QCOMPARE(Ladder().toPlainText(), before);
        Ladder().selectAll();
        Ladder().cut();
        QCOMPARE(Ladder().toPlainText(), before);
        Ladder().undo();
        Ladder().redo();
        QCOMPARE(Ladder().toPlainText(), before);
        Ladder().insertPlainText("9"); // as drop and assistive software do
        QCOMPARE(Ladder().toPlainText(), before);
        QVERIFY(!Ladder().isReadOnly());
    }

    void committed_input_obeys_the_rules_too()
    {
        Ladder().setFocus();
        QInputMethodEvent commit;
        commit.setCommitString("ñ7");
        QCoreApplication::sendEvent(&Ladder(), &commit);
        QCOMPARE(Rows()[0], "ñ7   |    ");
        commit.setCommitString("34567");
        QCoreApplication::sendEvent(&Ladder(), &commit);
        QCOMPARE(Rows()[0], "ñ7345|    "); // and not over the bar
    }

    void the_selection_can_be_copied()
    {
        Ladder().setFocus();
        Type("12");
        Press(Qt::Key_Home);
        Press(Qt::Key_Right, Qt::ShiftModifier);
        Press(Qt::Key_Right, Qt::ShiftModifier);
        Press(Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), "12");
    }

    void leaving_it_reads_the_factors()
    {
        TypeDivisors({"2", "2", "3"});
        QCOMPARE(Text("TbFactores"), "");
        Press(Qt::Key_Tab);
        QCOMPARE(Text("TbFactores"), "2 * 2 * 3 ");
        TypeDivisors({"5"});
        Box("tbResultados").setFocus();
        QCOMPARE(Text("TbFactores"), "5 ");
    }

    // Checking

    void a_wrong_product_is_told_and_counted_each_time()
    {
        for (int i = 1; i <= 3; ++i) {
            const QString verdict = i == 2 ? " Resultado incorrecto" : "Resultado incorrecto";
            QCOMPARE(Verdict("13", {"2", "2", "3"}, WrongProduct(12, 13)), QStringList(Told(verdict)));
            QCOMPARE(Text("Text1"), verdict);
            QCOMPARE(Text("tbResultados"), QString("Ejercicios:  %1; Errores:  %1").arg(i));
        }
        QCOMPARE(Verdict("13", {"13"}), QStringList("Resultado correcto"));
        QCOMPARE(Text("tbResultados"), "Ejercicios:  4; Errores:  3");
        QCOMPARE(Focus(), "Command2(0)");
    }

    void a_wrong_answer_counts_when_its_box_is_closed_and_leaves_the_focus()
    {
        SetValue("13");
        m_ear->Take();
        WithDialog(
            [] { Press(Qt::Key_H, Qt::AltModifier); },
            [this](QWidget& dialog) {
                const QString verdict = "Resultado incorrecto";
                const QStringList heard = Ear::TakeSoFar();
                QCOMPARE(heard.mid(0, heard.size() - 1), // the last is the box's button
                         QStringList("FOCUS Command1") +
                             (ui::ReaderHabits().boxesCutMessagesOff ? QStringList() : QStringList("SAY " + verdict)));
                QVERIFY(heard.last().startsWith("FOCUS "));
                auto& label = const_cast<QLabel&>(Child<QLabel>(dialog, "qt_msgbox_label"));
                const QString told = QAccessible::queryAccessibleInterface(&label)->text(QAccessible::Name);
                QCOMPARE(told,
                         (ui::ReaderHabits().boxesCutMessagesOff ? verdict + ". " : QString()) + WrongProduct(1, 13));
                QCOMPARE(Text("Text1"), verdict);
                QCOMPARE(Text("tbResultados"), "Ejercicios:  0; Errores:  0");
                QTest::keyClick(&dialog, Qt::Key_Return);
            });
        QCOMPARE(Text("tbResultados"), "Ejercicios:  1; Errores:  1");
        Activate();
        QCOMPARE(Focus(), "Command1");
        QCOMPARE(m_ear->TakeSaid(), QStringList()); // it was heard before the box, and is not again
    }

    void factors_that_are_no_primes_are_told()
    {
        QCOMPARE(Verdict("12", {"4", "3"}, WrongFactors("3, 4", "2, 2, 3")), QStringList("Resultado incorrecto"));
        QCOMPARE(Text("tbResultados"), "Ejercicios:  1; Errores:  1");
        QCOMPARE(Verdict("12", {"12"}, WrongFactors("12", "2, 2, 3")), QStringList(Told(" Resultado incorrecto")));
    }

    void factors_are_right_in_any_order_and_dividends_are_not_looked_at()
    {
        QCOMPARE(Verdict("12", {"3", "2", "2"}), QStringList("Resultado correcto"));
        QCOMPARE(Text("tbResultados"), "Ejercicios:  1; Errores:  0");
        QCOMPARE(Verdict("12", {"2", "3", "2"}), QStringList(" Resultado correcto"));
        QCOMPARE(Text("tbResultados"), "Ejercicios:  1; Errores:  0");
    }

    void an_empty_ladder_is_right_for_one_alone()
    {
        QCOMPARE(Verdict("1", {}), QStringList("Resultado correcto"));
        QCOMPARE(Verdict("2", {}, WrongProduct(1, 2)), QStringList("Resultado incorrecto"));
        QCOMPARE(Verdict("-3", {}, WrongProduct(1, -3)), QStringList(Told(" Resultado incorrecto")));
        QCOMPARE(Verdict("", {}, WrongProduct(1, 0)), QStringList("Resultado incorrecto"));
    }

    void what_stands_behind_a_gap_must_be_sorted_as_it_is()
    {
        SetValue("12");
        TypeDivisors({"2", "2", "3", "x", "5", "3"}); // the row of the "x" reads as 0
        WithDialog([this] { Button("Command1").click(); }, Message(WrongFactors("2, 2, 3, 3, 5", "2, 2, 3, 5, 3")));
    }

    void a_prime_beyond_the_table_and_a_value_that_does_not_fit_are_harmless()
    {
        QCOMPARE(Verdict("1009", {"1009"}), QStringList("Resultado correcto"));
        SetValue("1009");
        Button("Command2(2)").click();
        QCOMPARE(Rows(), QStringList({" 1009|1009", "    1|", ""}));
        SetValue("99999999");
        m_ear->Take();
        Press(Qt::Key_V, Qt::AltModifier);
        QCOMPARE(Text("TbValor"), "1009"); // put right
        QCOMPARE(m_ear->Take(), QStringList({"FOCUS Command2(2)", "BEEP", "FOCUS TbDesco", "SAY 1009"}));
        SetValue(QString(400, '9'));
        Button("Command2(2)").click();
        QCOMPARE(Text("TbValor"), "1009");
    }

    void a_value_is_solved_by_its_solution()
    {
        for (const int value : {1, 2, 12, 512, 720, 997, 1000}) {
            SetValue(QString::number(value));
            Button("Command2(2)").click();
            QCOMPARE(Ladder().toPlainText(),
                     QString::fromStdU16String(reglas::EscaleraDe(value)).replace("\r\n", "\n"));
            Button("Command1").click();
            QVERIFY(Text("Text1").endsWith("Resultado correcto"));
            QCOMPARE(Text("tbResultados"), "Ejercicios:  0; Errores:  0"); // seen, so not counted
        }
    }

    // The buttons

    void the_solution_is_shown_with_its_factors_selected()
    {
        SetValue("12");
        m_ear->Take();
        Press(Qt::Key_V, Qt::AltModifier);
        QCOMPARE(Rows(), QStringList({"   12|2   ", "    6|2   ", "    3|3   ", "    1|", ""}));
        QCOMPARE(Text("TbFactores"), "2 * 2 * 3 ");
        QCOMPARE(Box("TbFactores").selectedText(), "2 * 2 * 3 ");
        QCOMPARE(Focus(), "TbDesco");
        QCOMPARE(Text("Text1"), "");
    }

    void clear_leaves_value_score_and_message()
    {
        Verdict("13", {"2"}, WrongProduct(2, 13));
        Press(Qt::Key_B, Qt::AltModifier);
        QCOMPARE(Rows(), QStringList(15, emptyRow) + QStringList(""));
        QCOMPARE(Text("TbFactores"), "");
        QCOMPARE(Text("TbValor"), "13");
        QCOMPARE(Text("tbResultados"), "Ejercicios:  1; Errores:  1");
        QCOMPARE(Focus(), "TbDesco");
        VerifyCaretAtTheStart();
        Button("Command2(2)").click();
        Button("Command2(1)").click();
        Choose("MnuOpcValLis(0)"); // an option changes nothing about that
        Verdict("13", {"13"});
        QCOMPARE(Text("tbResultados"), "Ejercicios:  1; Errores:  1"); // the solution was seen
    }

    void continue_brings_a_value_that_counts_again()
    {
        Verdict("13", {"13"});
        TypeDivisors({"7"});
        Press(Qt::Key_C, Qt::AltModifier);
        QCOMPARE(Focus(), "TbDesco");
        QCOMPARE(Rows(), QStringList(15, emptyRow) + QStringList(""));
        QCOMPARE(Text("TbFactores"), "");
        QCOMPARE(Text("Text1"), "Resultado correcto"); // stays
        QCOMPARE(Box("TbValor").selectedText(), Text("TbValor"));
        VerifyCaretAtTheStart();
        Verdict("13", {"13"});
        QCOMPARE(Text("tbResultados"), "Ejercicios:  2; Errores:  0");
    }

    void leaving_the_message_line_puts_the_value_in_place_of_a_verdict()
    {
        Verdict("13", {"13"});
        Box("Text1").setFocus();
        m_ear->Take();
        Press(Qt::Key_Tab);
        QCOMPARE(Text("Text1"), "13");
        QCOMPARE(m_ear->Take(), QStringList({"FOCUS Command2(0)", "SAY 13"}));
        for (const char* outside : {"2000", "1", "0.5", "-3"}) {
            Box("Text1").setFocus();
            Box("Text1").setText(outside);
            Press(Qt::Key_Tab);
            QCOMPARE(Text("Text1"), "13");
        }
        Box("Text1").setFocus();
        Box("Text1").setText("1999.4");
        Press(Qt::Key_Tab);
        QCOMPARE(Text("Text1"), "1999.4"); // taken as the value
        Box("Text1").setFocus();
        Box("Text1").setText("x");
        Press(Qt::Key_Tab);
        QCOMPARE(Text("Text1"), "1999");
    }

    void leaving_the_message_line_at_first_shows_the_first_value()
    {
        Box("Text1").setFocus();
        Press(Qt::Key_Tab);
        QCOMPARE(Text("Text1"), Text("TbValor"));
    }

    void a_menu_leaves_the_message_line_alone()
    {
        Verdict("13", {"13"});
        Box("Text1").setFocus();
        Press(Qt::Key_O, Qt::AltModifier);
        QVERIFY(QApplication::activePopupWidget() != nullptr);
        QCOMPARE(Text("Text1"), "Resultado correcto");
        Press(Qt::Key_Escape);
    }

    void the_primes_up_to_a_thousand_are_counted()
    {
        WithDialog(ejercicios::FormFactores::BuscarPrimos, Message("Encontrados 168 números primos"));
    }

    void leaving_closes_the_screen()
    {
        Choose("MnuOpcsal");
        Settle();
        QVERIFY(!m_form);
    }
};

KELVORA_TEST_MAIN(tst_FormFactores)
#include "tst_FormFactores.moc"
