// A board of red, yellow and green tokens, row by row: the red ones first, then the yellow ones, then the green ones.
#pragma once

#include "Posicion.h"

#include <array>

namespace reglas {

enum class ColorFicha { Rojo, Amarillo, Verde };

struct Tablero
{
    int Columnas = 0; // 1 to 5
    int Filas = 0;    // 1 to 5
    int Rojas = 0;    // at least one of each colour
    int Amarillas = 0;
    int Verdes = 0;

    static constexpr int maximo = 25; // tokens

    static Tablero Sortear();

    int Total() const { return Columnas * Filas; }

    // Where token `indice` lies, from 0 to Total() - 1.
    Posicion Celda(int indice) const { return {indice % Columnas, indice / Columnas}; }

    // The colour of token `indice`, from 0 to Total() - 1.
    ColorFicha ColorDe(int indice) const;

    // The fraction of all tokens that each colour is: numerator and denominator of the red ones, of the yellow ones, of
    // the green ones. Not simplified.
    std::array<int, 6> Solucion() const { return {Rojas, Total(), Amarillas, Total(), Verdes, Total()}; }
};

} // namespace reglas
