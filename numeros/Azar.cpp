#include "Azar.h"

#include <random>
#include <utility>

namespace numeros {

namespace {

std::mt19937 generador; // NOLINT(cert-msc51-cpp): seeded by Sembrar, whenever a screen loads
std::optional<std::uint32_t> semillaFija;

std::function<int(int cuantos)>& Sustituto()
{
    static std::function<int(int cuantos)> sorteo;
    return sorteo;
}

// The next value, uniform in [0, 1). 24 bits, so that it is exact in a double and never reaches 1 by rounding; the
// standard distributions differ from one library to the next, and a seed should give the same exercises everywhere.
double Siguiente()
{
    return static_cast<double>(generador() >> 8U) / (1U << 24U);
}

} // namespace

void Sembrar(std::uint32_t semilla)
{
    generador.seed(semillaFija.value_or(semilla));
}

int Sortear(int cuantos, int desde)
{
    return desde + (Sustituto() ? Sustituto()(cuantos) : static_cast<int>(cuantos * Siguiente()));
}

bool Cara()
{
    return Sortear(2, 0) == 0;
}

void FijarSemilla(std::optional<std::uint32_t> semilla)
{
    semillaFija = semilla;
}

void SustituirSorteo(std::function<int(int cuantos)> sorteo)
{
    Sustituto() = std::move(sorteo);
}

} // namespace numeros
