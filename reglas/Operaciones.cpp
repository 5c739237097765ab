#include "Operaciones.h"

#include "Azar.h"

#include <algorithm>
#include <cmath>

namespace reglas {

using numeros::Entero16;
using numeros::Fraccion;

namespace {

// Brings two fractions over one denominator; `operar` makes of their numerators there that of the result.
template <class Operar>
Fraccion SobreComun(const Operandos& operandos, Operar operar)
{
    const auto& [a, b] = operandos;
    if (a.denominador == b.denominador) {
        return {operar(a.numerador, b.numerador), a.denominador};
    }
    const Entero16 comun = DenominadorComun(a.denominador, b.denominador);
    return {operar(comun / a.denominador * a.numerador, comun / b.denominador * b.numerador), comun};
}

} // namespace

Operandos SortearOperandos(int limite)
{
    Operandos operandos;
    for (Fraccion& fraccion : operandos) {
        fraccion.numerador = numeros::Sortear(limite - 1, 2);
        fraccion.denominador = numeros::Sortear(limite - 1, 2);
    }
    return operandos;
}

// The second denominator is drawn even where the first one takes its place, so that a seed gives the same numerators
// either way.
Operandos SortearSumandos(int limite, bool mismoDenominador)
{
    Operandos operandos = SortearOperandos(limite);
    auto& [primero, segundo] = operandos;
    if (mismoDenominador) {
        segundo.denominador = primero.denominador;
    } else if (segundo.denominador == primero.denominador) {
        segundo.denominador = segundo.denominador == 2 ? 3 : segundo.denominador - 1;
    }
    return operandos;
}

// The smaller numerator is lowered even where the two were in order already; of equal ones the first is raised, except
// at the limit.
Operandos SortearResta(int limite, bool mismoDenominador)
{
    Operandos operandos = SortearSumandos(limite, mismoDenominador);
    auto& [primero, segundo] = operandos;
    if (primero.numerador == segundo.numerador) {
        primero.numerador += primero.numerador < limite ? 1 : 0;
        return operandos;
    }
    if (primero.numerador < segundo.numerador) {
        std::swap(primero.numerador, segundo.numerador);
    }
    segundo.numerador = segundo.numerador - 1;
    return operandos;
}

Entero16 DenominadorComun(Entero16 d1, Entero16 d2)
{
    // The program's own list of trial factors: 19 and 29 are missing and 51 is no prime.
    constexpr std::array factores{2, 3, 5, 7, 11, 13, 17, 23, 31, 37, 41, 43, 47, 51, 53, 59, 61, 67, 71, 73};
    int a = d1.Valor();
    int b = d2.Valor();
    int m = 1;
    const auto comun = [&a, &b](int p) { return a % p == 0 && b % p == 0; };
    for (auto p = std::ranges::find_if(factores, comun); p != factores.end();
         p = std::ranges::find_if(factores, comun)) {
        m *= *p;
        a /= *p;
        b /= *p;
    }
    return d1.Valor() * d2.Valor() / m;
}

Fraccion Sumar(const Operandos& operandos)
{
    return SobreComun(operandos, [](Entero16 a, Entero16 b) { return a + b; });
}

Fraccion Restar(const Operandos& operandos)
{
    return SobreComun(operandos, [](Entero16 a, Entero16 b) { return a - b; });
}

Fraccion Multiplicar(const Operandos& operandos)
{
    const auto& [a, b] = operandos;
    return {a.numerador * b.numerador, a.denominador * b.denominador};
}

Fraccion Dividir(const Operandos& operandos)
{
    const auto& [a, b] = operandos;
    return {a.numerador * b.denominador, a.denominador * b.numerador};
}

bool EsEquivalente(double numerador, double denominador, const Fraccion& solucion)
{
    const double cruzado = numerador * solucion.denominador.Valor();
    return std::isfinite(cruzado) && cruzado == solucion.numerador.Valor() * denominador;
}

} // namespace reglas
