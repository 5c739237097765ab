#include "Draws.h"
#include "Operaciones.h"

#include <QTest>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <set>

using namespace reglas;
using numeros::Fraccion;

namespace {

using Four = std::array<int, 4>;

// First numerator and denominator, second numerator and denominator.
Four Shown(const Operandos& operands)
{
    const auto& [first, second] = operands;
    return {first.numerador.Valor(), first.denominador.Valor(), second.numerador.Valor(), second.denominador.Valor()};
}

Operandos Of(const Four& four)
{
    return {Fraccion{four[0], four[1]}, Fraccion{four[2], four[3]}};
}

// What is drawn of four values counted from 2.
template <class Draw>
Four Drawn(const Four& values, Draw draw)
{
    DrawNext({values[0] - 2, values[1] - 2, values[2] - 2, values[3] - 2});
    return Shown(draw());
}

bool AreIn(const Four& values, int from, int to)
{
    return std::ranges::all_of(values, [from, to](int value) { return value >= from && value <= to; });
}

} // namespace

class tst_Operaciones : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { numeros::SustituirSorteo({}); }

    void operands_are_drawn_from_two_to_the_limit()
    {
        std::set<Four> drawn;
        ForAllDraws(4, [&drawn] { drawn.insert(Shown(SortearOperandos(10))); });
        QCOMPARE(drawn.size(), std::size_t(9 * 9 * 9 * 9));
        QVERIFY(std::ranges::all_of(drawn, [](const Four& four) { return AreIn(four, 2, 10); }));
        QCOMPARE(Drawn({100, 2, 3, 50}, [] { return SortearOperandos(100); }), (Four{100, 2, 3, 50}));
    }

    // Whatever is drawn, up to 10: each of the four values has its place, and its draw, whether it is used or not.
    void operands_of_sums_have_one_denominator_or_two()
    {
        for (const bool same : {true, false}) {
            int ways = 0;
            std::set<int> values;
            ForAllDraws(4, [&] {
                const Four drawn = Shown(SortearSumandos(10, same));
                QCOMPARE(drawn[1] == drawn[3], same);
                values.insert(drawn.begin(), drawn.end());
                ++ways;
            });
            QCOMPARE(ways, 9 * 9 * 9 * 9);
            QCOMPARE(values, (std::set<int>{2, 3, 4, 5, 6, 7, 8, 9, 10}));
        }
        QCOMPARE(Drawn({5, 6, 7, 9}, [] { return SortearSumandos(10, true); }), (Four{5, 6, 7, 6}));
        QCOMPARE(Drawn({5, 6, 7, 9}, [] { return SortearSumandos(10, false); }), (Four{5, 6, 7, 9}));
        QCOMPARE(Drawn({5, 6, 7, 6}, [] { return SortearSumandos(10, false); }), (Four{5, 6, 7, 5}));
        QCOMPARE(Drawn({5, 2, 7, 2}, [] { return SortearSumandos(10, false); }), (Four{5, 2, 7, 3}));
    }

    void operands_of_differences_are_put_in_order_data()
    {
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("second");
        QTest::addColumn<int>("firstShown");
        QTest::addColumn<int>("secondShown");
        QTest::addRow("exchanged and lowered") << 4 << 9 << 9 << 3;
        QTest::addRow("in order and lowered") << 9 << 4 << 9 << 3;
        QTest::addRow("two lowered to one") << 2 << 10 << 10 << 1;
        QTest::addRow("equal") << 7 << 7 << 8 << 7;
        QTest::addRow("equal at the limit") << 10 << 10 << 10 << 10;
    }
    void operands_of_differences_are_put_in_order()
    {
        QFETCH(int, first);
        QFETCH(int, second);
        QFETCH(int, firstShown);
        QFETCH(int, secondShown);
        QCOMPARE(Drawn({first, 6, second, 9}, [] { return SortearResta(10, true); }),
                 (Four{firstShown, 6, secondShown, 6}));
        QCOMPARE(Drawn({first, 6, second, 6}, [] { return SortearResta(10, false); }),
                 (Four{firstShown, 6, secondShown, 5}));
    }

    void of_equal_numerators_the_first_is_raised_up_to_the_limit()
    {
        const auto drawn = [](int limit, int numerator) {
            return Drawn({numerator, 6, numerator, 9}, [limit] { return SortearResta(limit, true); });
        };
        QCOMPARE(drawn(20, 15), (Four{16, 6, 15, 6}));
        QCOMPARE(drawn(20, 20), (Four{20, 6, 20, 6}));
        QCOMPARE(drawn(100, 99), (Four{100, 6, 99, 6}));
        QCOMPARE(drawn(100, 100), (Four{100, 6, 100, 6}));
    }

    void the_first_numerator_of_a_difference_is_the_larger_one()
    {
        for (const bool same : {true, false}) {
            int largest = 0;
            ForAllDraws(4, [&largest, same] {
                const Four drawn = Shown(SortearResta(10, same));
                QVERIFY(drawn[0] > drawn[2] || (drawn[0] == 10 && drawn[2] == 10));
                QVERIFY(drawn[2] >= 1 && drawn[0] <= 10);
                QCOMPARE(drawn[1] == drawn[3], same);
                largest = std::max(largest, drawn[0]);
            });
            QCOMPARE(largest, 10);
        }
    }

    void the_common_denominator_is_the_least_one_but_for_19_and_29()
    {
        for (int a = 2; a <= 100; ++a) {
            for (int b = 2; b <= 100; ++b) {
                const int common = std::gcd(a, b);
                const int kept = common % 19 == 0 ? 19 : common % 29 == 0 ? 29 : 1; // what is not cancelled
                QCOMPARE(a == b ? a : DenominadorComun(a, b).Valor(), a == b ? a : std::lcm(a, b) * kept);
            }
        }
        QCOMPARE(DenominadorComun(19, 38).Valor(), 722);
        QCOMPARE(DenominadorComun(29, 58).Valor(), 1682);
        QCOMPARE(DenominadorComun(51, 34).Valor(), 102);
    }

    // Beyond what exercises have, those of the list alone.
    void every_trial_factor_is_cancelled()
    {
        for (const int factor : {2, 3, 5, 7, 11, 13, 17, 23, 31, 37, 41, 43, 47, 51, 53, 59, 61, 67, 71, 73}) {
            QCOMPARE(DenominadorComun(2 * factor, 3 * factor).Valor(), 6 * factor);
        }
        QCOMPARE(DenominadorComun(79, 158).Valor(), 79 * 158); // no other is
    }

    void a_common_denominator_beyond_16_bits_is_none()
    {
        QVERIFY_THROWS_EXCEPTION(numeros::Desbordamiento, DenominadorComun(32749, 32719));
    }

    void sums_and_differences_are_exact_for_every_pair_of_denominators()
    {
        for (int d1 = 2; d1 <= 100; ++d1) {
            for (int d2 = 2; d2 <= 100; ++d2) {
                const int n1 = 2 + (d1 * 7 + d2) % 99;
                const int n2 = 1 + (d2 * 5 + d1) % n1;
                const Operandos operands = Of({n1, d1, n2, d2});
                const auto exact = [&](const Fraccion& result, int numerator) {
                    const qint64 n = result.numerador.Valor();
                    const int d = result.denominador.Valor();
                    return d > 0 && d % d1 == 0 && d % d2 == 0 && (d1 != d2 || d == d1) &&
                           n * d1 * d2 == qint64{numerator} * d;
                };
                QVERIFY(exact(Sumar(operands), n1 * d2 + n2 * d1));
                QVERIFY(exact(Restar(operands), n1 * d2 - n2 * d1));
            }
        }
    }

    void results_are_not_simplified()
    {
        QCOMPARE(Sumar(Of({3, 7, 5, 7})), Fraccion({8, 7}));
        QCOMPARE(Sumar(Of({2, 6, 1, 4})), Fraccion({7, 12}));
        QCOMPARE(Sumar(Of({1, 19, 1, 38})), Fraccion({57, 722}));
        QCOMPARE(Restar(Of({4, 10, 2, 3})), Fraccion({-8, 30}));
        QCOMPARE(Restar(Of({10, 9, 10, 9})), Fraccion({0, 9}));
        QCOMPARE(Multiplicar(Of({4, 6, 3, 8})), Fraccion({12, 48}));
        QCOMPARE(Multiplicar(Of({100, 100, 100, 100})), Fraccion({10000, 10000}));
        QCOMPARE(Dividir(Of({2, 3, 4, 5})), Fraccion({10, 12}));
        QCOMPARE(Dividir(Of({100, 2, 3, 100})), Fraccion({10000, 6}));
    }

    void numbers_beyond_16_bits_are_none()
    {
        QVERIFY_THROWS_EXCEPTION(numeros::Desbordamiento, Multiplicar(Of({200, 1, 200, 1})));
        QVERIFY_THROWS_EXCEPTION(numeros::Desbordamiento, Dividir(Of({200, 1, 1, 200})));
        QVERIFY_THROWS_EXCEPTION(numeros::Desbordamiento, Sumar(Of({32767, 2, 1, 2})));
        QVERIFY_THROWS_EXCEPTION(numeros::Desbordamiento, Restar(Of({-32768, 2, 1, 2})));
    }

    void answers_of_the_same_value_are_right_data()
    {
        QTest::addColumn<double>("numerator");
        QTest::addColumn<double>("denominator");
        QTest::addColumn<bool>("right"); // for -8/30
        const auto row = [](double n, double d, bool right) { QTest::addRow("%g/%g", n, d) << n << d << right; };
        row(-8, 30, true);
        row(8, -30, true);
        row(-4, 15, true);
        row(-0.8, 3, true);
        row(0, 0, true);
        row(8, 30, false);
        row(-8, -30, false);
        row(-8, 31, false);
        row(-8, 0, false);
        row(0, 5, false);
        row(1e308, 1e308, false);
        row(std::nan(""), 1, false);
        row(1, std::nan(""), false);
    }
    void answers_of_the_same_value_are_right()
    {
        QFETCH(double, numerator);
        QFETCH(double, denominator);
        QFETCH(bool, right);
        QCOMPARE(EsEquivalente(numerator, denominator, {-8, 30}), right);
    }

    void an_infinite_product_is_right_for_nothing()
    {
        QVERIFY(!EsEquivalente(1e308, 1e308, {30000, 30000}));
        QVERIFY(EsEquivalente(0, 7, {0, 9}));
    }
};

QTEST_APPLESS_MAIN(tst_Operaciones)
#include "tst_Operaciones.moc"
