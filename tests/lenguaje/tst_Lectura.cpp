#include "Lectura.h"

#include <QTest>

using namespace lenguaje;

namespace {

QString Read(double numerator, double denominator)
{
    return QString::fromStdString(FraccionEnLetras(numerator, denominator, {}));
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

    void the_name_is_singular_for_other_numerators_on_other_screens_data()
    {
        QTest::addColumn<double>("numerator");
        QTest::addColumn<bool>("one");
        QTest::addColumn<bool>("oneWithSign");
        QTest::addColumn<bool>("upToOne");
        const auto row = [](double n, bool one, bool oneWithSign, bool upToOne) {
            QTest::addRow("%g", n) << n << one << oneWithSign << upToOne;
        };
        row(-2, false, false, true);
        row(-1, false, true, true);
        row(0, false, false, true);
        row(0.5, false, false, true);
        row(1, true, true, true);
        row(1.5, false, false, false);
        row(2, false, false, false);
        row(21, false, false, false);
    }
    void the_name_is_singular_for_other_numerators_on_other_screens()
    {
        QFETCH(double, numerator);
        QFETCH(bool, one);
        QFETCH(bool, oneWithSign);
        QFETCH(bool, upToOne);
        QCOMPARE(EsSingular(numerator, Singular::Uno), one);
        QCOMPARE(EsSingular(numerator, Singular::UnoConSigno), oneWithSign);
        QCOMPARE(EsSingular(numerator, Singular::HastaUno), upToOne);
    }

    void each_screen_has_its_way_of_reading()
    {
        QCOMPARE(FraccionEnLetras(-1, 2, {Variante::ConMenos, Singular::UnoConSigno}), "menos un medio");
        QCOMPARE(FraccionEnLetras(-1, 2, {Variante::ConMenos, Singular::Uno}), "menos un medios");
        QCOMPARE(FraccionEnLetras(3, 12, {Variante::Entera, Singular::HastaUno}), "tres doceavos");
        QCOMPARE(FraccionEnLetras({3, 12}), "tres doceavos");
        QCOMPARE(FraccionEnLetras({1, 16}), "un dieciséisavo");
        QCOMPARE(DenominadorEnLetras(0, 4, {Variante::Entera, Singular::HastaUno}), "cuarto");
        QCOMPARE(DenominadorEnLetras(2, 16, {Variante::Entera, Singular::HastaUno}), "dieciseisavos");
        QCOMPARE(EnLetrasSolo(1), "uno");
        QCOMPARE(EnLetrasSolo(21), "veintiuno");
        QCOMPARE(EnLetrasSolo(-3), "menos tres");
    }

    void several_fractions_are_read_one_after_the_other()
    {
        QCOMPARE(FraccionesEnLetras({}), "");
        const std::array<numeros::Fraccion, 3> three{{{1, 2}, {3, 4}, {2, 1}}};
        QCOMPARE(FraccionesEnLetras(std::span(three).first(1)), "un medio");
        QCOMPARE(FraccionesEnLetras(three), "un medio, tres cuartos, dos enteros");
    }

    void operations_are_read_with_their_result_where_there_is_one_data()
    {
        QTest::addColumn<double>("numerator");
        QTest::addColumn<double>("denominator");
        QTest::addColumn<QString>("words");
        QTest::addRow("none") << 0.0 << 0.0 << "un tercio+dos quintos=";
        QTest::addRow("whole") << 11.0 << 15.0 << "un tercio+dos quintos=once quinceavos";
        QTest::addRow("no numerator") << 0.0 << 7.0 << "un tercio+dos quintos=cero séptimos";
        QTest::addRow("no denominator") << 1.0 << 0.0 << "un tercio+dos quintos=un cero";
    }
    void operations_are_read_with_their_result_where_there_is_one()
    {
        QFETCH(double, numerator);
        QFETCH(double, denominator);
        QFETCH(QString, words);
        const std::string read = OperacionEnLetras({1, 3, 2, 5, numerator, denominator}, "+", "=", {});
        QCOMPARE(QString::fromStdString(read), words);
    }

    void an_operation_says_its_own_signs_in_its_own_way()
    {
        const Modo difference{Variante::ConMenos, Singular::UnoConSigno};
        QCOMPARE(OperacionEnLetras({1, 2, 3, 2, -1, 1}, " por ", " es ", difference),
                 "un medio por tres medios es menos un entero");
    }

    void fractions_of_quantities_have_two_blanks_before_the_quantity()
    {
        QCOMPARE(FraccionDeCantidadEnLetras({3, 4}, 20), "tres cuartos  de veinte");
        QCOMPARE(FraccionDeCantidadEnLetras({1, 2}, 10), "un medio  de diez");
        QCOMPARE(FraccionDeCantidadEnLetras({0, 2}, 10), "cero medio de diez");
        QCOMPARE(FraccionDeCantidadEnLetras({2, 25}, 1000), "dos veintiquintos  de mil ");
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
