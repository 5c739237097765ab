#include "Draws.h"
#include "Ordenacion.h"

#include <QTest>

#include <algorithm>
#include <array>
#include <set>

using reglas::Ordenacion;

namespace {

using Row = std::array<std::pair<int, int>, 4>;

Row Shown(const Ordenacion& order)
{
    Row row;
    for (int i = 0; i < 4; ++i) {
        row[i] = {order[i].numerador.Valor(), order[i].denominador.Valor()};
    }
    return row;
}

bool Grows(const Row& row)
{
    return std::ranges::is_sorted(row, [](auto a, auto b) { return a.first * b.second < b.first * a.second; });
}

} // namespace

class tst_Ordenacion : public QObject
{
    Q_OBJECT

private:
    // 3/8, 1/8, 7/8, 2/8; or under one numerator 8/3, 8/1, 8/7, 8/2.
    static Ordenacion Example(bool sameDenominator)
    {
        DrawNext({sameDenominator ? 0 : 1, 3, 2, 0, 6, 1});
        return Ordenacion::Sortear();
    }

private slots:
    // Without numbers drawn again: there are more ways than can be tried.
    void every_draw_has_four_different_fractions_out_of_order()
    {
        std::set<int> common;
        int ways = 0;
        ForAllDraws(6, [&] {
            const Row row = Shown(Ordenacion::Sortear());
            std::set<int> numerators;
            std::set<int> denominators;
            for (const auto& [numerator, denominator] : row) {
                numerators.insert(numerator);
                denominators.insert(denominator);
            }
            const bool sameDenominator = denominators.size() == 1;
            const std::set<int>& varying = sameDenominator ? numerators : denominators;
            common.insert(*(sameDenominator ? denominators : numerators).begin());
            if (varying.size() != 4 || *varying.begin() < 1 || *varying.rbegin() > 10 || Grows(row)) {
                QFAIL("not as it should be");
            }
            ++ways;
        });
        QCOMPARE(common.size(), std::size_t(10));
        QCOMPARE(*common.begin(), 5);
        QCOMPARE(*common.rbegin(), 14);
        // Of 5040 rows of four different numbers, those in which a 1 comes after a 10 are never drawn: 56 for each of
        // the six pairs of places.
        QCOMPARE(ways, 2 * 10 * (5040 - 6 * 56));
    }

    void a_number_drawn_again_is_left_out_and_so_is_a_one_after_a_ten()
    {
        DrawNext({0, 0, 9, 0, 9, 4, 4, 2, 1}); // 10, 1, 10, 5, 5, 3, 2
        QCOMPARE(Shown(Ordenacion::Sortear()), (Row{{{10, 5}, {5, 5}, {3, 5}, {2, 5}}}));
        DrawNext({0, 0, 0, 9, 4, 2}); // but a ten after a one
        QCOMPARE(Shown(Ordenacion::Sortear()), (Row{{{1, 5}, {10, 5}, {5, 5}, {3, 5}}}));
    }

    void a_row_drawn_in_order_has_its_first_and_third_exchanged()
    {
        DrawNext({0, 0, 0, 1, 2, 3});
        QCOMPARE(Shown(Ordenacion::Sortear()), (Row{{{3, 5}, {2, 5}, {1, 5}, {4, 5}}}));
        DrawNext({1, 0, 3, 2, 1, 0}); // 5/4 < 5/3 < 5/2 < 5/1
        QCOMPARE(Shown(Ordenacion::Sortear()), (Row{{{5, 2}, {5, 3}, {5, 4}, {5, 1}}}));
    }

    void a_fraction_moves_to_the_left()
    {
        Ordenacion order = Example(true);
        order.Mover(2);
        QCOMPARE(Shown(order), (Row{{{3, 8}, {7, 8}, {1, 8}, {2, 8}}}));
        order.Mover(1);
        QCOMPARE(Shown(order), (Row{{{7, 8}, {3, 8}, {1, 8}, {2, 8}}}));
    }

    void they_are_sorted_by_their_values()
    {
        Ordenacion order = Example(true);
        QVERIFY(!order.EstanOrdenadas());
        order.Ordenar();
        QCOMPARE(Shown(order), (Row{{{1, 8}, {2, 8}, {3, 8}, {7, 8}}}));
        QVERIFY(order.EstanOrdenadas());
        order = Example(false);
        QVERIFY(!order.EstanOrdenadas());
        order.Ordenar();
        QCOMPARE(Shown(order), (Row{{{8, 7}, {8, 3}, {8, 2}, {8, 1}}}));
        QVERIFY(order.EstanOrdenadas());
    }

    void exactly_one_arrangement_is_in_order()
    {
        for (const bool sameDenominator : {true, false}) {
            std::array<int, 4> places{0, 1, 2, 3};
            int ordered = 0;
            do {
                // Drawn in this arrangement, which is in order for one of them; that one is drawn otherwise.
                DrawNext({sameDenominator ? 0 : 1, 0, places[0], places[1], places[2], places[3]});
                Ordenacion order = Ordenacion::Sortear();
                const Row row = Shown(order);
                QCOMPARE(order.EstanOrdenadas(), Grows(row));
                order.Ordenar();
                ordered += Shown(order) == row ? 1 : 0;
            } while (std::ranges::next_permutation(places).found);
            QCOMPARE(ordered, 0);
        }
    }

    void shuffling_exchanges_until_they_are_out_of_order()
    {
        Ordenacion order = Example(true);
        order.Ordenar();
        DrawNext({1, 1, 0, 3}); // one with itself, and the first with the last
        order.Desordenar();
        QCOMPARE(Shown(order), (Row{{{7, 8}, {2, 8}, {3, 8}, {1, 8}}}));
    }
};

QTEST_APPLESS_MAIN(tst_Ordenacion)
#include "tst_Ordenacion.moc"
