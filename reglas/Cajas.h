// The boxes of an operation in their row: three fractions of two boxes each, numerator and denominator, and a sign
// behind the first and the second fraction.
#pragma once

namespace reglas {

inline constexpr int cajasDeOperacion = 6;

// The fraction that a box belongs to, from 0.
constexpr int FraccionDe(int caja)
{
    return caja / 2;
}

// The numerator, or the denominator as well, of the next and the previous fraction, round.
constexpr int CajaALaDerecha(int caja)
{
    return (caja + 2) % cajasDeOperacion;
}
constexpr int CajaALaIzquierda(int caja)
{
    return (caja + cajasDeOperacion - 2) % cajasDeOperacion;
}

// The numerators on either side of a sign.
constexpr int CajaTrasSigno(int signo)
{
    return 2 * (signo + 1);
}
constexpr int CajaAnteSigno(int signo)
{
    return 2 * signo;
}

} // namespace reglas
