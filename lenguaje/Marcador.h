// The score lines, each in its screens' own form.
#pragma once

#include <string>
#include <string_view>

namespace lenguaje {

// What most screens show before anything has been counted, and what two of them always show.
inline constexpr std::string_view marcadorInicial = "Ejercicios:  0; Errores:  0";
inline constexpr std::string_view marcadorFijo = "Ejercicios: 0; Errores: 0";

// "Ejercicios:  7; Errores: 12": each number right-aligned in three places; a longer one takes the room that it needs.
std::string Marcador(int ejercicios, int errores);

// "Ejercicios:   7; Errores:   12.": the second number has as many blanks before it as digits, and one more.
std::string MarcadorDeSerie(int ejercicios, int errores);

// "Ejercicios: 7. Errores: 12."
std::string MarcadorDeFichas(int ejercicios, int errores);

} // namespace lenguaje
