#include "Lectura.h"

#include <QTest>

using namespace lenguaje;

namespace {

QString Read(double numerator, double denominator)
{
    return QString::fromStdString(FraccionEnLetras(numerator, denominator, numerator == 1, Variante::Base));
}

} // namespace

class tst_Lectura : public QObject
{
    Q_OBJECT

private slots:
    void reads_fractions_data()
    {
        QTest::addColumn<double>("numerator");
        QTest::addColumn<double>("denominator");
        QTest::addColumn<QString>("words");
        const auto row = [](double n, double d, const char* words) {
            QTest::addRow("%g/%g", n, d) << n << d << QString(words);
        };
        row(3, 4, "tres cuartos");
        row(1, 2, "un medio");
        row(5, 12, "cinco doceavos");
        row(4, 1, "cuatro enteros");
        row(0, 5, "cero quintos");
        row(0, 7, "cero séptimos");
        row(1, 0, "un cero");
        row(0, 0, "cero ceros");
        row(21, 30, "veintiuno treintaavos");
        row(11, 15, "once quinceavos");
        row(7, 6, "siete Sextos");
    }
    void reads_fractions()
    {
        QFETCH(double, numerator);
        QFETCH(double, denominator);
        QFETCH(QString, words);
        QCOMPARE(Read(numerator, denominator), words);
    }

    void whether_the_name_is_singular_is_the_callers_to_say()
    {
        QCOMPARE(FraccionEnLetras(-1, 2, true, Variante::ConMenos), "menos un medio");
        QCOMPARE(FraccionEnLetras(-1, 2, false, Variante::ConMenos), "menos un medios");
        QCOMPARE(FraccionEnLetras(3, 12, false, Variante::Entera), "tres doceavos");
    }

    void a_repeated_text_gets_one_blank_that_goes_again()
    {
        QCOMPARE(ConBlancoSiRepite("uno", ""), "uno");
        QCOMPARE(ConBlancoSiRepite("uno", "uno"), "uno ");
        QCOMPARE(ConBlancoSiRepite("uno", "uno "), "uno");
        QCOMPARE(ConBlancoSiRepite("uno ", "uno "), "uno  ");
    }

    void or_one_in_front()
    {
        QCOMPARE(ConBlancoDelanteSiRepite("uno", ""), "uno");
        QCOMPARE(ConBlancoDelanteSiRepite("uno", "uno"), " uno");
        QCOMPARE(ConBlancoDelanteSiRepite("uno", " uno"), "uno");
        QCOMPARE(ConBlancoDelanteSiRepite("uno", "uno "), "uno");
    }
};

QTEST_APPLESS_MAIN(tst_Lectura)
#include "tst_Lectura.moc"
