// Four fractions to be put in order, of one numerator or of one denominator.
#pragma once

#include "Fraccion.h"

#include <array>
#include <span>

namespace reglas {

class Ordenacion
{
public:
    static constexpr int cuantas = 4;

    // A new one, not in order.
    static Ordenacion Sortear();

    // Four times 0/0.
    Ordenacion() = default;

    // The fraction at a position from 0, the leftmost.
    const numeros::Fraccion& operator[](int posicion) const
    {
        return m_fracciones.at(static_cast<std::size_t>(posicion));
    }

    std::span<const numeros::Fraccion> Fracciones() const { return m_fracciones; }

    // Whether they grow from left to right.
    bool EstanOrdenadas() const;

    // Exchanges a fraction with the one at its left; `posicion` is 1 or more.
    void Mover(int posicion);

    // Shuffles them until they are not in order.
    void Desordenar();

    void Ordenar();

private:
    using Numero = numeros::Entero16 numeros::Fraccion::*;

    bool Precede(const numeros::Fraccion& una, const numeros::Fraccion& otra) const;

    Numero m_variable = &numeros::Fraccion::numerador; // in which they differ
    std::array<numeros::Fraccion, cuantas> m_fracciones;
};

} // namespace reglas
