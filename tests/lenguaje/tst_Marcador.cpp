#include "Marcador.h"

#include <QTest>

class tst_Marcador : public QObject
{
    Q_OBJECT

private slots:
    void numbers_stand_at_the_right_of_three_places()
    {
        QCOMPARE(lenguaje::Marcador(0, 0), "Ejercicios:  0; Errores:  0");
        QCOMPARE(lenguaje::Marcador(7, 12), "Ejercicios:  7; Errores: 12");
        QCOMPARE(lenguaje::Marcador(100, 999), "Ejercicios:100; Errores:999");
    }

    void longer_ones_take_their_room() { QCOMPARE(lenguaje::Marcador(1000, 32767), "Ejercicios:1000; Errores:32767"); }

    void the_first_line_counts_nothing() { QCOMPARE(std::string(lenguaje::marcadorInicial), lenguaje::Marcador(0, 0)); }

    // As many blanks before the errors as they have digits, and one more.
    void the_line_of_the_series_has_paddings_of_its_own()
    {
        QCOMPARE(lenguaje::MarcadorDeSerie(0, 0), "Ejercicios:   0; Errores:  0.");
        QCOMPARE(lenguaje::MarcadorDeSerie(7, 12), "Ejercicios:   7; Errores:   12.");
        QCOMPARE(lenguaje::MarcadorDeSerie(100, 123), "Ejercicios: 100; Errores:    123.");
    }

    void the_line_of_the_tokens_has_none()
    {
        QCOMPARE(lenguaje::MarcadorDeFichas(7, 12), "Ejercicios: 7. Errores: 12.");
    }
};

QTEST_APPLESS_MAIN(tst_Marcador)
#include "tst_Marcador.moc"
