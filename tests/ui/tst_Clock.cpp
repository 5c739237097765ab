#include "Clock.h"

#include <QScopeGuard>
#include <QTest>
#include <QTime>

class tst_Clock : public QObject
{
    Q_OBJECT

private slots:
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

    void the_timer_gives_another_seed_each_time()
    {
        const std::uint32_t first = ui::TimerSeed();
        QTRY_VERIFY(ui::TimerSeed() != first);
    }
};

QTEST_APPLESS_MAIN(tst_Clock)
#include "tst_Clock.moc"
