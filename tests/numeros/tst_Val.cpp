#include "Val.h"

#include <QTest>

#include <cmath>
#include <locale>

using numeros::Val;

class tst_Val : public QObject
{
    Q_OBJECT

private slots:
    void reads_the_leading_number_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value");
        const auto row = [](const char* text, double value) { QTest::newRow(text) << QString(text) << value; };
        row("", 0);
        row("   ", 0);
        row("12", 12);
        row("0012", 12);
        row("12abc34", 12);
        row("abc12", 0);
        row("-3", -3);
        row("+3", 3);
        row("--3", 0);
        row("+-3", 0);
        row("-", 0);
        row("+", 0);
        row("3-4", 3);
        row("1.5", 1.5);
        row("1.5.9", 1.5);
        row("1,5", 1);
        row(".5", 0.5);
        row("-.5", -0.5);
        row("5.", 5);
        row(".", 0);
        row("-.", 0);
        row("1e5", 1);
        row("0x10", 0);
        row("&H10", 0);
        row("inf", 0);
        row("nan", 0);
        row("ñ", 0);
    }
    void reads_the_leading_number()
    {
        QFETCH(QString, text);
        QFETCH(double, value);
        QCOMPARE(Val(text.toStdString()), value);
    }

    void skips_blanks_before_and_inside_the_number()
    {
        QCOMPARE(Val("  1 2\t3"), 123.0);
        QCOMPARE(Val(" - 4 . 5 "), -4.5);
        QCOMPARE(Val("\r\n7\r\n8"), 78.0);
        QCOMPARE(Val("\xC2\xA0"
                     "5"),
                 0.0); // no-break space is no blank
    }

    void reads_the_same_under_a_locale_with_decimal_commas()
    {
        class WithComma : public std::numpunct<char>
        {
            char do_decimal_point() const override { return ','; }
        };
        const std::locale before = std::locale::global(std::locale(std::locale::classic(), new WithComma));
        const double point = Val("1.5");
        const double comma = Val("1,5");
        std::locale::global(before);
        QCOMPARE(point, 1.5);
        QCOMPARE(comma, 1.0);
    }

    void reads_forty_digits_as_the_nearest_double()
    {
        QCOMPARE(Val(std::string(40, '9')), 1e40);
        QCOMPARE(Val("0." + std::string(400, '0') + "1"), 0.0);
    }

    void is_not_a_number_beyond_the_range_of_a_double()
    {
        QVERIFY(std::isnan(Val(std::string(400, '9'))));
        QVERIFY(std::isnan(Val("-" + std::string(32767, '1'))));
    }
};

QTEST_APPLESS_MAIN(tst_Val)
#include "tst_Val.moc"
