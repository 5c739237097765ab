#include "Draws.h"
#include "Reparto.h"

#include <QTest>

#include <limits>
#include <set>

using namespace reglas;

class tst_Reparto : public QObject
{
    Q_OBJECT

private slots:
    void the_numerator_is_never_the_larger_number()
    {
        std::set<std::pair<int, int>> drawn;
        ForAllDraws(2, [&drawn] {
            const numeros::Fraccion fraction = SortearFraccion();
            drawn.insert({fraction.numerador.Valor(), fraction.denominador.Valor()});
        });
        std::set<std::pair<int, int>> expected;
        for (int denominator = 2; denominator <= 10; ++denominator) {
            for (int numerator = 1; numerator <= denominator; ++numerator) {
                expected.insert({numerator, denominator});
            }
        }
        QCOMPARE(drawn, expected);
    }

    void the_first_draw_is_of_ten_and_the_second_of_nine()
    {
        DrawNext({9, 0});
        QCOMPARE(SortearFraccion(), numeros::Fraccion({2, 10}));
        DrawNext({0, 8});
        QCOMPARE(SortearFraccion(), numeros::Fraccion({1, 10}));
    }

    void a_number_of_parts_that_cannot_be_is_put_right_data()
    {
        QTest::addColumn<double>("parts");
        QTest::addColumn<int>("corrected"); // 0 where it stays
        QTest::addRow("negative") << -0.1 << 1;
        QTest::addRow("far below") << -1e300 << 1;
        QTest::addRow("none") << 0.0 << 0;
        QTest::addRow("a bit") << 0.3 << 0;
        QTest::addRow("ten") << 10.0 << 0;
        QTest::addRow("more") << 10.1 << 10;
        QTest::addRow("far beyond") << 1e300 << 10;
        QTest::addRow("no number") << std::numeric_limits<double>::quiet_NaN() << 10;
    }
    void a_number_of_parts_that_cannot_be_is_put_right()
    {
        QFETCH(double, parts);
        QFETCH(int, corrected);
        QCOMPARE(PartesCorregidas(parts).value_or(0), corrected);
    }

    void parts_lie_in_strips_or_columns_data()
    {
        QTest::addColumn<int>("columns");
        const int columns[]{1, 1, 1, 2, 1, 2, 1, 2, 3, 2};
        for (int parts = 1; parts <= maximoPartes; ++parts) {
            QTest::addRow("%d", parts) << columns[parts - 1];
        }
    }
    void parts_lie_in_strips_or_columns()
    {
        QFETCH(int, columns);
        const int parts = QByteArray(QTest::currentDataTag()).toInt();
        const Rejilla grid = Repartir(parts);
        QCOMPARE(grid.columnas, columns);
        QCOMPARE(grid.columnas * grid.filas, parts);
        int part = 0;
        for (int column = 0; column < grid.columnas; ++column) { // downwards
            for (int row = 0; row < grid.filas; ++row, ++part) {
                QCOMPARE(Celda(grid, part).columna, column);
                QCOMPARE(Celda(grid, part).fila, row);
            }
        }
    }

    void no_parts_lie_nowhere() { QCOMPARE(Repartir(0).filas, 0); }
};

QTEST_APPLESS_MAIN(tst_Reparto)
#include "tst_Reparto.moc"
