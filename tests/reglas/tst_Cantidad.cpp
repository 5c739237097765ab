#include "Cantidad.h"
#include "Draws.h"

#include <QTest>

#include <set>

using reglas::FraccionDeCantidad;

class tst_Cantidad : public QObject
{
    Q_OBJECT

private slots:
    void every_draw_keeps_its_ranges_and_has_a_whole_result_data()
    {
        QTest::addColumn<int>("limit");
        QTest::addRow("10") << 10;
        QTest::addRow("20") << 20;
    }
    void every_draw_keeps_its_ranges_and_has_a_whole_result()
    {
        QFETCH(int, limit);
        std::set<int> numerators;
        std::set<int> denominators;
        int ways = 0;
        ForAllDraws(3, [&] {
            const FraccionDeCantidad drawn = FraccionDeCantidad::Sortear(limit);
            const int denominator = drawn.Denominador.Valor();
            QVERIFY(drawn.EsExacta());
            QVERIFY(drawn.Cantidad.Valor() >= denominator && drawn.Cantidad.Valor() <= 10 * denominator);
            QCOMPARE(drawn.Resultado() * denominator, double(drawn.Numerador.Valor() * drawn.Cantidad.Valor()));
            QCOMPARE(drawn.ResultadoEnCifras(","), std::to_string(static_cast<int>(drawn.Resultado())));
            numerators.insert(drawn.Numerador.Valor());
            denominators.insert(denominator);
            ++ways;
        });
        QCOMPARE(ways, 10 * (limit - 1) * 10);
        QCOMPARE(numerators.size(), std::size_t(10));
        QCOMPARE(*numerators.begin(), 1);
        QCOMPARE(denominators.size(), std::size_t(limit - 1));
        QCOMPARE(*denominators.begin(), 2);
    }

    void draws_numerator_denominator_and_quantity_in_this_order()
    {
        DrawNext({2, 2, 4});
        const FraccionDeCantidad drawn = FraccionDeCantidad::Sortear(10);
        QCOMPARE(drawn.Numerador.Valor(), 3);
        QCOMPARE(drawn.Denominador.Valor(), 4);
        QCOMPARE(drawn.Cantidad.Valor(), 20);
        QCOMPARE(drawn.Resultado(), 15.0);
    }

    void a_result_with_decimals_is_cut_to_five_characters()
    {
        QCOMPARE(FraccionDeCantidad({1, 3, 7}).ResultadoEnCifras(","), "2,333");
        QCOMPARE(FraccionDeCantidad({1, 3, 7}).ResultadoEnCifras("."), "2.333");
        QCOMPARE(FraccionDeCantidad({2, 3, 1000}).ResultadoEnCifras(","), "666,6");
        QCOMPARE(FraccionDeCantidad({1, 2, 7}).ResultadoEnCifras(","), "3,5");
        QCOMPARE(FraccionDeCantidad({0, 2, 7}).ResultadoEnCifras(","), "0");
        QVERIFY(!FraccionDeCantidad({1, 3, 7}).EsExacta());
        QVERIFY(FraccionDeCantidad({1, 3, 0}).EsExacta());
    }

    void a_product_beyond_16_bits_is_none()
    {
        QCOMPARE(FraccionDeCantidad({13, 2, 2520}).Resultado(), 16380.0);
        QVERIFY_THROWS_EXCEPTION(numeros::Desbordamiento, FraccionDeCantidad({14, 2, 2520}).Resultado());
    }
};

QTEST_APPLESS_MAIN(tst_Cantidad)
#include "tst_Cantidad.moc"
