// A fraction as an exercise gives it. Nothing is simplified.
#pragma once

#include "Entero16.h"

namespace numeros {

struct Fraccion
{
    Entero16 numerador;
    Entero16 denominador;

    friend constexpr bool operator==(const Fraccion&, const Fraccion&) = default;
};

} // namespace numeros
