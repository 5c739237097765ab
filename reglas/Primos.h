// The primes below 1000.
#pragma once

#include <array>

namespace reglas {

inline constexpr std::array<int, 168> Primos = [] {
    std::array<int, 168> primos{};
    auto* next = primos.begin();
    for (int candidato = 2; next != primos.end(); ++candidato) {
        bool esPrimo = true;
        for (const auto* primo = primos.begin(); primo != next; ++primo) {
            esPrimo = esPrimo && candidato % *primo != 0;
        }
        if (esPrimo) {
            *next++ = candidato;
        }
    }
    return primos;
}();
static_assert(Primos.back() == 997);

} // namespace reglas
