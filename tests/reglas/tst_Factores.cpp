#include "Factores.h"
#include "Primos.h"

#include <QTest>

#include <algorithm>
#include <cmath>

using namespace reglas;
using numeros::Desbordamiento;

namespace {

Divisores Of(const std::vector<int>& numbers)
{
    Divisores divisors;
    std::ranges::copy(numbers, divisors.begin());
    return divisors;
}

Divisores RightFor(int value)
{
    std::vector<int> factors;
    for (const Division& division : Descomponer(value)) {
        factors.push_back(division.divisor);
    }
    return Of(factors);
}

} // namespace

class tst_Factores : public QObject
{
    Q_OBJECT

private slots:
    void divisors_are_multiplied_up_to_a_gap_sorted_on_either_side_of_it_and_listed()
    {
        reglas::Divisores divisors{5, 3, 2, 0, 7, 2, 1, -4, 11};
        QCOMPARE(Producto(divisors).Valor(), 30);
        Ordenar(divisors);
        QVERIFY(divisors == (reglas::Divisores{2, 3, 5, 0, 2, 7, 1, -4, 11}));
        QCOMPARE(Lista(divisors), "2, 3, 5, 2, 7, 11");
        divisors.fill(2);
        QCOMPARE(Lista({}), "");
        QCOMPARE(Producto({}).Valor(), 1);
        QVERIFY_THROWS_EXCEPTION(Desbordamiento, Producto(divisors)); // 2 to the fifteenth is one too many
        divisors.back() = 0;
        QCOMPARE(Producto(divisors).Valor(), 16384);
    }

    void every_value_has_its_decomposition()
    {
        for (int value = -5; value <= 32767; ++value) {
            int product = 1;
            int last = 2;
            for (const auto& [dividend, divisor] : Descomponer(value)) {
                QCOMPARE(dividend, value / product);
                QVERIFY(divisor >= last && dividend % divisor == 0);
                for (int d = 2; d * d <= divisor; ++d) {
                    QVERIFY(divisor % d != 0);
                }
                last = divisor;
                product *= divisor;
            }
            QCOMPARE(product, std::max(value, 1));
        }
    }

    void a_list_with_asterisks_keeps_a_blank_and_ends_at_a_gap()
    {
        QCOMPARE(ListaConAsteriscos({}), "");
        QCOMPARE(ListaConAsteriscos(Of({2, 2, 3})), "2 * 2 * 3 ");
        QCOMPARE(ListaConAsteriscos(Of({7, 1, 3})), "7 ");
        QCOMPARE(ListaConAsteriscos(Of({0, 3})), "");
    }

    void the_factors_of_every_value_are_right_in_any_order()
    {
        for (int value = 1; value <= 1000; ++value) {
            Divisores divisors = RightFor(value);
            QVERIFY2(!Objecion(divisors, value), qPrintable(QString::number(value)));
            const auto last = std::ranges::find(divisors, numeros::Entero16(0));
            std::reverse(divisors.begin(), last);
            QVERIFY(!Objecion(divisors, value));
        }
    }

    void another_product_is_told_with_a_parenthesis_left_open()
    {
        QCOMPARE(Objecion(Of({2, 2, 3}), 13),
                 "El producto de los factores calculados (12 es distinto del valor inicial (13)");
        QCOMPARE(Objecion({}, 2), "El producto de los factores calculados (1 es distinto del valor inicial (2)");
        QVERIFY(Objecion(Of({2, 0, 2}), 4)); // what is behind a gap is not multiplied
        QVERIFY(!Objecion({}, 1));
    }

    void factors_that_are_not_prime_are_told_beside_the_right_ones()
    {
        const std::string begin = "Los factores primos obtenidos por usted son diferentes a los que corresponden a la "
                                  "cantidad utilizada.\r\nValores calculados : ";
        QCOMPARE(Objecion(Of({4, 3}), 12), begin + "3, 4\r\nValores correctos: 2, 2, 3");
        QCOMPARE(Objecion(Of({12}), 12), begin + "12\r\nValores correctos: 2, 2, 3");
        QCOMPARE(Objecion(Of({1009, 4}), 4036), begin + "4, 1009\r\nValores correctos: 2, 2, 1009");
    }

    // The factors behind a gap are compared with those that stand there, sorted.
    void what_is_behind_a_gap_is_right_where_it_is_in_order()
    {
        QVERIFY(!Objecion(Of({2, 3, 0, 5, 7}), 6));
        QCOMPARE(Objecion(Of({2, 3, 0, 7, 5}), 6).has_value(), true);
    }

    void a_product_beyond_16_bits_is_none() { QVERIFY_THROWS_EXCEPTION(Desbordamiento, Objecion(Of({256, 128}), 2)); }

    void values_of_ones_own_go_up_to_a_thousand()
    {
        using numeros::Entero16;
        QCOMPARE(ValorPropio(12), Entero16(12));
        QCOMPARE(ValorPropio(-12.5), Entero16(12));
        QCOMPARE(ValorPropio(0.2), Entero16(0));
        QCOMPARE(ValorPropio(1000), Entero16(1000));
        for (const double none : {0.0, 1000.1, -1000.1, 1e300, std::nan("")}) {
            QCOMPARE(ValorPropio(none), std::nullopt);
        }
        QCOMPARE(ValorSobreVeredicto(1.5), Entero16(2));
        QCOMPARE(ValorSobreVeredicto(1999.9), Entero16(2000));
        for (const double none : {1.0, 0.0, -3.0, 2000.0, std::nan("")}) {
            QCOMPARE(ValorSobreVeredicto(none), std::nullopt);
        }
    }

    void primes_are_found_by_trial()
    {
        QCOMPARE(BuscarPrimos(1000), std::vector<int>(Primos.begin(), Primos.end()));
        QCOMPARE(BuscarPrimos(2), std::vector<int>{2});
        QCOMPARE(BuscarPrimos(1), std::vector<int>());
    }

    void the_primes_are_all_those_below_a_thousand()
    {
        std::vector<int> primes;
        for (int candidate = 2; candidate < 1000; ++candidate) {
            bool prime = true;
            for (int d = 2; d < candidate; ++d) {
                prime = prime && candidate % d != 0;
            }
            if (prime) {
                primes.push_back(candidate);
            }
        }
        QCOMPARE(std::vector<int>(Primos.begin(), Primos.end()), primes);
        QCOMPARE(primes.size(), std::size_t{168});
    }
};

QTEST_APPLESS_MAIN(tst_Factores)
#include "tst_Factores.moc"
