#include "Form2.h"
#include "OperationScreen.h"

using namespace support;

class tst_Form2 : public QObject, private OperationScreen
{
    Q_OBJECT

private slots:
    void init()
    {
        numeros::FijarSemilla(7);
        OpenScreen(std::make_unique<operaciones::Form2>());
    }
    void cleanup() { CloseScreen(); }

    void draws_one_denominator_data() { AddRanges(); }
    void draws_one_denominator()
    {
        QFETCH(int, range);
        Choose("MnuOpcDenLis(1)");
        Choose("MnuOpcDenLis(0)"); // back to one denominator
        VerifyExercises(range, [](int limit) { return reglas::SortearSumandos(limit, true); });
    }

    void draws_different_denominators_data() { AddRanges(); }
    void draws_different_denominators()
    {
        QFETCH(int, range);
        Choose("MnuOpcDenLis(1)");
        VerifyExercises(range, [](int limit) { return reglas::SortearSumandos(limit, false); });
    }

    void shows_the_sum_over_the_denominators_own_common_multiple()
    {
        QCOMPARE(Solution({3, 7, 5, 7}), "8/7");
        QCOMPARE(Solution({2, 10, 3, 10}), "5/10");
        QCOMPARE(Solution({1, 6, 1, 4}), "5/12");
        QCOMPARE(Solution({1, 19, 1, 38}), "57/722");
        QCOMPARE(Solution({100, 99, 100, 98}), "19700/9702");
    }

    void a_repeated_verdict_stays_in_the_box_while_typing()
    {
        SetOperands({3, 7, 5, 7});
        QCOMPARE(Verdict("1", "7"), QStringList("Resultado incorrecto"));
        QCOMPARE(Verdict("1", "7"), QStringList("Resultado incorrecto "));
        QCOMPARE(Verdict("1", "7"), QStringList("Resultado incorrecto"));
        QCOMPARE(Verdict("8", "7"), QStringList("Resultado correcto "));
        QCOMPARE(Verdict("8", "7"), QStringList("Resultado correcto  "));
    }

    void any_fraction_of_equal_value_is_accepted()
    {
        SetOperands({3, 7, 5, 7});
        for (const QString right : {"8/7", "16/14", "4/3.5", "-8/-7"}) {
            Verdict(right.section('/', 0, 0), right.section('/', 1));
            QVERIFY2(Text("Text3").startsWith("Resultado correcto"), qPrintable(right));
        }
        Verdict("7", "8");
        QVERIFY(Text("Text3").startsWith("Resultado incorrecto"));
    }

    void accepts_a_reduced_answer_over_a_larger_common_denominator()
    {
        SetOperands({1, 19, 1, 38});
        QCOMPARE(Verdict("3", "38"), QStringList("Resultado correcto "));
    }

    void a_numerator_that_rounds_to_one_is_plural_all_the_same()
    {
        Answer("1.2", "2");
        m_ear->Take();
        Press(Qt::Key_F2);
        QCOMPARE(m_ear->TakeSaid(), QStringList("un medios"));
    }

    void a_negative_answer_is_read_as_nothing()
    {
        SetOperands({3, 4, 1, 2});
        Answer("-2", "3");
        Press(Qt::Key_F3);
        QVERIFY(Text("TbMensajes").endsWith("=cero tercios"));
    }
};

KELVORA_TEST_MAIN(tst_Form2)
#include "tst_Form2.moc"
