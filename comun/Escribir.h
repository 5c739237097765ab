// Texts for the ear that may come again: a reader would say nothing of a box that stays as it is.
#pragma once

#include "TextBox.h"

#include <string_view>

namespace comun {

// Writes `texto` into a box, with one blank behind where the box holds exactly that already.
void EscribirOtraVez(ui::TextBox& caja, std::string_view texto);

// The same with the blank in front.
void EscribirOtraVezDelante(ui::TextBox& caja, std::string_view texto);

} // namespace comun
