#include "Reparto.h"

#include "Azar.h"

#include <algorithm>

namespace reglas {

namespace {

// Strips for 1, 2, 3, 5 and 7 parts, else two columns, and three for 9.
constexpr int Columnas(int partes)
{
    switch (partes) {
    case 4:
    case 6:
    case 8:
    case 10:
        return 2;
    case 9:
        return 3;
    default:
        return 1;
    }
}

} // namespace

numeros::Fraccion SortearFraccion()
{
    const int a = numeros::Sortear(10, 1);
    const int b = numeros::Sortear(9, 2);
    return {std::min(a, b), std::max(a, b)};
}

std::optional<int> PartesCorregidas(double partes)
{
    if (partes < 0) {
        return 1;
    }
    if (!(partes <= maximoPartes)) { // beyond all measure a number is not even greater
        return maximoPartes;
    }
    return std::nullopt;
}

Rejilla Repartir(int partes)
{
    const int columnas = Columnas(partes);
    return {columnas, partes / columnas};
}

} // namespace reglas
