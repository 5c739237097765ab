#include "Draws.h"
#include "Tablero.h"

#include <QTest>

#include <set>

using reglas::ColorFicha;
using reglas::Tablero;

class tst_Tablero : public QObject
{
    Q_OBJECT

private slots:
    // With a board that is too small drawn again twice.
    void every_board_has_each_colour_and_three_tokens()
    {
        std::set<std::pair<int, int>> sizes;
        std::set<std::array<int, 3>> counts;
        ForAllDraws(8, [&] {
            const Tablero board = Tablero::Sortear();
            QVERIFY(board.Columnas >= 1 && board.Columnas <= 5 && board.Filas >= 1 && board.Filas <= 5);
            QVERIFY(board.Total() >= 3 && board.Total() <= Tablero::maximo);
            QVERIFY(board.Rojas >= 1 && board.Amarillas >= 1 && board.Verdes >= 1);
            QCOMPARE(board.Rojas + board.Amarillas + board.Verdes, board.Total());
            sizes.insert({board.Columnas, board.Filas});
            counts.insert({board.Rojas, board.Amarillas, board.Verdes});
        });
        QCOMPARE(sizes.size(), std::size_t(25 - 3)); // all but 1x1, 1x2, 2x1
        std::size_t possible = 0;
        for (const int total : {3, 4, 5, 6, 8, 9, 10, 12, 15, 16, 20, 25}) {
            possible += (total - 1) * (total - 2) / 2;
        }
        QCOMPARE(counts.size(), possible);
    }

    void draws_columns_rows_red_and_yellow_in_this_order()
    {
        DrawNext({0, 0, 3, 2, 4, 1});
        const Tablero board = Tablero::Sortear();
        QCOMPARE(board.Columnas, 4);
        QCOMPARE(board.Filas, 3);
        QCOMPARE(board.Solucion(), (std::array<int, 6>{5, 12, 2, 12, 5, 12}));
    }

    void tokens_lie_row_by_row_red_then_yellow_then_green()
    {
        const Tablero board{.Columnas = 3, .Filas = 2, .Rojas = 2, .Amarillas = 1, .Verdes = 3};
        const ColorFicha colors[]{ColorFicha::Rojo,  ColorFicha::Rojo,  ColorFicha::Amarillo,
                                  ColorFicha::Verde, ColorFicha::Verde, ColorFicha::Verde};
        for (int i = 0; i < board.Total(); ++i) {
            QCOMPARE(board.ColorDe(i), colors[i]);
            QCOMPARE(board.Celda(i).columna, i % 3);
            QCOMPARE(board.Celda(i).fila, i < 3 ? 0 : 1);
        }
    }
};

QTEST_APPLESS_MAIN(tst_Tablero)
#include "tst_Tablero.moc"
