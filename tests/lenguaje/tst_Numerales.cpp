#include "Numerales.h"

#include <QTest>

#include <limits>

using namespace lenguaje;

namespace {

QString Cardinal(double value, Variante variant = Variante::Base)
{
    bool denominator = false;
    return QString::fromStdString(NumeroEnLetras(value, denominator, variant));
}

QString Part(double value, Variante variant = Variante::Base)
{
    bool denominator = true;
    return QString::fromStdString(NumeroEnLetras(value, denominator, variant));
}

// An independent rule for the cardinals below a million million, written from the language and not from the tables.
QString BelowHundred(int n)
{
    static const QStringList small{"",        "uno",    "dos",       "tres",       "cuatro",    "cinco",      "seis",
                                   "siete",   "ocho",   "nueve",     "diez",       "once",      "doce",       "trece",
                                   "catorce", "quince", "dieciséis", "diecisiete", "dieciocho", "diecinueve", "veinte"};
    static const QStringList tens{"",          "",        "veinte",  "treinta", "cuarenta",
                                  "cincuenta", "sesenta", "setenta", "ochenta", "noventa"};
    if (n <= 20) {
        return small[n];
    }
    if (n < 30) {
        return "veinti" + small[n - 20];
    }
    return n % 10 == 0 ? tens[n / 10] : tens[n / 10] + " y " + small[n % 10];
}

QString BelowThousand(int n)
{
    static const QStringList hundreds{"",           "ciento",      "doscientos",  "trescientos", "cuatrocientos",
                                      "quinientos", "seiscientos", "setecientos", "ochocientos", "novecientos"};
    if (n == 100) {
        return "cien";
    }
    return n < 100 ? BelowHundred(n) : hundreds[n / 100] + " " + BelowHundred(n % 100);
}

QString Expected(int n)
{
    if (n == 0) {
        return "cero";
    }
    QString text;
    if (n / 1'000'000 == 1) {
        text += "un millón ";
    } else if (n >= 1'000'000) {
        text += BelowThousand(n / 1'000'000) + " millones ";
    }
    const int thousands = n / 1000 % 1000;
    if (thousands == 1) {
        text += "mil ";
    } else if (thousands > 1) {
        text += BelowThousand(thousands) + "mil ";
    }
    return text + (n % 1000 == 1 ? "un" : BelowThousand(n % 1000));
}

void AddRows(std::initializer_list<std::pair<double, const char*>> rows)
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("words");
    for (const auto& [value, words] : rows) {
        QTest::addRow("%.10g", value) << value << QString(words);
    }
}

} // namespace

class tst_Numerales : public QObject
{
    Q_OBJECT

private slots:
    void tables_hold_the_exact_words()
    {
        const TablasNumerales& t = CargarTablasNumerales();
        const auto joined = [](const auto& table) {
            QStringList words;
            for (const std::string_view word : table) {
                words += QString::fromUtf8(word.data(), static_cast<qsizetype>(word.size()));
            }
            return words.join('|');
        };
        QCOMPARE(joined(t.Unidades),
                 "|uno|dos|tres|cuatro|cinco|seis|siete|ocho|nueve|diez|once|doce|trece|catorce|quince|"
                 "dieciséis|diecisiete|dieciocho|diecinueve|veinte");
        QCOMPARE(joined(t.Partes),
                 "|entero|medio|tercio|cuarto|quinto|Sexto|séptimo|octavo|noveno|décimo|onceavo|doceavo|"
                 "treceavo|catorceavo|quinceavo|dieciseisavo|diecisieteavo|dieciochoavo|diecinueveavo|"
                 "veinteavo");
        const char* tens = "diez|veinte|treinta|cuarenta|cincuenta|sesenta|setenta|ochenta|noventa|cien";
        const char* compound = "dieci|veinti|treinta y |cuarenta y |cincuenta y |sesenta y |setenta y |ochenta y |"
                               "noventa y |ciento ";
        const char* hundreds = "ciento |doscientos |trescientos |cuatrocientos |quinientos |seiscientos |setecientos |"
                               "ochocientos |novecientos |mil|cien";
        QCOMPARE(joined(t.Decenas), tens);
        QCOMPARE(joined(t.DecenasPartes), tens);
        QCOMPARE(joined(t.DecenasCompuestas), compound);
        QCOMPARE(joined(t.DecenasCompuestasPartes), compound);
        QCOMPARE(joined(t.Centenas), hundreds);
        QCOMPARE(joined(t.CentenasPartes), hundreds);
    }

    void reads_cardinals_data()
    {
        AddRows({{0, "cero"},
                 {1, "un"},
                 {7, "siete"},
                 {16, "dieciséis"},
                 {20, "veinte"},
                 {21, "veintiuno"},
                 {22, "veintidos"},
                 {30, "treinta"},
                 {35, "treinta y cinco"},
                 {100, "cien"},
                 {101, "ciento uno"},
                 {104, "ciento cuatro"},
                 {115, "ciento quince"},
                 {200, "doscientos "},
                 {999, "novecientos noventa y nueve"},
                 {1000, "mil "},
                 {1001, "mil un"},
                 {1100, "mil cien"},
                 {2000, "dosmil "},
                 {21000, "veintiunomil "},
                 {100'000, "cienmil "},
                 {200'000, "doscientos mil "},
                 {1'000'000, "un millón "},
                 {1'000'001, "un millón un"},
                 {2'000'000, "dos millones "},
                 {3'000'000, "tres millones "},
                 {1e9, "mil millones "},
                 {2e9, "dosmil "},
                 {1e12, "un billón"},
                 {5e12, "cinco billones "},
                 {1e15, "mil billones "},
                 {2e15, "dosmil "},
                 {1e18, "un trillón "},
                 {7e18, "siete trillones"},
                 {1e21, "mil trillones "},
                 {2e21, "dosmil "},
                 {2e21, "dosmil "}});
    }
    void reads_cardinals()
    {
        QFETCH(double, value);
        QFETCH(QString, words);
        QCOMPARE(Cardinal(value), words);
        QCOMPARE(Cardinal(value, Variante::ConMenos), words);
        QCOMPARE(Cardinal(value, Variante::Entera), words);
    }

    void reads_fraction_names_data()
    {
        AddRows({{0, "cero"},          {1, "entero"},           {2, "medio"},
                 {3, "tercio"},        {4, "cuarto"},           {5, "quinto"},
                 {6, "Sexto"},         {7, "séptimo"},          {8, "octavo"},
                 {9, "noveno"},        {10, "décimo"},          {11, "onceavo"},
                 {12, "doceavo"},      {16, "dieciséisavo"},    {20, "veinteavo"},
                 {21, "veintiunoavo"}, {24, "veinticuatroavo"}, {100, "cienavo"},
                 {1000, "mil avo"},    {10.5, "diezavo"}});
    }
    void reads_fraction_names()
    {
        QFETCH(double, value);
        QFETCH(QString, words);
        QCOMPARE(Part(value), words);
        QCOMPARE(Part(value, Variante::ConMenos), words);
    }

    void whole_variant_makes_every_denominator_of_the_fraction_names_data()
    {
        AddRows({{0, "cero"},
                 {1, "entero"},
                 {6, "Sexto"},
                 {11, "onceavo"},
                 {16, "dieciseisavo"},
                 {19, "diecinueveavo"},
                 {20, "veinteavo"},
                 {21, "veintientero"},
                 {25, "veintiquinto"},
                 {30, "treinta"},
                 {100, "cien"},
                 {102, "ciento medio"},
                 {1000, "enteromilésimo "},
                 {2000, "mediomilésimo "},
                 {1e6, "entero millonésimo "},
                 {-3, "cero"}});
    }
    void whole_variant_makes_every_denominator_of_the_fraction_names()
    {
        QFETCH(double, value);
        QFETCH(QString, words);
        QCOMPARE(Part(value, Variante::Entera), words);
    }

    void scales_of_fraction_names_end_with_the_cardinal_words()
    {
        QCOMPARE(Part(2e9, Variante::Entera), "mediomilésimo ");
        QCOMPARE(Part(2e12, Variante::Entera), "medio billonésimo ");
        QCOMPARE(Part(2e15, Variante::Entera), "mediomilésimo ");
        QCOMPARE(Part(2e18, Variante::Entera), "medio trillones");
        QCOMPARE(Part(2e21, Variante::Entera), "mediomil ");
    }

    void negatives_are_zero_except_where_minus_is_said()
    {
        QCOMPARE(Cardinal(-4), "cero");
        QCOMPARE(Cardinal(-4, Variante::Entera), "cero");
        QCOMPARE(Cardinal(-1e30), "cero");
        QCOMPARE(Part(-16), "cero");
        QCOMPARE(Cardinal(-4, Variante::ConMenos), "menos cuatro");
        QCOMPARE(Cardinal(-1, Variante::ConMenos), "menos un");
        QCOMPARE(Cardinal(-0.3, Variante::ConMenos), "menos cero");
        QCOMPARE(Cardinal(-0.0, Variante::ConMenos), "cero");
        QCOMPARE(Part(-4, Variante::ConMenos), "menos cuarto");
        QCOMPARE(Part(-16, Variante::ConMenos), "menos dieciséisavo");
    }

    void the_callers_flag_is_cleared_above_ten_alone()
    {
        const auto after = [](double value, Variante variant) {
            bool denominator = true;
            NumeroEnLetras(value, denominator, variant);
            return denominator;
        };
        QCOMPARE(after(10, Variante::Base), true);
        QCOMPARE(after(12, Variante::Base), false);
        QCOMPARE(after(12, Variante::ConMenos), false);
        QCOMPARE(after(-12, Variante::ConMenos), false);
        QCOMPARE(after(-12, Variante::Base), true);
        QCOMPARE(after(12, Variante::Entera), true);
    }

    void groups_are_rounded_halves_to_even()
    {
        QCOMPARE(Cardinal(2.5), "dos");
        QCOMPARE(Cardinal(3.5), "cuatro");
        QCOMPARE(Cardinal(0.4), "cero");
        QCOMPARE(Cardinal(999.5), "mil");
        QCOMPARE(Cardinal(1999.7), "mil mil");
    }

    void numbers_without_scale_words_have_a_text_of_their_own()
    {
        QCOMPARE(Cardinal(1e24), "número demasiado grande");
        QCOMPARE(Part(1e40), "número demasiado grande");
        QCOMPARE(Cardinal(std::numeric_limits<double>::infinity()), "número demasiado grande");
        QCOMPARE(Cardinal(std::numeric_limits<double>::quiet_NaN()), "número demasiado grande");
    }

    void numbers_beyond_the_precision_of_a_double_stay_inside_the_tables()
    {
        for (int step = 0; step < 26'000; ++step) {
            const double value = std::floor(9e15 * std::pow(1.0007, step));
            QVERIFY(value < 1e24 && !Cardinal(value).isEmpty());
        }
        QVERIFY(!Cardinal(std::nextafter(1e24, 0)).isEmpty());
    }

    void all_numbers_to_a_million_follow_an_independent_rule()
    {
        static const QStringList parts{"cero",  "entero",  "medio",  "tercio", "cuarto", "quinto",
                                       "Sexto", "séptimo", "octavo", "noveno", "décimo"};
        for (int n = 0; n <= 1'000'000; ++n) {
            const QString cardinal = Expected(n);
            const QString part = n <= 10 ? parts[n] : cardinal + "avo";
            if (Cardinal(n) != cardinal || Part(n) != part) {
                QFAIL(qPrintable(QString("%1: \"%2\" and \"%3\"").arg(n).arg(Cardinal(n), Part(n))));
            }
            if (n > 0 && Cardinal(-n, Variante::ConMenos) != "menos " + cardinal) {
                QFAIL(qPrintable(QString("-%1: \"%2\"").arg(n).arg(Cardinal(-n, Variante::ConMenos))));
            }
        }
    }

    void quotient_and_remainder_round_downwards()
    {
        QCOMPARE(Cociente(7, 2), 3.0);
        QCOMPARE(Cociente(-7, 2), -4.0);
        QCOMPARE(Cociente(7, -2), -4.0);
        QCOMPARE(Cociente(-7, -2), 3.0);
        QCOMPARE(Cociente(2.5, 0.5), 5.0);
        QCOMPARE(Resto(7, 2), 1.0);
        QCOMPARE(Resto(-7, 2), 1.0);
        QCOMPARE(Resto(7, -2), -1.0);
        QCOMPARE(Resto(7.25, 2), 1.25);
        QCOMPARE(Resto(-0.25, 1), 0.75);
        QCOMPARE(Resto(123456, 1000), 456.0);
    }
};

QTEST_APPLESS_MAIN(tst_Numerales)
#include "tst_Numerales.moc"
