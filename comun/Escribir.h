// Writing into boxes. A text for the ear that comes again is made another one: a screen reader would say nothing of a
// box that stays as it is.
#pragma once

#include "ControlArray.h"
#include "TextBox.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace comun {

// Writes `texto` into a box, with one blank behind where the box holds exactly that already.
void EscribirOtraVez(ui::TextBox& caja, std::string_view texto);

// The same with the blank in front.
void EscribirOtraVezDelante(ui::TextBox& caja, std::string_view texto);

// Writes a value into each box.
template <class Value, std::size_t n>
void EscribirTodas(const ui::ControlArray<ui::TextBox>& cajas, const std::array<Value, n>& valores)
{
    for (ui::TextBox& caja : cajas) {
        caja.Text(valores.at(caja.Index()));
    }
}

// How many of the boxes hold their value.
template <class Value, std::size_t n>
int Aciertos(const ui::ControlArray<ui::TextBox>& cajas, const std::array<Value, n>& valores)
{
    return static_cast<int>(std::ranges::count_if(cajas, [&valores](const ui::TextBox& caja) {
        return caja.Number() == numeros::Entero16(valores.at(caja.Index())).Valor();
    }));
}

} // namespace comun
