#include "Cajas.h"

#include <QTest>

using namespace reglas;

class tst_Cajas : public QObject
{
    Q_OBJECT

private slots:
    void numerators_and_denominators_keep_their_row_and_go_round()
    {
        const int right[]{2, 3, 4, 5, 0, 1};
        const int left[]{4, 5, 0, 1, 2, 3};
        const int fraction[]{0, 0, 1, 1, 2, 2};
        for (int box = 0; box < cajasDeOperacion; ++box) {
            QCOMPARE(CajaALaDerecha(box), right[box]);
            QCOMPARE(CajaALaIzquierda(box), left[box]);
            QCOMPARE(FraccionDe(box), fraction[box]);
        }
    }

    void signs_lie_between_numerators()
    {
        QCOMPARE(CajaAnteSigno(0), 0);
        QCOMPARE(CajaTrasSigno(0), 2);
        QCOMPARE(CajaAnteSigno(1), 2);
        QCOMPARE(CajaTrasSigno(1), 4);
    }
};

QTEST_APPLESS_MAIN(tst_Cajas)
#include "tst_Cajas.moc"
