#include "Draws.h"
#include "Serie.h"

#include <QTest>

#include <algorithm>

using reglas::Nivel;
using reglas::Numeros;
using reglas::Serie;

namespace {

bool IsOfOneStep(const Numeros& numbers)
{
    for (std::size_t i = 2; i < numbers.size(); ++i) {
        if (numbers[i] - numbers[i - 1] != numbers[1] - numbers[0]) {
            return false;
        }
    }
    return true;
}

// Whether the steps grow or shrink by one number, which is not 0.
bool IsOfChangingStep(const Numeros& numbers)
{
    const int change = numbers[2] - 2 * numbers[1] + numbers[0];
    for (std::size_t i = 2; i < numbers.size(); ++i) {
        if (numbers[i] - 2 * numbers[i - 1] + numbers[i - 2] != change) {
            return false;
        }
    }
    return change != 0;
}

bool IsConstant(const Numeros& numbers)
{
    return IsOfOneStep(numbers) && numbers[0] == numbers[1];
}

// The runs of which the series is made, whichever is above.
std::pair<Numeros, Numeros> Runs(const Serie& serie, bool isB)
{
    auto runs = std::pair(serie.NumeradoresSerie, serie.DenominadoresSerie);
    for (std::size_t i = 1; i < reglas::terminos && isB; i += 2) {
        std::swap(runs.first[i], runs.second[i]);
    }
    return runs;
}

// One that comes to something.
Serie Drawn(const Nivel& nivel)
{
    return reglas::SortearSerie(nivel).value_or(Serie{});
}

} // namespace

class tst_Serie : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { numeros::SustituirSorteo({}); }

    void every_series_of_a_level_is_made_by_its_rule_data()
    {
        QTest::addColumn<int>("level");
        QTest::addColumn<int>("ways");
        QTest::addColumn<bool>("isB");
        constexpr int arithmetic = 7 * 2 * 8;
        constexpr int changing = 7 * 2 * 5 * 2 * 8;
        for (const bool isB : {false, true}) {
            const char* letter = isB ? "B" : "A";
            QTest::addRow("1%s", letter) << 1 << 15 * arithmetic * 2 << isB;
            QTest::addRow("2%s", letter) << 2 << arithmetic * arithmetic * 2 << isB;
            QTest::addRow("3%s", letter) << 3 << arithmetic * changing * 2 << isB;
        }
    }
    void every_series_of_a_level_is_made_by_its_rule()
    {
        QFETCH(int, level);
        QFETCH(int, ways);
        QFETCH(bool, isB);
        int none = 0;
        int made = 0;
        int constants = 0;
        ForAllDraws(12, [&] {
            const auto serie = reglas::SortearSerie({level, isB});
            if (!serie) {
                ++none;
                return;
            }
            ++made;
            auto [a, b] = Runs(*serie, isB);
            const auto isFirst = level == 1 ? IsConstant : IsOfOneStep;
            const auto isSecond = level == 3 ? IsOfChangingStep : IsOfOneStep;
            const bool fits = (isFirst(a) && isSecond(b)) || (isFirst(b) && isSecond(a));
            const int least = std::min(*std::ranges::min_element(a), *std::ranges::min_element(b));
            if (!fits || least < (level == 3 ? 0 : 1)) {
                QFAIL("not of this level");
            }
            constants += IsConstant(a) ? 1 : 0;
        });
        // At level 3 480 of the 1120 second runs come to nothing, and then there is no draw of what is above.
        QCOMPARE(none, level == 3 ? 112 * 480 : 0);
        QCOMPARE(made + 2 * none, ways);
        QCOMPARE(constants, level == 1 ? made / 2 : 0);
    }

    // As many of its two and a half million ways as come in a moment.
    void the_hardest_level_has_changing_steps_in_both_or_comes_to_nothing()
    {
        numeros::Sembrar(7);
        int none = 0;
        for (int i = 0; i < 20'000; ++i) {
            const auto serie = reglas::SortearSerie({4, i % 2 == 1});
            if (!serie) {
                ++none;
                continue;
            }
            const auto [a, b] = Runs(*serie, i % 2 == 1);
            QVERIFY(IsOfChangingStep(a) && IsOfChangingStep(b));
            QVERIFY(std::min(*std::ranges::min_element(a), *std::ranges::min_element(b)) >= 0);
        }
        QVERIFY(none > 5000);
    }

    void runs_are_drawn_step_sign_and_start()
    {
        DrawNext({4, 2, 1, 5, 0}); // a constant 5; step 3 upwards from 6; the constant above
        QCOMPARE(Drawn({1, false}).NumeradoresSerie, (Numeros{5, 5, 5, 5, 5, 5, 5, 5}));
        DrawNext({4, 2, 1, 5, 1});
        QCOMPARE(Drawn({1, false}).NumeradoresSerie, (Numeros{6, 9, 12, 15, 18, 21, 24, 27}));
        DrawNext({0, 1, 0, 1, 1, 0, 0}); // step 1 from 1 above, step 2 from 1 below
        QCOMPARE(Drawn({2, false}).NumeradoresSerie, (Numeros{1, 2, 3, 4, 5, 6, 7, 8}));
        DrawNext({4, 2, 0, 5, 1}); // downwards
        QCOMPARE(Drawn({1, false}).NumeradoresSerie, (Numeros{29, 26, 23, 20, 17, 14, 11, 8}));
    }

    void a_changing_step_is_drawn_with_its_change_and_keeps_its_margin()
    {
        // Steps 1 upwards and a change of 1 downwards: from 1 and four times the change on, or from 1.
        DrawNext({0, 1, 0, 0, 1, 0, 0, 0, 1});
        QCOMPARE(reglas::SortearSerie({3, false}), std::nullopt);
        DrawNext({0, 1, 0, 0, 1, 0, 1, 7, 1});
        QCOMPARE(Drawn({3, false}).NumeradoresSerie, (Numeros{12, 13, 15, 18, 22, 27, 33, 40}));
        DrawNext({0, 1, 0, 1, 7, 0, 1, 0, 1, 7, 0});
        QCOMPARE(Drawn({4, false}).NumeradoresSerie, (Numeros{8, 9, 11, 14, 18, 23, 29, 36}));
        DrawNext({0, 1, 0, 1, 7, 0, 1, 0, 1, 7, 0});
        QCOMPARE(Drawn({4, false}).DenominadoresSerie, (Numeros{8, 9, 11, 14, 18, 23, 29, 36}));
        // A change downwards has its margin too, and a 0 is no negative number.
        DrawNext({0, 1, 0, 6, 1, 0, 0, 7, 1});
        QCOMPARE(Drawn({3, false}).NumeradoresSerie, (Numeros{12, 19, 25, 30, 34, 37, 39, 40}));
        DrawNext({0, 1, 0, 1, 1, 0, 0, 2, 1});
        QCOMPARE(Drawn({3, false}).NumeradoresSerie, (Numeros{7, 9, 10, 10, 9, 7, 4, 0}));
        // Downwards by 2 with a change of 3 upwards: from 16 and five times the change on.
        DrawNext({0, 1, 0, 1, 0, 2, 1, 4, 1});
        QCOMPARE(Drawn({3, false}).NumeradoresSerie, (Numeros{35, 33, 34, 38, 45, 55, 68, 84}));
    }

    void every_second_term_of_a_B_is_upside_down()
    {
        DrawNext({4, 2, 1, 5, 0});
        const Serie serie = Drawn({1, true});
        QCOMPARE(serie.NumeradoresSerie, (Numeros{5, 9, 5, 15, 5, 21, 5, 27}));
        QCOMPARE(serie.DenominadoresSerie, (Numeros{6, 5, 12, 5, 18, 5, 24, 5}));
        QCOMPARE(serie.Termino(3), numeros::Fraccion({15, 5}));
        QCOMPARE(serie.Primeros(2), (std::vector<numeros::Fraccion>{{5, 6}, {9, 5}}));
        DrawNext({4, 2, 1, 5, 1});
        QCOMPARE(Drawn({1, true}).DenominadoresSerie, serie.NumeradoresSerie);
    }

    void easier_levels_may_be_drawn_too_data()
    {
        QTest::addColumn<int>("level");
        QTest::addColumn<bool>("isB");
        QTest::addColumn<QStringList>("drawn");
        QTest::addRow("1A") << 1 << false << QStringList{"1A"};
        QTest::addRow("1B") << 1 << true << QStringList{"1A", "1B"};
        QTest::addRow("2A") << 2 << false << QStringList{"1A", "1B", "2A"};
        QTest::addRow("4A") << 4 << false << QStringList{"1A", "1B", "2A", "2B", "3A", "3B", "4A"};
        QTest::addRow("4B") << 4 << true << QStringList{"1A", "1B", "2A", "2B", "3A", "3B", "4A", "4B"};
    }
    void easier_levels_may_be_drawn_too()
    {
        QFETCH(int, level);
        QFETCH(bool, isB);
        QFETCH(QStringList, drawn);
        QStringList seen;
        ForAllDraws(2, [&] {
            const Nivel one = reglas::SortearNivel({level, isB});
            seen += QString::number(one.nivel) + (one.esB ? "B" : "A");
        });
        QCOMPARE(seen, drawn);
    }

    void levels_are_listed_from_the_easiest_on()
    {
        QStringList listed;
        for (int place = 0; place < 8; ++place) {
            const Nivel one = reglas::NivelDe(place);
            listed += QString::number(one.nivel) + (one.esB ? "B" : "A");
        }
        QCOMPARE(listed, QStringList({"1A", "1B", "2A", "2B", "3A", "3B", "4A", "4B"}));
    }

    void the_chosen_level_says_how_many_terms_are_shown()
    {
        for (int level = 1; level <= 4; ++level) {
            QCOMPARE(reglas::TerminosMostrados({level, level % 2 == 0}), 3 + level);
        }
    }
};

QTEST_APPLESS_MAIN(tst_Serie)
#include "tst_Serie.moc"
