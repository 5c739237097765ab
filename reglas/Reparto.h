// A whole divided into equal parts, some of them coloured: the fraction to represent, and how the parts lie.
#pragma once

#include "Fraccion.h"
#include "Posicion.h"

#include <optional>

namespace reglas {

inline constexpr int maximoPartes = 10;

// A fraction to represent: the denominator from 2 to 10, the numerator from 1 to it.
numeros::Fraccion SortearFraccion();

// What takes the place of a number of parts that cannot be; nothing where it can.
std::optional<int> PartesCorregidas(double partes);

// How so many parts lie, 0 to 10: in strips, or in columns of as many rows, filled downwards.
struct Rejilla
{
    int columnas = 0;
    int filas = 0;
};
Rejilla Repartir(int partes);

// Where part `indice` lies in it, from 0.
constexpr Posicion Celda(const Rejilla& rejilla, int indice)
{
    return {indice / rejilla.filas, indice % rejilla.filas};
}

} // namespace reglas
