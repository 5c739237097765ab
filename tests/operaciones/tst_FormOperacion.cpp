// What the four operation screens have in common, case by case on each of them.
#include "Form2.h"
#include "FormCociente.h"
#include "FormDiferencia.h"
#include "FormProducto.h"
#include "Lectura.h"
#include "OperationScreen.h"

#include <QClipboard>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>

using namespace support;

namespace {

constexpr auto ctrl = Qt::ControlModifier;

enum class AfterWrong { Stays, ToResult, Emptied };

// A screen, and what it makes of 5/7 and 3/7.
struct Expected
{
    const char* title;
    std::unique_ptr<ui::Form> (*create)();
    const char* sign;
    const char* spokenSign;
    const char* wrong = "Resultado incorrecto ";
    AfterWrong afterWrong = AfterWrong::ToResult;
    bool denominators = false;
    bool alternates = true;       // the lead of the operation's reading
    bool buttonsMoveFocus = true; // "Borrar" and "Ver solución"
    bool operandsCheck = true;    // on Enter
    int numerator;
    int denominator;
    const char* solution;
};

constexpr Expected screens[]{
    {.title = "SUMA DE FRACCIONES",
     .create = ui::Make<operaciones::Form2>,
     .sign = "+",
     .spokenSign = "+",
     .wrong = "Resultado incorrecto",
     .afterWrong = AfterWrong::Stays,
     .denominators = true,
     .numerator = 8,
     .denominator = 7,
     .solution = "ocho séptimos"},
    {.title = "DIFERENCIA DE FRACCIONES",
     .create = ui::Make<operaciones::FormDiferencia>,
     .sign = "-",
     .spokenSign = "-",
     .afterWrong = AfterWrong::Emptied,
     .denominators = true,
     .numerator = 2,
     .denominator = 7,
     .solution = "dos séptimos"},
    {.title = "PRODUCTO DE FRACCIONES",
     .create = ui::Make<operaciones::FormProducto>,
     .sign = "x",
     .spokenSign = " por ",
     .operandsCheck = false,
     .numerator = 15,
     .denominator = 49,
     .solution = "quince cuarenta y nueveavos"},
    {.title = "COCIENTE DE FRACCIONES",
     .create = ui::Make<operaciones::FormCociente>,
     .sign = "÷",
     .spokenSign = "÷",
     .alternates = false,
     .buttonsMoveFocus = false,
     .numerator = 35,
     .denominator = 21,
     .solution = "treinta y cinco veintiunoavos"},
};

} // namespace

class tst_FormOperacion : public QObject, private OperationScreen
{
    Q_OBJECT

private:
    const Expected* m_screen = nullptr;

    void SetExercise() const { SetOperands({5, 7, 3, 7}); }
    QString Numerator() const { return QString::number(m_screen->numerator); }
    QString Denominator() const { return QString::number(m_screen->denominator); }

    // Checks with the button, after which no key has touched the verdict; what is heard.
    QStringList Done(const QString& numerator, const QString& denominator) const
    {
        Answer(numerator, denominator);
        return Again();
    }

    // Checks once more.
    QStringList Again() const
    {
        m_ear->Take();
        Button("Command1").click();
        return m_ear->TakeSaid();
    }

    // Reads the operation, which must sound as told, with or without the lead.
    void VerifyOperation(const QString& words, Qt::Key key = Qt::Key_F3, Qt::KeyboardModifiers held = {}) const
    {
        const bool lead = m_screen->alternates && !Text("TbMensajes").startsWith(' ');
        m_ear->Take();
        Press(key, held);
        QCOMPARE(m_ear->Take(), QStringList("SAY " + QString(lead ? " " : "") + words));
    }

private slots:
    void initTestCase_data()
    {
        QTest::addColumn<const Expected*>("screen");
        for (const Expected& screen : screens) {
            QTest::addRow("%s", QString(screen.title).section(' ', 0, 0).toLatin1().constData()) << &screen;
        }
    }

    void init()
    {
        QFETCH_GLOBAL(const Expected*, screen);
        m_screen = screen;
        numeros::FijarSemilla(7);
        OpenScreen(screen->create());
    }
    void cleanup() { CloseScreen(); }

    // Opening

    void opens_with_the_first_exercise_heard_after_the_focus()
    {
        QCOMPARE(m_form->windowTitle(), m_screen->title);
        QCOMPARE(Focus(), "Text1(0)");
        const QStringList heard = m_ear->Take();
        QCOMPARE(heard, QStringList({"FOCUS Text1(0)", "SAY " + Text("TbMensajes")}));
        QCOMPARE(Text("TbMensajes").startsWith(' '), m_screen->alternates);
        QVERIFY(Text("TbMensajes").endsWith('='));
    }

    void opens_with_its_initial_texts_and_options()
    {
        QCOMPARE(Text("Text2(0)"), m_screen->sign);
        QCOMPARE(Text("Text2(1)"), "=");
        QCOMPARE(Text("Text1(4)"), "");
        QCOMPARE(Text("Text1(5)"), "");
        QCOMPARE(Text("Text3"), "");
        QCOMPARE(Text("tbResultados"), "Ejercicios:  0; Errores:  0");
        QVERIFY(Entry("MnuOpcCanLis(0)").isChecked());
        if (m_screen->denominators) {
            QVERIFY(Entry("MnuOpcDenLis(0)").isChecked());
            QCOMPARE(Text("Text1(1)"), Text("Text1(3)"));
        }
    }

    void only_the_result_boxes_accept_typing()
    {
        QApplication::clipboard()->setText("5");
        for (const QString name : {"Text1(0)", "Text1(1)", "Text1(2)", "Text1(3)", "Text2(0)", "Text2(1)", "Text3",
                                   "TbMensajes", "tbResultados"}) {
            Box(name).setFocus();
            QCOMPARE(Focus(), name);
            const QString before = Text(name);
            Type("9");
            Press(Qt::Key_Backspace);
            Press(Qt::Key_Delete);
            Press(Qt::Key_V, ctrl);
            QCOMPARE(Text(name), before);
            QVERIFY(Box(name).isReadOnly());
        }
        Answer("12", "x7");
        QCOMPARE(Text("Text1(4)"), "12");
        QCOMPARE(Text("Text1(5)"), "x7");
    }

    void the_seed_is_the_timer()
    {
        VerifySeedOfTheTimer([this] { return m_screen->create(); }, [this] { return Shown(); });
    }

    void a_chosen_option_waits_for_the_next_exercise()
    {
        const Operands before = Shown();
        m_ear->Take();
        Choose("MnuOpcCanLis(2)");
        if (m_screen->denominators) {
            Choose("MnuOpcDenLis(1)");
        }
        QCOMPARE(m_ear->TakeSaid(), QStringList());
        QCOMPARE(Shown(), before);
        Choose("MnuOpcCanLis(2)"); // choosing the checked one again leaves it checked
        QVERIFY(Entry("MnuOpcCanLis(2)").isChecked());
        int largest = 0;
        for (int i = 0; i < 100; ++i) {
            Continue();
            const Operands values = Shown();
            largest = std::max(largest, *std::ranges::max_element(values));
        }
        QVERIFY(largest > 20);
    }

    // Solution

    void showing_the_solution_reads_it_and_stops_the_counting()
    {
        SetExercise();
        Text1(5).setText("99");
        m_ear->Take();
        Press(Qt::Key_V, Qt::AltModifier);
        QStringList expected{"FOCUS Command2(2)"};
        if (m_screen->buttonsMoveFocus) {
            expected += "FOCUS Text1(4)";
        }
        expected += QString("SAY ") + m_screen->solution;
        QCOMPARE(m_ear->Take(), expected);
        QCOMPARE(Focus(), m_screen->buttonsMoveFocus ? "Text1(4)" : "Command2(2)");
        QCOMPARE(Text("TbMensajes"), m_screen->solution);
        QCOMPARE(Result(), Numerator() + "/" + Denominator());
        QCOMPARE(Verdict(Numerator(), Denominator()), QStringList("Resultado correcto "));
        QCOMPARE(Text("tbResultados"), "Ejercicios:  0; Errores:  0");
        Choose("MnuOpcCanLis(1)"); // an option changes nothing about that
        if (m_screen->denominators) {
            Choose("MnuOpcDenLis(0)");
        }
        QCOMPARE(Verdict("1", "9"), QStringList(m_screen->wrong));
        QCOMPARE(Text("tbResultados"), "Ejercicios:  0; Errores:  0");
    }

    void the_old_answer_is_gone_when_the_solution_brings_the_focus()
    {
        Answer("1", "9");
        QString met = m_screen->buttonsMoveFocus ? "nothing" : ""; // the focus does not come
        const auto connection = connect(qApp, &QApplication::focusChanged, this, [&](QWidget*, const QWidget* now) {
            met = now == &Text1(4) ? Text1(4).text() : met;
        });
        Press(Qt::Key_V, Qt::AltModifier);
        disconnect(connection);
        QCOMPARE(met, "");
    }

    void the_solution_takes_the_place_of_an_answer_and_is_read_each_time()
    {
        SetExercise();
        for (int i = 0; i < 2; ++i) {
            Answer("1", "9");
            m_ear->Take();
            Press(Qt::Key_V, Qt::AltModifier);
            QCOMPARE(m_ear->TakeSaid(), QStringList(m_screen->solution));
            QCOMPARE(Result(), Numerator() + "/" + Denominator());
        }
    }

    // Checking

    // N and D stand for the numerator and the denominator of the solution.
    void judges_by_the_cross_product_data()
    {
        QTest::addColumn<QString>("numerator");
        QTest::addColumn<QString>("denominator");
        QTest::addColumn<bool>("right");
        const auto row = [](const QString& n, const QString& d, bool right) {
            QTest::newRow(qPrintable(n.left(12) + "/" + d.left(12))) << n << d << right;
        };
        row("N", "D", true);
        row("N.0", "D", true);
        row(" N ", "+D", true);
        row("-N", "-D", true);
        row("Nabc", "D", true);
        row("N,9", "D", true); // the comma ends the number
        row("N0", "D0", true);
        row("0", "0", true);
        row("abc", "xyz", true); // both read as 0
        row(" ", " ", true);
        row("D", "N", false);
        row("N", "", false);
        row("", "D", false);
        row("", "", false);
        row("N", "0", false);
        row("0", "D", false);
        row("-N", "D", false);
        row("N", "-D", false);
        row("1.5", "1.5", false);
        row(QString(40, '9'), QString(40, '9'), false);
        row("N" + QString(40, '0'), "D" + QString(40, '0'), true);
        row(QString(308, '9'), QString(308, '9'), false);
        row(QString(400, '9'), QString(400, '9'), false);
        row(QString(400, '9'), "D", false);
    }
    void judges_by_the_cross_product()
    {
        QFETCH(QString, numerator);
        QFETCH(QString, denominator);
        QFETCH(bool, right);
        numerator.replace("N", Numerator()).replace("D", Denominator());
        denominator.replace("D", Denominator()).replace("N", Numerator());
        SetExercise();
        Text1(4).setText(numerator);
        Text1(5).setText(denominator);
        Text1(5).setFocus();
        m_ear->Take();
        Press(Qt::Key_Return);
        const QString verdict = right ? "Resultado correcto " : m_screen->wrong;
        QCOMPARE(m_ear->TakeSaid(), QStringList(verdict));
        QCOMPARE(Text("Text3"), verdict);
        QCOMPARE(Text("tbResultados"), right ? "Ejercicios:  1; Errores:  0" : "Ejercicios:  1; Errores:  1");
    }

    void a_wrong_answer_has_the_screens_own_consequence()
    {
        SetExercise();
        for (const QString answered : {"1/9", "1/", "/9", "/"}) {
            Answer(answered.section('/', 0, 0), answered.section('/', 1));
            m_ear->Take();
            Press(Qt::Key_Return);
            const QStringList heard = m_ear->Take();
            switch (m_screen->afterWrong) {
            case AfterWrong::Stays:
                QCOMPARE(Focus(), "Text1(5)");
                QCOMPARE(heard.size(), 1);
                QCOMPARE(Result(), answered);
                break;
            case AfterWrong::ToResult:
                QCOMPARE(Focus(), "Text1(4)");
                QCOMPARE(heard.front(), "FOCUS Text1(4)");
                QCOMPARE(Result(), answered);
                break;
            case AfterWrong::Emptied:
                QCOMPARE(Focus(), "Text1(4)");
                QCOMPARE(heard.front(), "FOCUS Text1(4)");
                QCOMPARE(Result(), "/");
                break;
            }
            QVERIFY(heard.back().startsWith("SAY Resultado incorrecto"));
        }
    }

    void a_right_answer_stays_and_leads_to_continue()
    {
        SetExercise();
        QCOMPARE(Verdict(Numerator(), Denominator()), QStringList("Resultado correcto "));
        QCOMPARE(Result(), Numerator() + "/" + Denominator());
        QCOMPARE(Focus(), "Command2(0)");
    }

    void a_pasted_megabyte_gets_a_verdict()
    {
        SetExercise();
        QApplication::clipboard()->setText(QString(1'000'000, '7'));
        for (const int box : {4, 5}) {
            Text1(box).setFocus();
            Press(Qt::Key_V, ctrl);
            QVERIFY(Text1(box).text().size() > 1000);
        }
        m_ear->Take();
        Press(Qt::Key_F2);
        QCOMPARE(m_ear->TakeSaid(), QStringList("número demasiado grande número demasiado grandes"));
        Press(Qt::Key_F3);
        QCOMPARE(m_ear->TakeSaid().size(), 1);
        Press(Qt::Key_Return);
        QCOMPARE(m_ear->TakeSaid(), QStringList(m_screen->wrong));
    }

    void a_repeated_verdict_comes_with_a_blank_more_and_without()
    {
        SetExercise();
        const QString wrong = m_screen->wrong;
        QCOMPARE(Done("1", "9"), QStringList(wrong));
        QCOMPARE(Again(), QStringList(wrong + " "));
        QCOMPARE(Again(), QStringList(wrong));
        Answer(Numerator(), Denominator());
        QCOMPARE(Again(), QStringList("Resultado correcto "));
        QCOMPARE(Again(), QStringList("Resultado correcto  "));
        QCOMPARE(Again(), QStringList("Resultado correcto "));
    }

    void every_wrong_answer_counts_and_a_right_one_once()
    {
        SetExercise();
        Verdict("1", "9");
        QCOMPARE(Text("tbResultados"), "Ejercicios:  1; Errores:  1");
        Verdict("", "");
        QCOMPARE(Text("tbResultados"), "Ejercicios:  2; Errores:  2");
        Verdict(Numerator(), Denominator());
        QCOMPARE(Text("tbResultados"), "Ejercicios:  3; Errores:  2");
        Verdict(Numerator(), Denominator());
        Verdict("1", "9");
        QCOMPARE(Text("tbResultados"), "Ejercicios:  3; Errores:  2");
    }

    void the_score_line_keeps_three_places_and_grows_beyond()
    {
        SetExercise();
        Text1(4).setFocus();
        for (int i = 1; i <= 1000; ++i) {
            Press(Qt::Key_Return);
            const QString number = QString::number(i).rightJustified(3);
            QCOMPARE(Text("tbResultados"), "Ejercicios:" + number + "; Errores:" + number);
        }
    }

    void the_verdict_leaves_the_message_line_alone()
    {
        const QString before = Text("TbMensajes");
        Verdict("1", "9");
        QCOMPARE(Text("TbMensajes"), before);
    }

    void enter_checks_in_the_fraction_boxes_and_the_keypads_too()
    {
        SetExercise();
        int checked = 0;
        for (int box = 0; box < 6; ++box) {
            for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
                Text1(box).setFocus();
                m_ear->Take();
                Press(key);
                const bool checks = box > 3 || m_screen->operandsCheck;
                checked += checks ? 1 : 0;
                QCOMPARE(m_ear->TakeSaid().size(), checks ? 1 : 0);
                QCOMPARE(Focus(), checks && m_screen->afterWrong != AfterWrong::Stays ? QString("Text1(4)")
                                                                                      : Text1(box).objectName());
                QVERIFY(Text("tbResultados").endsWith(QString::number(checked)));
            }
        }
        for (const QString name : {"Text2(0)", "Text3", "TbMensajes", "tbResultados"}) {
            Box(name).setFocus();
            m_ear->Take();
            Press(Qt::Key_Return);
            QCOMPARE(m_ear->TakeSaid(), QStringList());
        }
        QCOMPARE(Text("tbResultados"), QString("Ejercicios:%1; Errores:%1").arg(checked, 3));
    }

    void a_key_held_down_checks_once()
    {
        SetExercise();
        Text1(4).setFocus();
        Press(Qt::Key_Return);
        for (int i = 0; i < 5; ++i) {
            QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
            QCoreApplication::sendEvent(&Text1(4), &repeat);
        }
        QCOMPARE(Text("tbResultados"), "Ejercicios:  1; Errores:  1");

        // Nor does it press the button that a right answer leads to.
        Verdict(Numerator(), Denominator());
        for (int i = 0; i < 5; ++i) {
            QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
            QCoreApplication::sendEvent(&Button("Command2(0)"), &repeat);
        }
        QCOMPARE(Focus(), "Command2(0)");
        QCOMPARE(Shown(), (Operands{5, 7, 3, 7}));
    }

    void done_checks_by_click_by_access_key_and_by_enter()
    {
        SetExercise();
        const QString wrong = m_screen->wrong;
        const auto heard = [this](const QString& verdict, bool pressedElsewhere) {
            QStringList expected;
            if (pressedElsewhere) {
                expected += "FOCUS Command1";
            }
            if (m_screen->afterWrong != AfterWrong::Stays) {
                expected += "FOCUS Text1(4)";
            }
            return expected += "SAY " + verdict;
        };
        Box("Text3").setFocus();
        m_ear->Take();
        Click("Command1");
        QCOMPARE(m_ear->Take(), heard(wrong, true));
        Text1(4).setFocus();
        m_ear->Take();
        Press(Qt::Key_H, Qt::AltModifier);
        QCOMPARE(m_ear->Take(), heard(wrong + " ", true));
        Button("Command1").setFocus();
        m_ear->Take();
        Press(Qt::Key_Return);
        QCOMPARE(m_ear->Take(), heard(wrong, false));
        Button("Command1").setFocus();
        m_ear->Take();
        Press(Qt::Key_Space);
        QCOMPARE(m_ear->Take(), heard(wrong + " ", false));
        QCOMPARE(Text("tbResultados"), "Ejercicios:  4; Errores:  4");
    }

    void the_verdict_is_said_after_the_focus_has_moved_on()
    {
        SetExercise();
        Answer(Numerator(), Denominator());
        m_ear->Take();
        Press(Qt::Key_Return);
        QCOMPARE(m_ear->Take(), QStringList({"FOCUS Command2(0)", "SAY Resultado correcto "}));
    }

    // Clear and continue

    void clear_empties_the_result_and_counts_nothing()
    {
        SetExercise();
        Done("1", "9");
        Answer("2", "9");
        m_ear->Take();
        Press(Qt::Key_B, Qt::AltModifier);
        QStringList expected{"FOCUS Command2(1)"};
        if (m_screen->buttonsMoveFocus) {
            expected += "FOCUS Text1(4)";
        }
        QCOMPARE(m_ear->Take(), expected);
        QCOMPARE(Result(), "/");
        QCOMPARE(Focus(), m_screen->buttonsMoveFocus ? "Text1(4)" : "Command2(1)");
        QCOMPARE(Text("tbResultados"), "Ejercicios:  1; Errores:  1");
        Verdict(Numerator(), Denominator());
        QCOMPARE(Text("tbResultados"), "Ejercicios:  2; Errores:  1"); // still pending
    }

    void clear_does_not_make_an_exercise_count_again()
    {
        SetExercise();
        Click("Command2(2)");
        Click("Command2(1)");
        Verdict(Numerator(), Denominator());
        QCOMPARE(Text("tbResultados"), "Ejercicios:  0; Errores:  0");
    }

    void the_exercise_in_the_boxes_is_the_one_that_is_read()
    {
        const auto words = [](int numerator, int denominator) {
            return QString::fromStdString(lenguaje::FraccionEnLetras(numerator, denominator, {}));
        };
        for (int i = 0; i < 20; ++i) {
            const auto [n1, d1, n2, d2] = Shown();
            QCOMPARE(Text("TbMensajes").trimmed(), words(n1, d1) + m_screen->spokenSign + words(n2, d2) + "=");
            Continue();
        }
    }

    void continue_brings_a_new_exercise_and_skipping_counts_nothing()
    {
        Answer("1", "7");
        m_ear->Take();
        Press(Qt::Key_C, Qt::AltModifier);
        const QStringList heard = m_ear->Take();
        QCOMPARE(heard, QStringList({"FOCUS Command2(0)", "FOCUS Text1(4)", "SAY " + Text("TbMensajes")}));
        QCOMPARE(Focus(), "Text1(4)");
        QCOMPARE(Text("Text1(4)") + Text("Text1(5)"), "");
        QVERIFY(Text("TbMensajes").endsWith('='));
        QCOMPARE(Text("tbResultados"), "Ejercicios:  0; Errores:  0");
    }

    void continue_keeps_the_verdict_and_counts_again()
    {
        SetExercise();
        Done(Numerator(), Denominator());
        QCOMPARE(Focus(), "Command2(0)");
        Press(Qt::Key_Return);
        QCOMPARE(Text("Text3"), "Resultado correcto ");
        QCOMPARE(Text("tbResultados"), "Ejercicios:  1; Errores:  0");
        SetExercise();
        Text1(4).setText(Numerator());
        Text1(5).setText(Denominator());
        QCOMPARE(Again(), QStringList("Resultado correcto  "));
        QCOMPARE(Text("tbResultados"), "Ejercicios:  2; Errores:  0");
    }

    void continue_after_the_solution_counts_again()
    {
        Click("Command2(2)");
        Click("Command2(0)");
        SetExercise();
        Verdict(Numerator(), Denominator());
        QCOMPARE(Text("tbResultados"), "Ejercicios:  1; Errores:  0");
    }

    // Reading keys

    void f2_reads_the_fraction_in_focus()
    {
        SetOperands({3, 4, 1, 2});
        Answer("0", "7");
        const QStringList words{"tres cuartos", "tres cuartos",  "un medio",
                                "un medio",     "cero séptimos", "cero séptimos"};
        for (int box = 0; box < 6; ++box) {
            Text1(box).setFocus();
            Press(Qt::Key_F3); // so that the line holds something else
            m_ear->Take();
            Press(Qt::Key_F2);
            QCOMPARE(m_ear->Take(), QStringList("SAY " + words[box]));
            QCOMPARE(Text("TbMensajes"), words[box]);
            QCOMPARE(Focus(), QString("Text1(%1)").arg(box));
        }
    }

    void f2_again_appends_a_blank_and_drops_it()
    {
        SetOperands({3, 4, 1, 2});
        m_ear->Take();
        Press(Qt::Key_F2);
        QCOMPARE(m_ear->TakeSaid(), QStringList("tres cuartos"));
        Press(Qt::Key_F2);
        QCOMPARE(m_ear->TakeSaid(), QStringList("tres cuartos "));
        Press(Qt::Key_Up, ctrl);
        QCOMPARE(m_ear->TakeSaid(), QStringList("tres cuartos"));
    }

    void f2_elsewhere_says_that_no_fraction_is_selected()
    {
        for (const QString name : {"Text2(0)", "Text2(1)", "Command1", "Text3", "Command2(0)", "Command2(1)",
                                   "Command2(2)", "TbMensajes", "tbResultados"}) {
            Child<QWidget>(*m_form, name).setFocus();
            m_ear->Take();
            Press(Qt::Key_F2);
            QCOMPARE(m_ear->Take(), QStringList("SAY No hay ninguna fracción seleccionada"));
            QCOMPARE(Text("TbMensajes"), "No hay ninguna fracción seleccionada");
            Press(Qt::Key_Up, ctrl); // heard again, in the same words
            QCOMPARE(m_ear->Take(), QStringList("SAY No hay ninguna fracción seleccionada"));
            QCOMPARE(Focus(), name);
        }
    }

    void f3_reads_the_operation()
    {
        SetOperands({1, 3, 2, 5});
        Answer("11", "15");
        const QString words = QString("un tercio") + m_screen->spokenSign + "dos quintos=once quinceavos";
        VerifyOperation(words);
        VerifyOperation(words);
        VerifyOperation(words, Qt::Key_Down, ctrl);
        Press(Qt::Key_F2);
        VerifyOperation(words);
        QCOMPARE(Focus(), "Text1(5)");
    }

    void f3_leaves_an_empty_or_zero_result_out_data()
    {
        QTest::addColumn<QString>("numerator");
        QTest::addColumn<QString>("denominator");
        QTest::addColumn<QString>("tail");
        QTest::addRow("empty") << ""
                               << ""
                               << "";
        QTest::addRow("0/0") << "0"
                             << "0"
                             << "";
        QTest::addRow("letters") << "a"
                                 << "b"
                                 << "";
        QTest::addRow("0/7") << "0"
                             << "7"
                             << "cero séptimos";
        QTest::addRow("3/") << "3"
                            << ""
                            << "tres ceros";
        QTest::addRow("1/0") << "1"
                             << "0"
                             << "un cero";
    }
    void f3_leaves_an_empty_or_zero_result_out()
    {
        QFETCH(QString, numerator);
        QFETCH(QString, denominator);
        QFETCH(QString, tail);
        SetOperands({3, 4, 1, 2});
        Answer(numerator, denominator);
        VerifyOperation(QString("tres cuartos") + m_screen->spokenSign + "un medio=" + tail);
    }

    void reading_keys_act_with_any_modifier()
    {
        SetOperands({3, 4, 1, 2});
        for (const Qt::KeyboardModifiers held :
             {Qt::KeyboardModifiers(Qt::ShiftModifier), Qt::KeyboardModifiers(ctrl),
              Qt::KeyboardModifiers(Qt::AltModifier), Qt::ControlModifier | Qt::ShiftModifier}) {
            m_ear->Take();
            Press(Qt::Key_F2, held);
            QCOMPARE(m_ear->TakeSaid(), QStringList("tres cuartos"));
            VerifyOperation(QString("tres cuartos") + m_screen->spokenSign + "un medio=", Qt::Key_F3, held);
        }
    }

    // Moving

    void control_and_right_goes_round_the_fractions_in_the_row()
    {
        SetOperands({3, 4, 1, 2});
        Answer("5", "8");
        const QStringList words{"tres cuartos", "tres cuartos",  "un medio",
                                "un medio",     "cinco octavos", "cinco octavos"};
        for (int box = 0; box < 6; ++box) {
            const int reached = (box + 2) % 6;
            for (const Qt::KeyboardModifiers held :
                 {Qt::KeyboardModifiers(ctrl), ctrl | Qt::ShiftModifier, ctrl | Qt::AltModifier}) {
                Text1(box).setFocus();
                Press(Qt::Key_F3);
                m_ear->Take();
                Press(Qt::Key_Right, held);
                const QString name = QString("Text1(%1)").arg(reached);
                QCOMPARE(m_ear->Take(), QStringList({"FOCUS " + name, "SAY " + words[reached]}));
                QCOMPARE(Focus(), name);
            }
        }
    }

    void control_and_left_goes_round_the_other_way()
    {
        SetOperands({3, 4, 1, 2});
        Answer("5", "8");
        const QStringList words{"tres cuartos", "tres cuartos",  "un medio",
                                "un medio",     "cinco octavos", "cinco octavos"};
        for (int box = 0; box < 6; ++box) {
            Text1(box).setFocus();
            Press(Qt::Key_F3);
            m_ear->Take();
            Press(Qt::Key_Left, box % 2 == 0 ? ctrl : ctrl | Qt::ShiftModifier);
            const int reached = (box + 4) % 6;
            QCOMPARE(Focus(), QString("Text1(%1)").arg(reached));
            QCOMPARE(m_ear->TakeSaid(), QStringList(words[reached]));
        }
    }

    void from_a_sign_the_way_leads_to_a_numerator()
    {
        const auto reached = [this](const QString& sign, Qt::Key key) {
            Box(sign).setFocus();
            m_ear->Take();
            Press(key, ctrl);
            return m_ear->TakeSaid().size() == 1 ? Focus() : "not read";
        };
        QCOMPARE(reached("Text2(0)", Qt::Key_Right), "Text1(2)");
        QCOMPARE(reached("Text2(1)", Qt::Key_Right), "Text1(4)");
        QCOMPARE(reached("Text2(0)", Qt::Key_Left), "Text1(0)");
        QCOMPARE(reached("Text2(1)", Qt::Key_Left), "Text1(2)");
    }

    void control_with_a_cursor_key_does_nothing_elsewhere()
    {
        for (const QString name :
             {"Command1", "Text3", "Command2(0)", "Command2(1)", "Command2(2)", "TbMensajes", "tbResultados"}) {
            Child<QWidget>(*m_form, name).setFocus();
            m_ear->Take();
            Press(Qt::Key_Right, ctrl);
            Press(Qt::Key_Left, ctrl);
            QCOMPARE(m_ear->Take(), QStringList());
            QCOMPARE(Focus(), name);
            Press(Qt::Key_Up, ctrl);
            QCOMPARE(Focus(), name);
        }
    }

    void the_operation_is_read_wherever_the_focus_is()
    {
        SetOperands({3, 4, 1, 2});
        for (const QString name : {"Text2(0)", "Text2(1)", "Command1", "Text3", "Command2(0)", "Command2(1)",
                                   "Command2(2)", "TbMensajes", "tbResultados"}) {
            Child<QWidget>(*m_form, name).setFocus();
            VerifyOperation(QString("tres cuartos") + m_screen->spokenSign + "un medio=");
            VerifyOperation(QString("tres cuartos") + m_screen->spokenSign + "un medio=", Qt::Key_Down, ctrl);
            QCOMPARE(Focus(), name);
        }
    }

    void cursor_keys_alone_stay_in_the_box()
    {
        SetOperands({34, 4, 1, 2});
        Text1(0).setCursorPosition(0);
        m_ear->Take();
        Press(Qt::Key_Right);
        QCOMPARE(Text1(0).cursorPosition(), 1);
        Press(Qt::Key_Left);
        QCOMPARE(Text1(0).cursorPosition(), 0);
        Press(Qt::Key_Up);
        Press(Qt::Key_Down);
        QCOMPARE(Focus(), "Text1(0)");
        QCOMPARE(m_ear->TakeSaid(), QStringList());
    }

    // The rest

    void the_key_help_shows_its_four_lines()
    {
        Text1(4).setFocus();
        WithDialog([this] { Choose("MnuOpcTec"); },
                   [](QWidget& dialog) {
                       auto& box = dynamic_cast<QMessageBox&>(dialog);
                       QCOMPARE(box.windowTitle(), "Combinaciones de teclas");
                       QCOMPARE(box.text(), "F2: Lee la fracción seleccionada.\r\n"
                                            "F3: Lee la operación completa.\r\n"
                                            "Control + cursor derecha: Pasa de una fracción a la de su derecha.\r\n"
                                            "Control + cursor izquierda: Pasa de una fracción a la de su izquierda.");
                       QCOMPARE(box.buttons().size(), 1);
                       QCOMPARE(box.buttons().front()->text(), "Aceptar");
                       QTest::keyClick(&dialog, Qt::Key_Escape);
                   });
        m_form->activateWindow(); // as a window manager does
        QTRY_COMPARE(Focus(), "Text1(4)");
    }

    void escape_does_nothing()
    {
        Press(Qt::Key_Escape);
        Settle();
        QVERIFY(m_form && m_form->isVisible());
    }

    void leaving_closes_the_screen_and_a_new_one_starts_afresh()
    {
        SetExercise();
        Verdict("1", "9");
        Choose("MnuOpcCanLis(2)");
        if (m_screen->denominators) {
            Choose("MnuOpcDenLis(1)");
        }
        Choose("MnuOpcSal");
        Settle();
        QVERIFY(!m_form);
        OpenScreen(m_screen->create());
        QCOMPARE(Text("tbResultados"), "Ejercicios:  0; Errores:  0");
        QVERIFY(Entry("MnuOpcCanLis(0)").isChecked());
        for (int i = 0; i < 100; ++i) {
            Continue();
            const Operands values = Shown();
            QVERIFY(*std::ranges::max_element(values) <= 11); // the difference goes one beyond
            QVERIFY(!m_screen->denominators || values[1] == values[3]);
        }
    }

    void button_faces_have_exactly_their_colours()
    {
        const auto face = [this](const QString& name) {
            auto& button = Child<QWidget>(*m_form, name);
            return button.grab().toImage().pixelColor(button.width() / 2, button.height() - 8);
        };
        QCOMPARE(face("Command1"), QColor(255, 255, 0));
        QCOMPARE(face("Command2(0)"), QColor(0, 255, 255));
        QCOMPARE(face("Command2(1)"), QColor(0, 255, 0));
        QCOMPARE(face("Command2(2)"), QColor(255, 0, 0));
    }

    void the_verdict_is_drawn_in_the_colours_of_selected_text()
    {
        QCOMPARE(Box("Text3").palette().color(QPalette::Base), QApplication::palette().color(QPalette::Highlight));
    }

    void the_lower_buttons_stand_whole_in_front_of_what_they_cover()
    {
        Verdict("1", "9");
        const QImage picture = m_form->centralWidget()->grab().toImage();
        const QRect buttons = Child<QWidget>(*m_form, "Command2(0)").geometry();
        const QRect verdict = Box("Text3").geometry();
        QVERIFY(verdict.top() < buttons.bottom());
        QCOMPARE(picture.pixelColor(buttons.left() + 5, buttons.top() + 3), QColor(0, 255, 255));
        QCOMPARE(picture.pixelColor(buttons.left() + 5, verdict.top() + 6), QColor(0, 255, 255));
        const QColor background = Box("Text3").palette().color(QPalette::Base);
        QCOMPARE(picture.pixelColor(verdict.left() + 3, verdict.bottom() - 3), background);
        const QRect gap(buttons.right() + 1, verdict.top(), 4, buttons.bottom() - verdict.top());
        for (int x = gap.left(); x <= gap.right(); ++x) {
            QVERIFY(picture.pixelColor(x, gap.center().y()) != background); // it does not show between the buttons
        }
        const int free = verdict.bottom() - buttons.bottom();
        QVERIFY(QFontMetrics(Box("Text3").font()).height() <= free);
        QVERIFY(Box("Text3").textMargins().top() >= buttons.bottom() - verdict.top());
    }

    void an_access_key_held_down_presses_once()
    {
        SetExercise();
        Text1(4).setFocus();
        const auto press = [](bool again) {
            QTest::simulateEvent(QApplication::focusWidget(), true, Qt::Key_H, Qt::AltModifier, "h", again);
        };
        press(false);
        for (int i = 0; i < 5; ++i) {
            press(true);
        }
        QCOMPARE(Text("tbResultados"), "Ejercicios:  1; Errores:  1");
    }

    void the_longest_values_show_whole()
    {
        const auto fits = [this](const QString& name, const QString& text) {
            QLineEdit& box = Box(name);
            box.setText(text);
            const int room = box.width() - box.textMargins().left() - box.textMargins().right() - 4;
            return QFontMetrics(box.font()).horizontalAdvance(text) <= room;
        };
        QVERIFY(fits("Text1(4)", "10000"));
        QVERIFY(fits("Text1(5)", "-10000"));
        QVERIFY(fits("tbResultados", "Ejercicios:999; Errores:999"));
        QVERIFY(fits("Text3", "Resultado incorrecto "));
        QVERIFY(fits("TbMensajes", QString(" nueve novenos") + m_screen->spokenSign + "siete octavos="));
    }

    void the_window_grows_with_everything_in_it()
    {
        const QSize before = m_form->centralWidget()->size();
        const QRect place = Text1(4).geometry();
        const int type = Text1(4).font().pixelSize();
        m_form->resize(2 * before.width(), 2 * before.height() + m_form->height() - before.height());
        Settle();
        const QRect grown = Text1(4).geometry();
        QVERIFY(std::abs(grown.left() - 2 * place.left()) <= 1);
        QVERIFY(std::abs(grown.width() - 2 * place.width()) <= 1);
        QCOMPARE(Text1(4).font().pixelSize(), 2 * type);
        m_form->resize(4 * before.width(), m_form->height()); // only wider: the same size, in the middle
        Settle();
        QCOMPARE(Text1(4).width(), grown.width());
        QVERIFY(std::abs(Text1(4).x() - grown.x() - before.width()) <= 1);
    }
};

KELVORA_TEST_MAIN(tst_FormOperacion)
#include "tst_FormOperacion.moc"
