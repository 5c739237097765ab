#include "Entero16.h"

#include <cmath>

namespace numeros {

Entero16 Entero16::Redondeado(double valor)
{
    const std::optional<Entero16> entero = SiCabe(valor);
    if (!entero) {
        throw Desbordamiento();
    }
    return *entero;
}

std::optional<Entero16> Entero16::SiCabe(double valor)
{
    // The process never leaves the default rounding mode, in which nearbyint takes halves to the even neighbour.
    const double entero = std::nearbyint(valor);
    if (!(entero >= INT16_MIN && entero <= INT16_MAX)) {
        return std::nullopt;
    }
    return Entero16(static_cast<int>(entero));
}

} // namespace numeros
