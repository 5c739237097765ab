// A place in a grid.
#pragma once

namespace reglas {

struct Posicion
{
    int columna = 0;
    int fila = 0;
};

} // namespace reglas
