// A value of the pupil's own, typed into an input box.
#pragma once

#include "Entero16.h"

#include <optional>
#include <string_view>

namespace comun {

// Asks with `pregunta` in a box with `titulo`, which offers `actual`. Nothing where the pupil cancels or leaves the box
// empty, or where the value is below `minimo` or, rounded to a whole number, does not fit 16 bits.
std::optional<numeros::Entero16> PedirValor(std::string_view pregunta, std::string_view titulo,
                                            numeros::Entero16 actual, int minimo);

} // namespace comun
