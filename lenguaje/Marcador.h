// The score line that most screens have.
#pragma once

#include <string>

namespace lenguaje {

// "Ejercicios:  7; Errores: 12": each number right-aligned in three places; a longer one takes the room that it needs.
std::string Marcador(int ejercicios, int errores);

} // namespace lenguaje
