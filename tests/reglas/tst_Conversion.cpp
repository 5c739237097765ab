#include "Conversion.h"
#include "Draws.h"

#include <QTest>

#include <set>

using reglas::Conversion;

class tst_Conversion : public QObject
{
    Q_OBJECT

private slots:
    // With a second denominator drawn again up to three times.
    void every_draw_keeps_its_ranges_and_has_two_denominators()
    {
        std::set<std::array<int, 4>> drawn;
        ForAllDraws(7, [&drawn] {
            const Conversion conversion = Conversion::Sortear();
            const auto& [first, second] = conversion;
            QVERIFY(first.denominador != second.denominador);
            for (const numeros::Fraccion& fraction : {first, second}) {
                QVERIFY(fraction.numerador >= 1 && fraction.numerador <= 9);
                QVERIFY(fraction.denominador >= 2 && fraction.denominador <= 7);
            }
            const auto final = conversion.Final();
            QCOMPARE(final[2], final[3]);
            QCOMPARE(final[0] * first.denominador, final[2] * first.numerador);
            QCOMPARE(final[1] * second.denominador, final[3] * second.numerador);
            drawn.insert({first.numerador.Valor(), first.denominador.Valor(), second.numerador.Valor(),
                          second.denominador.Valor()});
        });
        QCOMPARE(drawn.size(), std::size_t(9 * 9 * 6 * 5));
    }

    void draws_the_denominators_first()
    {
        DrawNext({2, 2, 3, 2, 1}); // 4, 4 again, 5, 3, 2
        QCOMPARE(Conversion::Sortear().Inicial(), (std::array<numeros::Entero16, 4>{3, 2, 4, 5}));
    }

    void the_common_denominator_is_the_product_and_the_working_is_shown()
    {
        const Conversion conversion{{3, 4}, {2, 5}};
        QCOMPARE(conversion.Intermedia(), (std::array<std::string, 4>{"3x5", "4x2", "4x5", "4x5"}));
        QCOMPARE(conversion.Final(), (std::array<numeros::Entero16, 4>{15, 8, 20, 20}));
        QCOMPARE(Conversion({{1, 2}, {3, 4}}).Final(), (std::array<numeros::Entero16, 4>{4, 6, 8, 8}));
    }
};

QTEST_APPLESS_MAIN(tst_Conversion)
#include "tst_Conversion.moc"
