#include "Serie.h"

#include "Azar.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace reglas {

namespace {

using numeros::Cara;
using numeros::Sortear;

// A number from 1 to `mayor`, or its negative, with equal chance.
int ConSigno(int mayor)
{
    const int valor = Sortear(mayor, 1);
    return Cara() ? -valor : valor;
}

Numeros Constante()
{
    Numeros numeros{};
    numeros.fill(Sortear(15, 1));
    return numeros;
}

// Numbers of one step, none below 1.
Numeros Aritmetica()
{
    const int paso = ConSigno(7);
    int termino = paso < 0 ? Sortear(8, 0) - terminos * paso : Sortear(8, 1);
    Numeros numeros{};
    for (int& numero : numeros) {
        numero = termino;
        termino += paso;
    }
    return numeros;
}

// Numbers of a step that itself changes by another step. `margen` times that one keeps a growing run off zero; nothing
// where a number is negative all the same.
std::optional<Numeros> DePasoVariable(int margen)
{
    int paso = ConSigno(7);
    const int cambio = ConSigno(5);
    int termino =
        paso < 0 ? Sortear(8, 0) - terminos * paso + 5 * std::abs(cambio) : Sortear(8, 1) + margen * std::abs(cambio);
    Numeros numeros{};
    for (int& numero : numeros) {
        if (termino < 0) {
            return std::nullopt;
        }
        numero = termino;
        termino += paso;
        paso += cambio;
    }
    return numeros;
}

using Par = std::pair<Numeros, Numeros>;

// The runs A and B of a level, drawn in this order.
std::optional<Par> SortearTerminos(int nivel)
{
    constexpr int conMargen = 4;
    constexpr int sinMargen = 0; // at level 4, where more runs come to nothing
    switch (nivel) {
    case 1: {
        const Numeros constante = Constante();
        return Par(constante, Aritmetica());
    }
    case 2: {
        const Numeros primera = Aritmetica();
        return Par(primera, Aritmetica());
    }
    default: {
        const auto TerminosA = nivel == 3 ? Aritmetica() : DePasoVariable(sinMargen);
        const auto TerminosB = TerminosA ? DePasoVariable(nivel == 3 ? conMargen : sinMargen) : std::nullopt;
        return TerminosB ? std::optional<Par>({*TerminosA, *TerminosB}) : std::nullopt;
    }
    }
}

} // namespace

std::vector<numeros::Fraccion> Serie::Primeros(int cuantos) const
{
    std::vector<numeros::Fraccion> primeros(static_cast<std::size_t>(cuantos));
    std::ranges::generate(primeros, [this, i = 0]() mutable { return Termino(i++); });
    return primeros;
}

int TerminosMostrados(const Nivel& elegido)
{
    return 3 + elegido.nivel;
}

Nivel SortearNivel(const Nivel& elegido)
{
    const int nivel = Sortear(elegido.nivel, 1);
    const bool hayB = nivel < elegido.nivel || elegido.esB;
    return {nivel, hayB && Sortear(2, 1) == 2};
}

std::optional<Serie> SortearSerie(const Nivel& nivel)
{
    const auto par = SortearTerminos(nivel.nivel);
    if (!par) {
        return std::nullopt;
    }
    const auto& [TerminosA, TerminosB] = *par;
    const bool empiezaPorB = Sortear(2, 0) == 1; // the numerators
    Serie serie;
    for (std::size_t i = 0; i < terminos; ++i) {
        const bool deB = empiezaPorB != (nivel.esB && i % 2 == 1);
        serie.NumeradoresSerie[i] = (deB ? TerminosB : TerminosA)[i];
        serie.DenominadoresSerie[i] = (deB ? TerminosA : TerminosB)[i];
    }
    return serie;
}

} // namespace reglas
