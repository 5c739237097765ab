// A fraction of a quantity, drawn or given by the pupil.
#pragma once

#include "Fraccion.h"

#include <string>
#include <string_view>

namespace reglas {

struct FraccionDeCantidad
{
    numeros::Entero16 Numerador;
    numeros::Entero16 Denominador = 1; // never 0
    numeros::Entero16 Cantidad;

    // With a denominator from 2 to `limite`, and a quantity that it divides.
    static FraccionDeCantidad Sortear(int limite);

    // Whether the denominator divides the quantity.
    bool EsExacta() const { return Cantidad.Valor() % Denominador.Valor() == 0; }

    // The quantity's share, whole or not. Throws Desbordamiento where quantity times numerator exceeds 16 bits.
    double Resultado() const;

    // The same in the five characters that are shown, with `separador` before the decimals.
    std::string ResultadoEnCifras(std::string_view separador) const;
};

} // namespace reglas
