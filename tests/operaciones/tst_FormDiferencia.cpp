#include "FormDiferencia.h"
#include "OperationScreen.h"

using namespace support;

namespace {

// What the screen is to make of four values, step by step.
constexpr Operands Ordered(Operands values, int limit)
{
    auto& [n1, d1, n2, d2] = values;
    if (n2 > n1) {
        std::swap(n1, n2);
    }
    if (n1 == n2) {
        n1 += n1 < limit ? 1 : 0;
    } else {
        n2 -= 1;
    }
    return values;
}
static_assert(Ordered({7, 2, 7, 2}, 10) == Operands{8, 2, 7, 2});
static_assert(Ordered({10, 2, 10, 2}, 10) == Operands{10, 2, 10, 2});
static_assert(Ordered({4, 2, 9, 2}, 10) == Operands{9, 2, 3, 2});

} // namespace

class tst_FormDiferencia : public QObject, private OperationScreen
{
    Q_OBJECT

private slots:
    void init()
    {
        numeros::FijarSemilla(7);
        OpenScreen(std::make_unique<operaciones::FormDiferencia>());
    }
    void cleanup() { CloseScreen(); }

    void draws_one_denominator_and_orders_the_numerators_data() { AddRanges(); }
    void draws_one_denominator_and_orders_the_numerators()
    {
        QFETCH(int, range);
        DrawExercises(range, [&](const Operands& drawn, const Operands& shown) {
            QCOMPARE(shown, Ordered({drawn[0], drawn[1], drawn[2], drawn[1]}, limits.at(range)));
        });
    }

    void draws_different_denominators_and_orders_the_numerators_data() { AddRanges(); }
    void draws_different_denominators_and_orders_the_numerators()
    {
        QFETCH(int, range);
        Choose("MnuOpcDenLis(1)");
        const int limit = limits.at(range);
        std::array<QSet<int>, 4> seen;
        int ties = 0;
        int negative = 0;
        DrawExercises(range, [&](const Operands& drawn, const Operands& shown) {
            QCOMPARE(shown, Ordered(WithoutClash(drawn), limit));
            QVERIFY(shown[1] != shown[3]);
            QVERIFY(shown[0] > shown[2] || (shown[0] == limit && shown[2] == limit));
            Collect(shown, seen);
            ties += shown[0] == shown[2] ? 1 : 0;
            negative += shown[0] * shown[3] < shown[2] * shown[1] ? 1 : 0;
        });
        QVERIFY(negative > 100);
        if (limit < 100) { // at 100 the rarest values do not come up
            QCOMPARE(seen[0], From(3, limit));
            QCOMPARE(seen[2], From(1, limit));
            QVERIFY(ties > 0);
        }
        QCOMPARE(seen[1], From(2, limit));
        QCOMPARE(seen[3], From(2, limit));
    }

    void shows_the_difference_over_a_common_denominator()
    {
        QCOMPARE(Solution({5, 7, 3, 7}), "2/7");
        QCOMPARE(Solution({10, 9, 10, 9}), "0/9");
        QCOMPARE(Solution({4, 10, 2, 3}), "-8/30");
        QCOMPARE(Solution({5, 9, 2, 3}), "-1/9");
        QCOMPARE(Solution({3, 4, 1, 6}), "7/12");
        QCOMPARE(Solution({1, 19, 1, 38}), "19/722");
        QCOMPARE(Solution({100, 100, 1, 99}), "9800/9900");
        QCOMPARE(Solution({3, 99, 100, 2}), "-9894/198");
    }

    void every_pair_of_denominators_has_the_exact_difference()
    {
        for (int d1 = 2; d1 <= 100; ++d1) {
            for (int d2 = 2; d2 <= 100; ++d2) {
                const qint64 n1 = 2 + (d1 * 7 + d2) % 99;
                const qint64 n2 = 1 + (d2 * 5 + d1) % n1;
                const auto [n, d] = Parts(Solution({static_cast<int>(n1), d1, static_cast<int>(n2), d2}));
                QVERIFY(d > 0 && d % d1 == 0 && d % d2 == 0);
                QCOMPARE(n * d1 * d2, (n1 * d2 - n2 * d1) * d);
            }
        }
    }

    void accepts_negative_answers_wherever_the_sign_stands()
    {
        SetOperands({4, 10, 2, 3});
        for (const QString right : {"-8/30", "8/-30", "-4/15", "4/-15"}) {
            QCOMPARE(Verdict(right.section('/', 0, 0), right.section('/', 1)).size(), 1);
            QVERIFY2(Text("Text3").startsWith("Resultado correcto"), qPrintable(right));
        }
        for (const QString wrong : {"8/30", "-8/-30", "4/15"}) {
            Verdict(wrong.section('/', 0, 0), wrong.section('/', 1));
            QVERIFY2(Text("Text3").startsWith("Resultado incorrecto"), qPrintable(wrong));
        }
    }

    void nothing_over_anything_answers_a_difference_of_zero()
    {
        SetOperands({10, 7, 10, 7});
        QCOMPARE(Verdict("0", "3"), QStringList("Resultado correcto "));
    }

    void negative_numbers_are_read_data()
    {
        QTest::addColumn<QString>("numerator");
        QTest::addColumn<QString>("denominator");
        QTest::addColumn<QString>("alone"); // with the reading key of one fraction
        QTest::addColumn<QString>("inOperation");
        const auto row = [](const char* n, const char* d, const char* alone, const char* inOperation) {
            QTest::addRow("%s/%s", n, d) << n << d << alone << inOperation;
        };
        row("-3", "4", "menos tres cuartos", "menos tres cuartos");
        row("-1", "2", "menos un medios", "menos un medio");
        row("1", "2", "un medio", "un medio");
        row("-1", "16", "menos un dieciséisavos", "menos un dieciséisavo");
        row("4", "-15", "cuatro menos quinceavos", "cuatro menos quinceavos");
        row("1", "-2", "un menos medio", "un menos medio");
        row("-21", "30", "menos veintiuno treintaavos", "menos veintiuno treintaavos");
        row("-0.2", "3", "menos cero tercios", "menos cero tercios");
        row("0", "3", "cero tercios", "cero tercios");
    }
    void negative_numbers_are_read()
    {
        QFETCH(QString, numerator);
        QFETCH(QString, denominator);
        QFETCH(QString, alone);
        QFETCH(QString, inOperation);
        SetOperands({3, 4, 2, 5});
        Answer(numerator, denominator);
        m_ear->Take();
        Press(Qt::Key_F2);
        QCOMPARE(m_ear->TakeSaid(), QStringList(alone));
        Press(Qt::Key_F3);
        QCOMPARE(m_ear->TakeSaid(), QStringList(" tres cuartos-dos quintos=" + inOperation));
        Press(Qt::Key_Left, Qt::ControlModifier);
        Press(Qt::Key_Right, Qt::ControlModifier);
        QCOMPARE(m_ear->TakeSaid().back(), alone);
    }

    void a_negative_solution_is_read()
    {
        SetOperands({5, 9, 2, 3});
        m_ear->Take();
        Button("Command2(2)").click();
        QCOMPARE(m_ear->TakeSaid(), QStringList("menos un noveno")); // -1/9
        SetOperands({4, 10, 2, 3});
        Button("Command2(2)").click();
        QCOMPARE(m_ear->TakeSaid(), QStringList("menos ocho treintaavos"));
    }

    void a_wrong_answer_twice_in_a_row()
    {
        SetOperands({5, 7, 3, 7});
        QCOMPARE(Verdict("1", "7"), QStringList("Resultado incorrecto "));
        QCOMPARE(Result(), "/");
        QCOMPARE(Focus(), "Text1(4)");
        QCOMPARE(Verdict("1", "7"), QStringList("Resultado incorrecto  "));
        QCOMPARE(Verdict("1", "7"), QStringList("Resultado incorrecto "));
        QCOMPARE(Text("tbResultados"), "Ejercicios:  3; Errores:  3");
    }
};

KELVORA_TEST_MAIN(tst_FormDiferencia)
#include "tst_FormDiferencia.moc"
