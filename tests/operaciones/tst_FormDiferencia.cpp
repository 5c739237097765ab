#include "FormDiferencia.h"
#include "OperationScreen.h"

using namespace support;

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
        VerifyExercises(range, [](int limit) { return reglas::SortearResta(limit, true); });
    }

    void draws_different_denominators_and_orders_the_numerators_data() { AddRanges(); }
    void draws_different_denominators_and_orders_the_numerators()
    {
        QFETCH(int, range);
        Choose("MnuOpcDenLis(1)");
        VerifyExercises(range, [](int limit) { return reglas::SortearResta(limit, false); });
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
