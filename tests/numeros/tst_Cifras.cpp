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
        QCOMPARE(QString::fromStdString(numeros::EnCifras(value, ",")), text);
    }

    void the_separator_is_the_callers()
    {
        QCOMPARE(numeros::EnCifras(1.5, "."), "1.5");
        QCOMPARE(numeros::EnCifras(1.5, "\u066b"), "1\u066b5");
    }
};

QTEST_APPLESS_MAIN(tst_Cifras)
#include "tst_Cifras.moc"
