// Rows that the tables of the exercise screens have in common.
#pragma once

#include "Design.h"
#include "Marcador.h"

namespace comun {

constexpr ui::ControlDesign Hecho(const ui::Place& place, int tab)
{
    return ui::ButtonDesign("Command1", ui::noIndex, "&Hecho", place, tab, ui::Color::Yellow);
}

// The trio of buttons, Command2, whose index is what they do (Ejercicio.h).
constexpr ui::ControlDesign BotonContinuar(const ui::Place& place, int tab)
{
    return ui::ButtonDesign("Command2", 0, "&Continuar", place, tab, ui::Color::Cyan);
}
constexpr ui::ControlDesign BotonBorrar(const ui::Place& place, int tab)
{
    return ui::ButtonDesign("Command2", 1, "&Borrar", place, tab, ui::Color::Green);
}
constexpr ui::ControlDesign BotonVerSolucion(const ui::Place& place, int tab)
{
    return ui::ButtonDesign("Command2", 2, "&Ver solución", place, tab, ui::Color::Red);
}

// The score line of a screen that keeps one, in type of so many points.
constexpr ui::ControlDesign LineaMarcador(const ui::Place& place, int tab, double points)
{
    return {.name = "tbResultados",
            .text = lenguaje::marcadorInicial,
            .accessibleName = "Marcador",
            .place = place,
            .tab = tab,
            .speaking = ui::Speaking::Score,
            .points = points};
}

// The same row in another type.
constexpr ui::ControlDesign EnTipo(ui::ControlDesign fila, std::string_view font)
{
    fila.font = font;
    return fila;
}

} // namespace comun
