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
        std::array<QSet<int>, 4> seen;
        bool improper = false;
        DrawExercises(range, [&](const Operands& drawn, const Operands& shown) {
            QCOMPARE(shown, (Operands{drawn[0], drawn[1], drawn[2], drawn[1]}));
            Collect(shown, seen);
            improper = improper || shown[0] > shown[1];
        });
        VerifyAllSeen(seen, range);
        QVERIFY(improper);
    }

    void draws_different_denominators_data() { AddRanges(); }
    void draws_different_denominators()
    {
        QFETCH(int, range);
        Choose("MnuOpcDenLis(1)");
        std::array<QSet<int>, 4> seen;
        int clashes = 0;
        DrawExercises(range, [&](const Operands& drawn, const Operands& shown) {
            QCOMPARE(shown, WithoutClash(drawn));
            QVERIFY(shown[1] != shown[3]);
            Collect(shown, seen);
            clashes += drawn[1] == drawn[3] ? 1 : 0;
        });
        VerifyAllSeen(seen, range);
        QVERIFY(clashes > 50);
    }

    void shows_the_sum_over_the_denominators_own_common_multiple()
    {
        QCOMPARE(Solution({3, 7, 5, 7}), "8/7");
        QCOMPARE(Solution({2, 10, 3, 10}), "5/10");
        QCOMPARE(Solution({1, 6, 1, 4}), "5/12");
        QCOMPARE(Solution({1, 19, 1, 38}), "57/722");
        QCOMPARE(Solution({100, 99, 100, 98}), "19700/9702");
    }

    void every_pair_of_denominators_has_the_exact_sum()
    {
        for (int d1 = 2; d1 <= 100; ++d1) {
            for (int d2 = 2; d2 <= 100; ++d2) {
                const qint64 n1 = 2 + (d1 * 7 + d2) % 99;
                const qint64 n2 = 2 + (d2 * 5 + d1) % 99;
                const auto [n, d] = Parts(Solution({static_cast<int>(n1), d1, static_cast<int>(n2), d2}));
                QVERIFY(d > 0 && d % d1 == 0 && d % d2 == 0);
                QCOMPARE(n * d1 * d2, (n1 * d2 + n2 * d1) * d);
            }
        }
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
