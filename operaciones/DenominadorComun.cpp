#include "DenominadorComun.h"

#include <algorithm>
#include <array>

namespace operaciones {

numeros::Entero16 DenominadorComun(numeros::Entero16 d1, numeros::Entero16 d2)
{
    // The program's own list of trial factors: 19 and 29 are missing and 51 is no prime, all on purpose.
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

} // namespace operaciones
