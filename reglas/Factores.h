// The prime factors of a number, and those that a pupil has found.
#pragma once

#include "Entero16.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace reglas {

inline constexpr int filasEscalera = 15;

// The divisors of the rows of a ladder, 0 where there is none.
using Divisores = std::array<numeros::Entero16, filasEscalera>;

// The product of the divisors before the first one below 2. Throws Desbordamiento where it does not fit 16 bits.
numeros::Entero16 Producto(const Divisores& divisores);

// Sorts them. What is below 2 stays where it is, and those on either side of it do not mix.
void Ordenar(Divisores& divisores);

// Those above 1, with ", " between them.
std::string Lista(const Divisores& divisores);

// Those before the first one below 2, with " * " between them and a blank behind.
std::string ListaConAsteriscos(const Divisores& divisores);

// A step of the decomposition: dividend and divisor.
struct Division
{
    int dividendo = 0;
    int divisor = 0;
};

// The divisions by the smallest prime factor that lead from `valor` to 1, none for a value below 2.
std::vector<Division> Descomponer(numeros::Entero16 valor);

// The value that a pupil wants to decompose, without its sign; nothing for 0, and beyond 1000.
std::optional<numeros::Entero16> ValorPropio(double numero);

// The value that is written over a verdict; nothing for 1 and below, and from 2000 on.
std::optional<numeros::Entero16> ValorSobreVeredicto(double numero);

// Why these divisors are not the prime factors of `valor`, as the pupil is told; nothing where they are, in whatever
// order. Throws Desbordamiento where their product does not fit 16 bits.
std::optional<std::string> Objecion(const Divisores& divisores, numeros::Entero16 valor);

// The primes from 2 to `hasta`, found by trial division.
std::vector<int> BuscarPrimos(int hasta);

} // namespace reglas
