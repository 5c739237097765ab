// Two fractions of different denominators, to be brought over the product of these, whatever smaller one there is.
#pragma once

#include "Fraccion.h"

#include <array>
#include <string>

namespace reglas {

struct Conversion
{
    numeros::Fraccion primera;
    numeros::Fraccion segunda;

    static Conversion Sortear();

    // What belongs in four boxes: the numerators of the first and the second fraction, and below them the denominators.
    std::array<numeros::Entero16, 4> Inicial() const;
    std::array<std::string, 4> Intermedia() const; // the multiplications: "3x5"
    std::array<numeros::Entero16, 4> Final() const;
};

} // namespace reglas
