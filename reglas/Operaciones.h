// The four operations on two fractions: how their exercises are drawn, what they come to, and which answers are right.
#pragma once

#include "Fraccion.h"

#include <array>

namespace reglas {

using Operandos = std::array<numeros::Fraccion, 2>;

// Four numbers from 2 to `limite`, which is 3 or more.
Operandos SortearOperandos(int limite);

// The same with one denominator, the first one, or with two that differ.
Operandos SortearSumandos(int limite, bool mismoDenominador);

// The same again, with the numerators in the order of a difference.
Operandos SortearResta(int limite, bool mismoDenominador);

// A common multiple of two different denominators from 2 to 100: the least one, unless both share a factor 19 or 29.
// Greater denominators get one too, though not always the least.
numeros::Entero16 DenominadorComun(numeros::Entero16 d1, numeros::Entero16 d2);

// The results, not simplified: sum and difference over one denominator, that of the operands or a common one. All of
// these throw Desbordamiento where a number exceeds 16 bits.
numeros::Fraccion Sumar(const Operandos& operandos);
numeros::Fraccion Restar(const Operandos& operandos);
numeros::Fraccion Multiplicar(const Operandos& operandos);
numeros::Fraccion Dividir(const Operandos& operandos);

// Whether a pupil's answer has the value of `solucion`. The cross product alone decides, so that 0/0 has every value.
bool EsEquivalente(double numerador, double denominador, const numeros::Fraccion& solucion);

} // namespace reglas
