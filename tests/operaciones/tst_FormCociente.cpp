#include "FormCociente.h"
#include "OperationScreen.h"

using namespace support;

class tst_FormCociente : public QObject, private OperationScreen
{
    Q_OBJECT

private slots:
    void init()
    {
        numeros::FijarSemilla(7);
        OpenScreen(std::make_unique<operaciones::FormCociente>());
    }
    void cleanup() { CloseScreen(); }

    void draws_four_values_without_any_rule_data() { AddRanges(); }
    void draws_four_values_without_any_rule()
    {
        QFETCH(int, range);
        VerifyExercises(range, reglas::SortearOperandos);
    }

    void shows_the_quotient()
    {
        QCOMPARE(Solution({2, 3, 4, 5}), "10/12");
        QCOMPARE(Solution({100, 100, 100, 100}), "10000/10000");
    }

    void accepts_any_equivalent_fraction()
    {
        SetOperands({2, 3, 4, 5});
        for (const QString right : {"10/12", "5/6"}) {
            Verdict(right.section('/', 0, 0), right.section('/', 1));
            QVERIFY(Text("Text3").startsWith("Resultado correcto "));
        }
    }

    void an_operation_is_always_the_same_text_and_heard_again()
    {
        SetOperands({2, 3, 4, 5});
        m_ear->Take();
        for (int i = 0; i < 3; ++i) {
            Press(Qt::Key_F3);
            QCOMPARE(m_ear->TakeSaid(), QStringList("dos tercios÷cuatro quintos="));
        }
    }

    void keys_leave_the_verdict()
    {
        Verdict("1", "7");
        for (int box = 0; box < 6; ++box) {
            Text1(box).setFocus();
            for (const Qt::Key key : {Qt::Key_7, Qt::Key_A, Qt::Key_Space, Qt::Key_Backspace, Qt::Key_Escape}) {
                Press(key);
                QCOMPARE(Text("Text3"), "Resultado incorrecto ");
            }
        }
    }

    void a_verdict_repeated_by_enter_comes_with_a_blank_more_and_without()
    {
        QCOMPARE(Verdict("1", ""), QStringList("Resultado incorrecto "));
        QCOMPARE(Verdict("1", ""), QStringList("Resultado incorrecto  "));
        QCOMPARE(Verdict("1", ""), QStringList("Resultado incorrecto "));
    }

    void from_clear_the_pupil_goes_on_by_keyboard()
    {
        Answer("1", "7");
        Press(Qt::Key_B, Qt::AltModifier);
        QCOMPARE(Focus(), "Command2(1)");
        Press(Qt::Key_Space);
        QCOMPARE(Focus(), "Command2(1)");
        QCOMPARE(Result(), "/");
        for (int i = 0; i < 5; ++i) {
            Press(Qt::Key_Backtab, Qt::ShiftModifier);
        }
        QCOMPARE(Focus(), "Text1(4)");
        Press(Qt::Key_V, Qt::AltModifier);
        QCOMPARE(Focus(), "Command2(2)");
        Press(Qt::Key_C, Qt::AltModifier);
        QCOMPARE(Focus(), "Text1(4)");
    }
};

KELVORA_TEST_MAIN(tst_FormCociente)
#include "tst_FormCociente.moc"
