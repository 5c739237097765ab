// The controls of the four operations' screens.
#pragma once

#include "Filas.h"

namespace operaciones {

using enum ui::Kind;
using ui::Alignment;
using ui::Typing;

constexpr ui::ControlDesign Caja(int index, std::string_view nombre, int left, int top, int tab, Typing typing)
{
    return {.name = "Text1",
            .index = index,
            .accessibleName = nombre,
            .place = {left, top, 600, 555},
            .tab = tab,
            .typing = typing,
            .alignment = Alignment::Center,
            .points = 15};
}

constexpr ui::ControlDesign Signo(int index, std::string_view text, std::string_view nombre, int left, int tab)
{
    return {.name = "Text2",
            .index = index,
            .text = text,
            .accessibleName = nombre,
            .place = {left, 800, 600, 555},
            .tab = tab,
            .alignment = Alignment::Center,
            .points = 15};
}

constexpr ui::ControlDesign Raya(int index, int left)
{
    return {.kind = Line, .name = "Line1", .index = index, .place = {left, 1060, 600, 30}};
}

constexpr ui::ControlDesign CubiertoAbajo(ui::ControlDesign fila, int twips)
{
    fila.coveredBottom = twips;
    return fila;
}

// The lower buttons cover the foot of "&Hecho" and the head of the verdict box.
inline constexpr ui::ControlDesign controles[]{
    Caja(0, "Numerador de la primera fracción", 500, 500, 0, Typing::Locked),
    Caja(1, "Denominador de la primera fracción", 500, 1100, 1, Typing::Locked),
    Signo(0, "", "Signo de la operación", 1400, 2),
    Caja(2, "Numerador de la segunda fracción", 2455, 500, 3, Typing::Locked),
    Caja(3, "Denominador de la segunda fracción", 2455, 1100, 4, Typing::Locked),
    Signo(1, "=", "Signo igual", 3355, 5),
    Caja(4, "Numerador del resultado", 4210, 500, 6, Typing::Editable),
    Caja(5, "Denominador del resultado", 4210, 1100, 7, Typing::Editable),
    Raya(0, 500),
    Raya(1, 2455),
    Raya(2, 4210),
    CubiertoAbajo(comun::Hecho({1650, 2100, 1500, 495}, 8), 95),
    {.name = "Text3",
     .accessibleName = "Resultado",
     .place = {900, 2800, 3000, 500},
     .tab = 9,
     .speaking = ui::Speaking::Spoken,
     .coloring = ui::Coloring::Selection,
     .alignment = Alignment::Center,
     .coveredTop = 200},
    comun::BotonContinuar({1650, 2500, 1500, 500}, 10),
    comun::BotonBorrar({75, 2500, 1500, 500}, 11),
    comun::BotonVerSolucion({3225, 2500, 1500, 500}, 12),
    {.name = "TbMensajes",
     .accessibleName = "Mensajes",
     .place = {0, 3500, 4800, 495},
     .tab = 13,
     .speaking = ui::Speaking::Spoken},
    comun::LineaMarcador({900, 4500, 3000, 495}, 14, 10.5),
};

} // namespace operaciones
