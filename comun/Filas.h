// Rows that the tables of the exercise screens have in common.
#pragma once

#include "Design.h"
#include "Marcador.h"

#include <algorithm>
#include <array>
#include <type_traits>

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

// The instruction, of several lines, with which a screen begins.
constexpr ui::ControlDesign Instrucciones(std::string_view name, std::string_view text, std::string_view teclas,
                                          const ui::Place& place)
{
    return {.kind = ui::Kind::TextArea,
            .name = name,
            .text = text,
            .accessibleName = "Instrucciones",
            .keys = teclas,
            .place = place,
            .tab = 0};
}

// The line of verdicts, which are heard.
constexpr ui::ControlDesign Mensajes(std::string_view name, const ui::Place& place, int tab)
{
    return {.name = name,
            .accessibleName = "Mensajes",
            .place = place,
            .tab = tab,
            .speaking = ui::Speaking::Spoken,
            .coloring = ui::Coloring::Selection};
}

// The same row in another type, centred, open to typing, or inside a frame or picture box.
constexpr ui::ControlDesign EnTipo(ui::ControlDesign fila, std::string_view font, double points = 12)
{
    fila.font = font;
    fila.points = points;
    return fila;
}
constexpr ui::ControlDesign Centrada(ui::ControlDesign fila)
{
    fila.alignment = ui::Alignment::Center;
    return fila;
}
constexpr ui::ControlDesign Editable(ui::ControlDesign fila)
{
    fila.typing = ui::Typing::Editable;
    return fila;
}
constexpr ui::ControlDesign Dentro(std::string_view marco, ui::ControlDesign fila)
{
    fila.inside = marco;
    return fila;
}

// `filas`, and behind them what `filasDe` makes of 0 to `cuantas` - 1: arrays of rows.
template <int cuantas, std::size_t n, class FilasDe>
consteval auto ConFilas(const ui::ControlDesign (&filas)[n], FilasDe filasDe)
{
    constexpr std::size_t deCada = std::tuple_size_v<std::invoke_result_t<FilasDe, int>>;
    std::array<ui::ControlDesign, n + cuantas * deCada> todas;
    auto next = std::ranges::copy(filas, todas.begin()).out;
    for (int i = 0; i < cuantas; ++i) {
        next = std::ranges::copy(filasDe(i), next).out;
    }
    return todas;
}

} // namespace comun
