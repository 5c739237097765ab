#include "Operaciones.h"

#include <QTest>

#include <numeric>

using reglas::DenominadorComun;

class tst_Operaciones : public QObject
{
    Q_OBJECT

private slots:
    void is_the_least_one_unless_both_share_19_or_29()
    {
        int larger = 0;
        for (int a = 2; a <= 100; ++a) {
            for (int b = 2; b <= 100; ++b) {
                if (a == b) {
                    continue; // one denominator needs no common one
                }
                // 19 and 29 are missing among the trial factors, so a common factor of theirs is not cancelled.
                const int common = std::gcd(a, b);
                const int kept = common % 19 == 0 ? 19 : (common % 29 == 0 ? 29 : 1);
                larger += kept == 1 ? 0 : 1;
                QCOMPARE(DenominadorComun(a, b).Valor(), std::lcm(a, b) * kept);
            }
        }
        QCOMPARE(larger, 5 * 4 + 3 * 2); // ordered pairs of multiples of 19 and of 29 below 100
    }

    void known_deviations_from_the_least_multiple()
    {
        QCOMPARE(DenominadorComun(19, 38).Valor(), 722);
        QCOMPARE(DenominadorComun(38, 57).Valor(), 2166);
        QCOMPARE(DenominadorComun(29, 58).Valor(), 1682);
        QCOMPARE(DenominadorComun(58, 87).Valor(), 5046);
        QCOMPARE(DenominadorComun(6, 4).Valor(), 12);
        QCOMPARE(DenominadorComun(51, 34).Valor(), 102);
    }

    void every_trial_factor_is_cancelled()
    {
        for (const int factor : {2, 3, 5, 7, 11, 13, 17, 23, 31, 37, 41, 43, 47, 51, 53, 59, 61, 67, 71, 73}) {
            QCOMPARE(DenominadorComun(2 * factor, 3 * factor).Valor(), 6 * factor);
        }
    }

    void throws_where_it_does_not_fit()
    {
        QVERIFY_THROWS_EXCEPTION(numeros::Desbordamiento, DenominadorComun(32749, 32719));
    }
};

QTEST_APPLESS_MAIN(tst_Operaciones)
#include "tst_Operaciones.moc"
