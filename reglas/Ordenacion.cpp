#include "Ordenacion.h"

#include "Azar.h"

#include <algorithm>
#include <string>

namespace reglas {

using numeros::Entero16;
using numeros::Fraccion;

namespace {

// Different numbers from 1 to 10. A number is taken for one that was drawn before where its digits occur in the list of
// those: so no 1 comes after a 10.
std::array<Entero16, Ordenacion::cuantas> SortearDistintos()
{
    std::array<Entero16, Ordenacion::cuantas> distintos;
    std::string lista;
    for (Entero16& numero : distintos) {
        do {
            numero = numeros::Sortear(10, 1);
        } while (lista.find(std::to_string(numero.Valor())) != std::string::npos);
        lista += std::to_string(numero.Valor()) + ";";
    }
    return distintos;
}

} // namespace

Ordenacion Ordenacion::Sortear()
{
    Ordenacion nueva;
    nueva.m_variable = numeros::Cara() ? &Fraccion::numerador : &Fraccion::denominador;
    const Entero16 comun = numeros::Sortear(10, 5);
    const auto distintos = SortearDistintos();
    for (std::size_t i = 0; i < distintos.size(); ++i) {
        nueva.m_fracciones[i] = {comun, comun};
        nueva.m_fracciones[i].*nueva.m_variable = distintos[i];
    }
    if (nueva.EstanOrdenadas()) {
        std::swap(nueva.m_fracciones[0], nueva.m_fracciones[2]);
    }
    return nueva;
}

// Of two fractions of one numerator, that with the larger denominator is the smaller one.
bool Ordenacion::Precede(const Fraccion& una, const Fraccion& otra) const
{
    return m_variable == &Fraccion::numerador ? una.numerador < otra.numerador : una.denominador > otra.denominador;
}

bool Ordenacion::EstanOrdenadas() const
{
    return std::ranges::is_sorted(m_fracciones,
                                  [this](const auto& una, const auto& otra) { return Precede(una, otra); });
}

void Ordenacion::Mover(int posicion)
{
    const auto i = static_cast<std::size_t>(posicion);
    std::swap(m_fracciones.at(i), m_fracciones.at(i - 1));
}

void Ordenacion::Desordenar()
{
    do {
        const auto i = static_cast<std::size_t>(numeros::Sortear(cuantas, 0));
        const auto j = static_cast<std::size_t>(numeros::Sortear(cuantas, 0));
        std::swap(m_fracciones.at(i), m_fracciones.at(j));
    } while (EstanOrdenadas());
}

void Ordenacion::Ordenar()
{
    std::ranges::sort(m_fracciones, [this](const auto& una, const auto& otra) { return Precede(una, otra); });
}

} // namespace reglas
