#include "Tablero.h"

#include "Azar.h"

namespace reglas {

Tablero Tablero::Sortear()
{
    Tablero tablero;
    do {
        tablero.Columnas = numeros::Sortear(5, 1);
        tablero.Filas = numeros::Sortear(5, 1);
    } while (tablero.Total() < 3); // one of each colour
    tablero.Rojas = numeros::Sortear(tablero.Total() - 2, 1);
    tablero.Amarillas = numeros::Sortear(tablero.Total() - tablero.Rojas - 1, 1);
    tablero.Verdes = tablero.Total() - tablero.Rojas - tablero.Amarillas;
    return tablero;
}

ColorFicha Tablero::ColorDe(int indice) const
{
    if (indice < Rojas) {
        return ColorFicha::Rojo;
    }
    return indice < Rojas + Amarillas ? ColorFicha::Amarillo : ColorFicha::Verde;
}

} // namespace reglas
