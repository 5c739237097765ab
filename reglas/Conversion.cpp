#include "Conversion.h"

#include "Azar.h"

namespace reglas {

using numeros::Entero16;

namespace {

std::string Producto(Entero16 uno, Entero16 otro)
{
    return std::to_string(uno.Valor()) + "x" + std::to_string(otro.Valor());
}

} // namespace

Conversion Conversion::Sortear()
{
    Conversion conversion;
    auto& [primera, segunda] = conversion;
    primera.denominador = numeros::Sortear(6, 2);
    do {
        segunda.denominador = numeros::Sortear(6, 2);
    } while (segunda.denominador == primera.denominador);
    primera.numerador = numeros::Sortear(9, 1);
    segunda.numerador = numeros::Sortear(9, 1);
    return conversion;
}

std::array<Entero16, 4> Conversion::Inicial() const
{
    return {primera.numerador, segunda.numerador, primera.denominador, segunda.denominador};
}

// The second numerator is the second factor, unlike the first one.
std::array<std::string, 4> Conversion::Intermedia() const
{
    const std::string comun = Producto(primera.denominador, segunda.denominador);
    return {Producto(primera.numerador, segunda.denominador), Producto(primera.denominador, segunda.numerador), comun,
            comun};
}

std::array<Entero16, 4> Conversion::Final() const
{
    const Entero16 comun = primera.denominador * segunda.denominador;
    return {primera.numerador * segunda.denominador, segunda.numerador * primera.denominador, comun, comun};
}

} // namespace reglas
