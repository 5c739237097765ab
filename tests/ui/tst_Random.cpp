#include "Random.h"

#include <QTest>
#include <QTime>

#include <set>

class tst_Random : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { ui::FixSeed({}); }

    void values_lie_from_zero_to_below_one()
    {
        ui::Randomize(1);
        double sum = 0;
        for (int i = 0; i < 100'000; ++i) {
            const double value = ui::Rnd();
            QVERIFY(value >= 0 && value < 1);
            sum += value;
        }
        QVERIFY(std::abs(sum / 100'000 - 0.5) < 0.01);
    }

    void the_time_of_day_is_a_seed()
    {
        const auto restore = qScopeGuard([] { ui::FixTimeOfDay({}); });
        ui::FixTimeOfDay(3600 * 7 + 60 * 5 + 3);
        QCOMPARE(ui::TimeOfDaySeed(), 8U * 6 * 4);
        ui::FixTimeOfDay({}); // and then the clock's
        const auto expected = [] {
            const QTime now = QTime::currentTime();
            return static_cast<std::uint32_t>((now.hour() + 1) * (now.minute() + 1) * (now.second() + 1));
        };
        std::uint32_t before = 0;
        std::uint32_t seed = 0;
        do { // until no second passes in between
            before = expected();
            seed = ui::TimeOfDaySeed();
        } while (before != expected());
        QCOMPARE(seed, before);
        QVERIFY(seed >= 1 && seed <= 86'400);
    }

    void draws_cover_their_range_and_no_more()
    {
        ui::Randomize(2);
        std::set<int> seen;
        for (int i = 0; i < 10'000; ++i) {
            seen.insert(ui::Draw(9, 2));
        }
        QCOMPARE(seen.size(), std::size_t(9));
        QCOMPARE(*seen.begin(), 2);
        QCOMPARE(*seen.rbegin(), 10);
    }

    void a_seed_repeats_its_draws()
    {
        ui::Randomize(3);
        const double first = ui::Rnd();
        ui::Randomize(3);
        QCOMPARE(ui::Rnd(), first);
        ui::Randomize(4);
        QVERIFY(ui::Rnd() != first);
    }

    void a_fixed_seed_wins()
    {
        ui::FixSeed(5);
        ui::Randomize(3);
        const double first = ui::Rnd();
        ui::Randomize(4);
        QCOMPARE(ui::Rnd(), first);
        ui::FixSeed({});
        ui::Randomize(4);
        QVERIFY(ui::Rnd() != first);
    }
};

QTEST_APPLESS_MAIN(tst_Random)
#include "tst_Random.moc"
