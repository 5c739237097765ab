#include "Form2.h"
#include "Random.h"
#include "Support.h"

#include <QAction>
#include <QClipboard>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

#include <memory>

using namespace support;

namespace {

constexpr auto ctrl = Qt::ControlModifier;

} // namespace

class tst_Form2 : public QObject
{
    Q_OBJECT

private:
    QPointer<operaciones::Form2> m_form;
    std::unique_ptr<Ear> m_ear;

    QLineEdit& Box(const QString& name) const { return Child<QLineEdit>(*m_form, name); }
    QLineEdit& Text1(int index) const { return Box(QString("Text1(%1)").arg(index)); }
    QString Text(const QString& name) const { return Box(name).text(); }
    QAction& Entry(const QString& name) const { return Child<QAction>(*m_form, name); }
    int Number(int index) const { return Text1(index).text().toInt(); }

    void SetOperands(int n1, int d1, int n2, int d2) const
    {
        const std::array values{n1, d1, n2, d2};
        for (int i = 0; i < 4; ++i) {
            Text1(i).setText(QString::number(values[i]));
        }
    }

    // Types a result and leaves the focus in its denominator.
    void Answer(const QString& numerator, const QString& denominator) const
    {
        Text1(4).setFocus();
        Text1(4).clear();
        Type(numerator);
        Text1(5).setFocus();
        Text1(5).clear();
        Type(denominator);
    }

    // Answers and presses Enter; the verdict that is heard.
    QStringList Verdict(const QString& numerator, const QString& denominator) const
    {
        Answer(numerator, denominator);
        m_ear->Take();
        Press(Qt::Key_Return);
        return m_ear->TakeSaid();
    }

    void Click(const QString& name) const { QTest::mouseClick(&Child<QPushButton>(*m_form, name), Qt::LeftButton); }
    void Choose(const QString& name) const { Entry(name).trigger(); }

private slots:
    void init()
    {
        ui::FixSeed(7);
        m_ear = std::make_unique<Ear>();
        m_form = new operaciones::Form2;
        m_form->Open(ui::Modality::Modeless);
        QVERIFY(WaitActive(*m_form));
    }

    void cleanup()
    {
        if (m_form) {
            m_form->close();
        }
        Settle();
        QVERIFY(!m_form);
        m_ear.reset();
        ui::FixSeed({});
        QVERIFY(QApplication::topLevelWidgets().isEmpty());
    }

    // Opening

    void opens_with_the_first_exercise_heard_after_the_focus()
    {
        QCOMPARE(m_form->windowTitle(), "SUMA DE FRACCIONES");
        QCOMPARE(Focus(), "Text1(0)");
        const QStringList heard = m_ear->Take();
        QCOMPARE(heard, QStringList({"FOCUS Text1(0)", "SAY " + Text("TbMensajes")}));
        QVERIFY(Text("TbMensajes").startsWith(' '));
        QVERIFY(Text("TbMensajes").endsWith('='));
    }

    void opens_with_its_initial_texts_and_options()
    {
        QCOMPARE(Text("Text2(0)"), "+");
        QCOMPARE(Text("Text2(1)"), "=");
        QCOMPARE(Text("Text1(4)"), "");
        QCOMPARE(Text("Text1(5)"), "");
        QCOMPARE(Text("Text3"), "");
        QCOMPARE(Text("tbResultados"), "Ejercicios:  0; Errores:  0");
        QVERIFY(Entry("MnuOpcCanLis(0)").isChecked());
        QVERIFY(Entry("MnuOpcDenLis(0)").isChecked());
        QCOMPARE(Text("Text1(1)"), Text("Text1(3)"));
    }

    void captions_of_the_menu_are_as_given()
    {
        const QStringList captions{"&Opciones",
                                   "&Cantidades",
                                   "Hasta &10",
                                   "Hasta &20",
                                   "Hasta &100",
                                   "&Denominador",
                                   "El &mismo denominador",
                                   "&Distinto denominador ",
                                   "&Combinaciones de teclas...",
                                   "&Salir (Alt - F4)"};
        const QStringList names{"MnuOpc",    "MnuOpcCan",       "MnuOpcCanLis(0)", "MnuOpcCanLis(1)", "MnuOpcCanLis(2)",
                                "MnuOpcDen", "MnuOpcDenLis(0)", "MnuOpcDenLis(1)", "MnuOpcTec",       "MnuOpcSal"};
        for (qsizetype i = 0; i < names.size(); ++i) {
            QCOMPARE(Entry(names[i]).text(), captions[i]);
        }
    }

    void controls_stand_at_the_given_places()
    {
        const auto verify = [this](const QString& name, int left, int top, int width, int height) {
            const QRect seen = Child<QWidget>(*m_form, name).geometry();
            const auto near = [](int pixels, int twips) { return std::abs(pixels - twips / 15.0) <= 1; };
            QVERIFY2(near(seen.left(), left) && near(seen.top(), top) && near(seen.width(), width) &&
                         near(seen.height(), height),
                     qPrintable(name));
        };
        verify("Text1(0)", 500, 500, 600, 555);
        verify("Text1(1)", 500, 1100, 600, 555);
        verify("Text1(2)", 2455, 500, 600, 555);
        verify("Text1(3)", 2455, 1100, 600, 555);
        verify("Text1(4)", 4210, 500, 600, 555);
        verify("Text1(5)", 4210, 1100, 600, 555);
        verify("Command1", 1650, 2100, 1500, 495);
        verify("Text3", 900, 2800, 3000, 500);
        verify("Command2(0)", 1650, 2500, 1500, 500);
        verify("Command2(1)", 75, 2500, 1500, 500);
        verify("Command2(2)", 3225, 2500, 1500, 500);
        verify("TbMensajes", 0, 3500, 4800, 495);
        verify("tbResultados", 900, 4500, 3000, 495);
        QCOMPARE(Child<QWidget>(*m_form, "Text2(0)").pos(), QPoint(93, 53));
        QCOMPARE(Child<QWidget>(*m_form, "Text2(1)").pos(), QPoint(224, 53));
        for (int i = 0; i < 3; ++i) {
            const QRect line = Child<QWidget>(*m_form, QString("Line1(%1)").arg(i)).geometry();
            QVERIFY(line.top() <= 72 && line.bottom() >= 71); // 1075 twips
            QVERIFY(line.top() > Text1(2 * i).geometry().bottom());
            QVERIFY(line.bottom() < Text1(2 * i + 1).geometry().top());
            QCOMPARE(line.left(), Text1(2 * i).geometry().left());
        }
    }

    void tab_walks_the_controls_in_their_order_and_round()
    {
        const QStringList order{"Text1(0)",    "Text1(1)",    "Text2(0)",    "Text1(2)",   "Text1(3)",
                                "Text2(1)",    "Text1(4)",    "Text1(5)",    "Command1",   "Text3",
                                "Command2(0)", "Command2(1)", "Command2(2)", "TbMensajes", "tbResultados"};
        for (const QString& name : order) {
            QCOMPARE(Focus(), name);
            Press(Qt::Key_Tab);
        }
        QCOMPARE(Focus(), order.front());
        QStringList back;
        do {
            Press(Qt::Key_Backtab, Qt::ShiftModifier);
            back.prepend(Focus());
        } while (Focus() != order.front() && back.size() < order.size());
        QCOMPARE(back, order);
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

    void every_stop_has_a_spanish_name_of_its_own()
    {
        QStringList names;
        for (const QWidget* widget : m_form->findChildren<QWidget*>()) {
            if (widget->focusPolicy() != Qt::NoFocus && widget->parentWidget() == m_form->centralWidget()) {
                const QString name =
                    QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget))->text(QAccessible::Name);
                QVERIFY(!name.isEmpty());
                QVERIFY(!name.contains('&'));
                names += name;
            }
        }
        QCOMPARE(names.size(), 15);
        QCOMPARE(names.removeDuplicates(), 0);
        QVERIFY(names.contains("Numerador de la primera fracción"));
        QVERIFY(names.contains("Numerador del resultado"));
        QVERIFY(names.contains("Ver solución"));
    }

    // Generation

    void draws_within_the_range_with_one_denominator_data()
    {
        QTest::addColumn<int>("option");
        QTest::addColumn<int>("limit");
        QTest::addRow("10") << 0 << 10;
        QTest::addRow("20") << 1 << 20;
        QTest::addRow("100") << 2 << 100;
    }
    void draws_within_the_range_with_one_denominator()
    {
        QFETCH(int, option);
        QFETCH(int, limit);
        Choose(QString("MnuOpcCanLis(%1)").arg(option));
        std::array<QSet<int>, 4> seen;
        bool improper = false;
        for (int i = 0; i < 10'000; ++i) {
            Child<QPushButton>(*m_form, "Command2(0)").click();
            for (int box = 0; box < 4; ++box) {
                const int value = Number(box);
                QCOMPARE(Text1(box).text(), QString::number(value));
                QVERIFY(value >= 2 && value <= limit);
                seen.at(box).insert(value);
            }
            QCOMPARE(Number(1), Number(3));
            improper = improper || Number(0) > Number(1);
        }
        for (const QSet<int>& values : seen) {
            QCOMPARE(values.size(), limit - 1); // every value from 2 to the limit comes up
        }
        QVERIFY(improper);
    }

    void draws_different_denominators_data() { draws_within_the_range_with_one_denominator_data(); }
    void draws_different_denominators()
    {
        QFETCH(int, option);
        QFETCH(int, limit);
        Choose(QString("MnuOpcCanLis(%1)").arg(option));
        Choose("MnuOpcDenLis(1)");
        std::array<QSet<int>, 4> seen;
        for (int i = 0; i < 10'000; ++i) {
            Child<QPushButton>(*m_form, "Command2(0)").click();
            for (int box = 0; box < 4; ++box) {
                QVERIFY(Number(box) >= 2 && Number(box) <= limit);
                seen.at(box).insert(Number(box));
            }
            QVERIFY(Number(1) != Number(3));
        }
        for (const QSet<int>& values : seen) {
            QCOMPARE(values.size(), limit - 1);
        }
    }

    void uses_four_draws_in_the_order_of_the_boxes()
    {
        // The same seed drawn by hand gives what the boxes hold, in both modes.
        for (const bool same : {true, false}) {
            Choose(same ? "MnuOpcDenLis(0)" : "MnuOpcDenLis(1)");
            ui::FixSeed(99);
            ui::Randomize(0);
            std::vector<std::array<int, 4>> drawn(2000);
            for (auto& values : drawn) {
                for (int& value : values) {
                    value = static_cast<int>(9 * ui::Rnd()) + 2;
                }
            }
            ui::Randomize(0);
            int clashes = 0;
            for (const auto& values : drawn) {
                Child<QPushButton>(*m_form, "Command2(0)").click();
                const bool clash = values[1] == values[3];
                clashes += clash ? 1 : 0;
                const int lowered = values[3] == 2 ? 3 : values[3] - 1;
                QCOMPARE(Number(0), values[0]);
                QCOMPARE(Number(1), values[1]);
                QCOMPARE(Number(2), values[2]);
                QCOMPARE(Number(3), same ? values[1] : (clash ? lowered : values[3]));
            }
            QVERIFY(clashes > 100);
        }
    }

    void two_openings_draw_different_exercises()
    {
        ui::FixSeed({});
        QSet<QString> seen;
        for (int i = 0; i < 5; ++i) {
            operaciones::Form2 form;
            form.setAttribute(Qt::WA_DeleteOnClose, false);
            form.Open(ui::Modality::Modeless);
            seen.insert(Child<QLineEdit>(form, "TbMensajes").text());
        }
        QVERIFY(seen.size() > 1);
    }

    void a_chosen_option_waits_for_the_next_exercise()
    {
        const QString before =
            Text("Text1(0)") + "/" + Text("Text1(1)") + "+" + Text("Text1(2)") + "/" + Text("Text1(3)");
        m_ear->Take();
        Choose("MnuOpcCanLis(2)");
        Choose("MnuOpcDenLis(1)");
        QCOMPARE(m_ear->TakeSaid(), QStringList());
        QCOMPARE(Text("Text1(0)") + "/" + Text("Text1(1)") + "+" + Text("Text1(2)") + "/" + Text("Text1(3)"), before);
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(Entry(QString("MnuOpcCanLis(%1)").arg(i)).isChecked(), i == 2);
        }
        QVERIFY(!Entry("MnuOpcDenLis(0)").isChecked());
        QVERIFY(Entry("MnuOpcDenLis(1)").isChecked());
        Choose("MnuOpcCanLis(2)"); // choosing the checked one again leaves it checked
        QVERIFY(Entry("MnuOpcCanLis(2)").isChecked());
    }

    // Solution

    void shows_the_sum_over_the_denominators_own_common_multiple()
    {
        const auto solution = [this](int n1, int d1, int n2, int d2) {
            SetOperands(n1, d1, n2, d2);
            Child<QPushButton>(*m_form, "Command2(2)").click();
            return Text("Text1(4)") + "/" + Text("Text1(5)");
        };
        QCOMPARE(solution(3, 7, 5, 7), "8/7");
        QCOMPARE(solution(2, 10, 3, 10), "5/10");
        QCOMPARE(solution(1, 6, 1, 4), "5/12");
        QCOMPARE(solution(1, 19, 1, 38), "57/722");
        QCOMPARE(solution(100, 99, 100, 98), "19700/9702");
    }

    void every_pair_of_denominators_has_the_exact_sum()
    {
        for (int d1 = 2; d1 <= 100; ++d1) {
            for (int d2 = 2; d2 <= 100; ++d2) {
                const int n1 = 2 + (d1 * 7 + d2) % 99;
                const int n2 = 2 + (d2 * 5 + d1) % 99;
                SetOperands(n1, d1, n2, d2);
                Child<QPushButton>(*m_form, "Command2(2)").click();
                const qint64 n = Number(4);
                const qint64 d = Number(5);
                QVERIFY(d % d1 == 0 && d % d2 == 0);
                QCOMPARE(n * d1 * d2, (static_cast<qint64>(n1) * d2 + static_cast<qint64>(n2) * d1) * d);
            }
        }
    }

    void showing_the_solution_reads_it_and_stops_the_counting()
    {
        SetOperands(3, 7, 5, 7);
        Child<QPushButton>(*m_form, "Command2(0)").setFocus();
        m_ear->Take();
        Click("Command2(2)");
        QCOMPARE(m_ear->Take(), QStringList({"FOCUS Command2(2)", "FOCUS Text1(4)", "SAY ocho séptimos"}));
        QCOMPARE(Focus(), "Text1(4)");
        QCOMPARE(Text("TbMensajes"), "ocho séptimos");
        QCOMPARE(Verdict("8", "7"), QStringList("Resultado correcto "));
        QCOMPARE(Text("tbResultados"), "Ejercicios:  0; Errores:  0");
        QCOMPARE(Verdict("9", "7"), QStringList("Resultado incorrecto"));
        QCOMPARE(Text("tbResultados"), "Ejercicios:  0; Errores:  0");
    }

    // Checking

    void judges_by_the_cross_product_data()
    {
        QTest::addColumn<QString>("numerator");
        QTest::addColumn<QString>("denominator");
        QTest::addColumn<bool>("right");
        const auto row = [](const QString& n, const QString& d, bool right) {
            QTest::newRow(qPrintable(n.left(12) + "/" + d.left(12))) << n << d << right;
        };
        row("8", "7", true);
        row("16", "14", true);
        row("4", "3.5", true);
        row(" 8 ", "+7", true);
        row("-8", "-7", true);
        row("8abc", "7", true);
        row("0", "0", true);
        row("abc", "xyz", true); // both read as 0
        row(" ", " ", true);
        row("7", "8", false);
        row("8", "", false);
        row("", "7", false);
        row("", "", false);
        row("8", "0", false);
        row("0", "7", false);
        row("-8", "7", false);
        row("1.5", "1.5", false);
        row("8,0", "7", true); // the comma ends the number
        row(QString(40, '9'), QString(40, '9'), false);
        row("8" + QString(40, '0'), "7" + QString(40, '0'), true);
        row(QString(308, '9'), QString(308, '9'), false);
        row(QString(400, '9'), QString(400, '9'), false);
        row(QString(400, '9'), "7", false);
    }
    void judges_by_the_cross_product()
    {
        QFETCH(QString, numerator);
        QFETCH(QString, denominator);
        QFETCH(bool, right);
        SetOperands(3, 7, 5, 7);
        Text1(4).setText(numerator);
        Text1(5).setText(denominator);
        Text1(5).setFocus();
        m_ear->Take();
        Press(Qt::Key_Return);
        const QString verdict = right ? "Resultado correcto " : "Resultado incorrecto";
        QCOMPARE(m_ear->TakeSaid(), QStringList(verdict));
        QCOMPARE(Text("Text3"), verdict);
        QCOMPARE(Focus(), right ? "Command2(0)" : "Text1(5)");
        QCOMPARE(Text("tbResultados"), right ? "Ejercicios:  1; Errores:  0" : "Ejercicios:  1; Errores:  1");
        QCOMPARE(Text1(4).text(), numerator);
        QCOMPARE(Text1(5).text(), denominator);
    }

    void accepts_a_reduced_answer_over_a_larger_common_denominator()
    {
        SetOperands(1, 19, 1, 38);
        QCOMPARE(Verdict("3", "38"), QStringList("Resultado correcto "));
    }

    void a_pasted_megabyte_gets_a_verdict()
    {
        SetOperands(3, 7, 5, 7);
        QApplication::clipboard()->setText(QString(1'000'000, '7'));
        for (const int box : {4, 5}) {
            Text1(box).setFocus();
            Press(Qt::Key_V, ctrl);
            QVERIFY(Text1(box).text().size() > 1000);
        }
        m_ear->Take();
        Press(Qt::Key_Return);
        QCOMPARE(m_ear->TakeSaid(), QStringList("Resultado incorrecto"));
        Press(Qt::Key_F2);
        QCOMPARE(m_ear->TakeSaid(), QStringList("número demasiado grande número demasiado grandes"));
        Press(Qt::Key_F3);
        QCOMPARE(m_ear->TakeSaid().size(), 1);
    }

    void a_repeated_verdict_comes_with_a_blank_more_and_without()
    {
        SetOperands(3, 7, 5, 7);
        QCOMPARE(Verdict("1", "7"), QStringList("Resultado incorrecto"));
        QCOMPARE(Verdict("1", "7"), QStringList("Resultado incorrecto "));
        QCOMPARE(Verdict("1", "7"), QStringList("Resultado incorrecto"));
        QCOMPARE(Verdict("8", "7"), QStringList("Resultado correcto "));
        QCOMPARE(Verdict("8", "7"), QStringList("Resultado correcto  "));
        QCOMPARE(Verdict("8", "7"), QStringList("Resultado correcto "));
    }

    void every_wrong_answer_counts_and_a_right_one_once()
    {
        SetOperands(3, 7, 5, 7);
        Verdict("1", "7");
        QCOMPARE(Text("tbResultados"), "Ejercicios:  1; Errores:  1");
        Verdict("", "");
        QCOMPARE(Text("tbResultados"), "Ejercicios:  2; Errores:  2");
        Verdict("8", "7");
        QCOMPARE(Text("tbResultados"), "Ejercicios:  3; Errores:  2");
        Verdict("8", "7");
        Verdict("9", "7");
        QCOMPARE(Text("tbResultados"), "Ejercicios:  3; Errores:  2");
    }

    void the_score_line_keeps_three_places_and_grows_beyond()
    {
        SetOperands(3, 7, 5, 7);
        Answer("1", "7");
        for (int i = 1; i <= 1000; ++i) {
            Press(Qt::Key_Return);
            const QString number = QString::number(i).rightJustified(3);
            QCOMPARE(Text("tbResultados"), "Ejercicios:" + number + "; Errores:" + number);
        }
    }

    void the_verdict_leaves_the_message_line_alone()
    {
        const QString before = Text("TbMensajes");
        Verdict("1", "7");
        QCOMPARE(Text("TbMensajes"), before);
    }

    void enter_checks_in_every_fraction_box_and_the_keypads_too()
    {
        SetOperands(3, 7, 5, 7);
        for (int box = 0; box < 6; ++box) {
            Text1(box).setFocus();
            m_ear->Take();
            Press(box % 2 == 0 ? Qt::Key_Return : Qt::Key_Enter);
            QCOMPARE(m_ear->TakeSaid().size(), 1);
            QCOMPARE(Focus(), QString("Text1(%1)").arg(box));
            QVERIFY(Text("tbResultados").endsWith(QString::number(box + 1)));
        }
        for (const QString name : {"Text2(0)", "Text3", "TbMensajes", "tbResultados"}) {
            Box(name).setFocus();
            m_ear->Take();
            Press(Qt::Key_Return);
            QCOMPARE(m_ear->TakeSaid(), QStringList());
        }
        QCOMPARE(Text("tbResultados"), "Ejercicios:  6; Errores:  6");
    }

    void a_key_held_down_checks_once()
    {
        SetOperands(3, 7, 5, 7);
        Answer("1", "7");
        Press(Qt::Key_Return);
        for (int i = 0; i < 5; ++i) {
            QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
            QCoreApplication::sendEvent(&Text1(5), &repeat);
        }
        QCOMPARE(Text("tbResultados"), "Ejercicios:  1; Errores:  1");
    }

    void done_checks_by_click_by_access_key_and_by_enter()
    {
        SetOperands(3, 7, 5, 7);
        Answer("1", "7");
        m_ear->Take();
        Click("Command1");
        QCOMPARE(m_ear->Take(), QStringList({"FOCUS Command1", "SAY Resultado incorrecto"}));
        QCOMPARE(Focus(), "Command1");
        Text1(4).setFocus();
        m_ear->Take();
        Press(Qt::Key_H, Qt::AltModifier);
        QCOMPARE(m_ear->Take(), QStringList({"FOCUS Command1", "SAY Resultado incorrecto "}));
        Press(Qt::Key_Return);
        QCOMPARE(m_ear->Take(), QStringList("SAY Resultado incorrecto"));
        Press(Qt::Key_Space);
        QCOMPARE(m_ear->Take(), QStringList("SAY Resultado incorrecto "));
        QCOMPARE(Text("tbResultados"), "Ejercicios:  4; Errores:  4");
    }

    void the_verdict_is_said_after_the_focus_has_moved_on()
    {
        SetOperands(3, 7, 5, 7);
        Answer("8", "7");
        m_ear->Take();
        Press(Qt::Key_Return);
        QCOMPARE(m_ear->Take(), QStringList({"FOCUS Command2(0)", "SAY Resultado correcto "}));
    }

    // Clear and continue

    void clear_empties_the_result_and_counts_nothing()
    {
        SetOperands(3, 7, 5, 7);
        Verdict("1", "7");
        m_ear->Take();
        Press(Qt::Key_B, Qt::AltModifier);
        QCOMPARE(m_ear->Take(), QStringList({"FOCUS Command2(1)", "FOCUS Text1(4)"}));
        QCOMPARE(Text("Text1(4)") + Text("Text1(5)"), "");
        QCOMPARE(Focus(), "Text1(4)");
        QCOMPARE(Text("tbResultados"), "Ejercicios:  1; Errores:  1");
        QCOMPARE(Text("Text3"), "Resultado incorrecto");
        Verdict("8", "7");
        QCOMPARE(Text("tbResultados"), "Ejercicios:  2; Errores:  1"); // still pending
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
        SetOperands(3, 7, 5, 7);
        Verdict("8", "7");
        QCOMPARE(Focus(), "Command2(0)");
        Press(Qt::Key_Return);
        QCOMPARE(Text("Text3"), "Resultado correcto ");
        QCOMPARE(Text("tbResultados"), "Ejercicios:  1; Errores:  0");
        SetOperands(3, 7, 5, 7);
        QCOMPARE(Verdict("8", "7"), QStringList("Resultado correcto  "));
        QCOMPARE(Text("tbResultados"), "Ejercicios:  2; Errores:  0");
    }

    void continue_after_the_solution_counts_again()
    {
        Click("Command2(2)");
        Click("Command2(0)");
        SetOperands(3, 7, 5, 7);
        Verdict("8", "7");
        QCOMPARE(Text("tbResultados"), "Ejercicios:  1; Errores:  0");
    }

    // Reading keys

    void f2_reads_the_fraction_in_focus()
    {
        SetOperands(3, 4, 1, 2);
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
        SetOperands(3, 4, 1, 2);
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

    void f3_reads_the_operation_with_a_lead_that_alternates()
    {
        SetOperands(1, 3, 2, 5);
        Answer("11", "15");
        Press(Qt::Key_F2);
        m_ear->Take();
        Press(Qt::Key_F3);
        QCOMPARE(m_ear->TakeSaid(), QStringList(" un tercio+dos quintos=once quinceavos"));
        Press(Qt::Key_F3);
        QCOMPARE(m_ear->TakeSaid(), QStringList("un tercio+dos quintos=once quinceavos"));
        Press(Qt::Key_Down, ctrl);
        QCOMPARE(m_ear->TakeSaid(), QStringList(" un tercio+dos quintos=once quinceavos"));
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
        QTest::addRow("-2/3") << "-2"
                              << "3"
                              << "cero tercios";
    }
    void f3_leaves_an_empty_or_zero_result_out()
    {
        QFETCH(QString, numerator);
        QFETCH(QString, denominator);
        QFETCH(QString, tail);
        SetOperands(3, 4, 1, 2);
        Answer(numerator, denominator);
        Press(Qt::Key_F2);
        Press(Qt::Key_F3);
        QCOMPARE(Text("TbMensajes"), " tres cuartos+un medio=" + tail);
    }

    void reading_keys_act_with_any_modifier()
    {
        SetOperands(3, 4, 1, 2);
        for (const Qt::KeyboardModifiers held :
             {Qt::KeyboardModifiers(Qt::ShiftModifier), Qt::KeyboardModifiers(ctrl),
              Qt::KeyboardModifiers(Qt::AltModifier), Qt::ControlModifier | Qt::ShiftModifier}) {
            m_ear->Take();
            Press(Qt::Key_F2, held);
            QCOMPARE(m_ear->TakeSaid(), QStringList("tres cuartos"));
            Press(Qt::Key_F3, held);
            QCOMPARE(m_ear->TakeSaid(), QStringList(" tres cuartos+un medio="));
        }
    }

    // Moving

    void control_and_right_goes_round_the_fractions_in_the_row()
    {
        SetOperands(3, 4, 1, 2);
        Answer("5", "8");
        const QStringList words{"tres cuartos", "tres cuartos",  "un medio",
                                "un medio",     "cinco octavos", "cinco octavos"};
        for (int box = 0; box < 6; ++box) {
            const int reached = (box + 2) % 6;
            for (const Qt::KeyboardModifiers held : {Qt::KeyboardModifiers(ctrl), ctrl | Qt::ShiftModifier}) {
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
        SetOperands(3, 4, 1, 2);
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
            Press(Qt::Key_Down, ctrl);
            QCOMPARE(Focus(), name);
        }
    }

    void cursor_keys_alone_stay_in_the_box()
    {
        SetOperands(34, 4, 1, 2);
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
        SetOperands(3, 7, 5, 7);
        Verdict("1", "7");
        Choose("MnuOpcCanLis(2)");
        Choose("MnuOpcSal");
        Settle();
        QVERIFY(!m_form);
        m_form = new operaciones::Form2;
        m_form->Open(ui::Modality::Modeless);
        QVERIFY(WaitActive(*m_form));
        QCOMPARE(Text("tbResultados"), "Ejercicios:  0; Errores:  0");
        QVERIFY(Entry("MnuOpcCanLis(0)").isChecked());
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
        Verdict("1", "7");
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
        SetOperands(3, 7, 5, 7);
        Answer("1", "7");
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
        QVERIFY(fits("TbMensajes", " nueve novenos+siete octavos="));
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

KELVORA_TEST_MAIN(tst_Form2)
#include "tst_Form2.moc"
