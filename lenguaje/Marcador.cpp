#include "Marcador.h"

#include <algorithm>

namespace lenguaje {

namespace {

std::string Alineado(int numero)
{
    const std::string cifras = std::to_string(numero);
    return std::string(3 - std::min<std::size_t>(3, cifras.size()), ' ') + cifras;
}

} // namespace

std::string Marcador(int ejercicios, int errores)
{
    return "Ejercicios:" + Alineado(ejercicios) + "; Errores:" + Alineado(errores);
}

} // namespace lenguaje
