// Series of fractions of which the pupil supplies a term: eight terms, made of two runs of numbers.
#pragma once

#include "Fraccion.h"

#include <array>
#include <optional>
#include <vector>

namespace reglas {

inline constexpr int terminos = 8;

using Numeros = std::array<int, terminos>;

struct Serie
{
    Numeros NumeradoresSerie{};
    Numeros DenominadoresSerie{};

    // Term `i`, from 0.
    numeros::Fraccion Termino(int i) const
    {
        const auto posicion = static_cast<std::size_t>(i);
        return {NumeradoresSerie.at(posicion), DenominadoresSerie.at(posicion)};
    }

    // The first `cuantos` terms.
    std::vector<numeros::Fraccion> Primeros(int cuantos) const;
};

// A level: 1 to 4, the harder the greater, and A or B, in which every second term is upside down.
struct Nivel
{
    int nivel = 1;
    bool esB = false;
};

// The level by its place in the list of all: 1A, 1B, 2A and so on, from 0.
constexpr Nivel NivelDe(int lugar)
{
    return {lugar / 2 + 1, lugar % 2 == 1};
}

// How many terms of the series are shown, before the one that is missing.
int TerminosMostrados(const Nivel& elegido);

// The level that is drawn where the easier ones are wanted too: with a lower number, or that of a B, either letter.
Nivel SortearNivel(const Nivel& elegido);

// A new series of that level; none where a number came out negative, which from level 3 on happens.
std::optional<Serie> SortearSerie(const Nivel& nivel);

} // namespace reglas
