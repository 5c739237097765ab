#include "Entero16.h"

#include <QTest>

#include <limits>
#include <optional>

using numeros::Desbordamiento;
using numeros::Entero16;

class tst_Entero16 : public QObject
{
    Q_OBJECT

private slots:
    void computes_inside_the_range()
    {
        QCOMPARE((Entero16(32000) + Entero16(767)).Valor(), 32767);
        QCOMPARE((Entero16(-32000) - Entero16(768)).Valor(), -32768);
        QCOMPARE((Entero16(-128) * Entero16(256)).Valor(), -32768);
        QCOMPARE((Entero16(-7) / Entero16(2)).Valor(), -3);
        Entero16 n = 5;
        n += 3;
        QCOMPARE(n.Valor(), 8);
        QVERIFY(Entero16(-1) == Entero16(-1) && Entero16(-1) != Entero16(1));
        QVERIFY(Entero16(-2) < Entero16(-1) && Entero16(3) > 2 && Entero16(2) >= 2);
        QCOMPARE(Entero16().Valor(), 0);
    }

    void throws_where_a_result_leaves_the_range()
    {
        QVERIFY_THROWS_EXCEPTION(Desbordamiento, Entero16(32767) + 1);
        QVERIFY_THROWS_EXCEPTION(Desbordamiento, Entero16(-32768) - 1);
        QVERIFY_THROWS_EXCEPTION(Desbordamiento, Entero16(256) * 128);
        QVERIFY_THROWS_EXCEPTION(Desbordamiento, Entero16(-32768) / -1);
        QVERIFY_THROWS_EXCEPTION(Desbordamiento, Entero16(40000));
        Entero16 n = 32767;
        QVERIFY_THROWS_EXCEPTION(Desbordamiento, n += 1);
        QCOMPARE(n.Valor(), 32767);
    }

    void fits_or_gives_nothing()
    {
        QCOMPARE(Entero16::SiCabe(32767.4), std::optional<Entero16>(32767));
        QCOMPARE(Entero16::SiCabe(-32768.5), std::optional<Entero16>(-32768));
        QVERIFY(!Entero16::SiCabe(32767.5));
        QVERIFY(!Entero16::SiCabe(-32769));
        QVERIFY(!Entero16::SiCabe(std::numeric_limits<double>::quiet_NaN()));
        QVERIFY(!Entero16::SiCabe(1e300));
    }

    void rounds_halves_to_the_even_neighbour()
    {
        QCOMPARE(Entero16::Redondeado(0.5).Valor(), 0);
        QCOMPARE(Entero16::Redondeado(1.5).Valor(), 2);
        QCOMPARE(Entero16::Redondeado(2.5).Valor(), 2);
        QCOMPARE(Entero16::Redondeado(-0.5).Valor(), 0);
        QCOMPARE(Entero16::Redondeado(-1.5).Valor(), -2);
        QCOMPARE(Entero16::Redondeado(2.500001).Valor(), 3);
        QCOMPARE(Entero16::Redondeado(32767.5 - 0.1).Valor(), 32767);
    }

    void throws_where_a_rounded_value_leaves_the_range()
    {
        QVERIFY_THROWS_EXCEPTION(Desbordamiento, Entero16::Redondeado(32767.5));
        QVERIFY_THROWS_EXCEPTION(Desbordamiento, Entero16::Redondeado(-32769));
        QVERIFY_THROWS_EXCEPTION(Desbordamiento, Entero16::Redondeado(1e300));
        QVERIFY_THROWS_EXCEPTION(Desbordamiento, Entero16::Redondeado(std::numeric_limits<double>::quiet_NaN()));
    }
};

QTEST_APPLESS_MAIN(tst_Entero16)
#include "tst_Entero16.moc"
