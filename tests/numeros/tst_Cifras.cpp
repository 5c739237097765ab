#include "Cifras.h"

#include <QTest>

#include <cmath>

class tst_Cifras : public QObject
{
    Q_OBJECT

private slots:
    void writes_up_to_fifteen_digits_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<QString>("text");
        QTest::newRow("whole") << 15.0 << "15";
        QTest::newRow("nothing") << 0.0 << "0";
        QTest::newRow("a half") << 3.5 << "3,5";
        QTest::newRow("thirds") << 7.0 / 3 << "2,33333333333333";
        QTest::newRow("two thirds") << 2.0 / 3 << "0,666666666666667";
        QTest::newRow("large") << 32767.0 * 32767 << "1073676289";
        QTest::newRow("negative") << -0.25 << "-0,25";
        QTest::newRow("no digits beyond what counts") << 0.1 + 0.2 << "0,3";
        QTest::newRow("small") << 1.0 / 32767 << "3,05185094759972e-05";
        QTest::newRow("long") << 1.0 / 3 * -1e-300 << "-3,33333333333333e-301";
    }
    void writes_up_to_fifteen_digits()
    {
        QFETCH(double, value);
        QFETCH(QString, text);
        QCOMPARE(QString::fromStdString(numeros::EnCifras(value, 40, ",")), text);
    }

    void the_separator_is_the_callers()
    {
        QCOMPARE(numeros::EnCifras(1.5, 5, "."), "1.5");
        QCOMPARE(numeros::EnCifras(7.0 / 3, 5, "\u066b"), "2\u066b333"); // which is more than one byte
    }

    void what_does_not_fit_is_cut_off()
    {
        QCOMPARE(numeros::EnCifras(7.0 / 3, 5, ","), "2,333");
        QCOMPARE(numeros::EnCifras(2.0 / 3, 5, ","), "0,666");
        QCOMPARE(numeros::EnCifras(16383.5, 5, ","), "16383");
        QCOMPARE(numeros::EnCifras(1638.5, 5, ","), "1638,");
    }

    void a_number_stands_at_the_right_of_its_places()
    {
        QCOMPARE(numeros::Alineado(7, 3), "  7");
        QCOMPARE(numeros::Alineado(-7, 3), " -7");
        QCOMPARE(numeros::Alineado(1000, 3), "1000");
        QCOMPARE(numeros::Alineado(7, 0), "7");
    }
};

QTEST_APPLESS_MAIN(tst_Cifras)
#include "tst_Cifras.moc"
