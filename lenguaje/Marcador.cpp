#include "Marcador.h"

#include "Cifras.h"

namespace lenguaje {

using numeros::Alineado;

std::string Marcador(int ejercicios, int errores)
{
    return "Ejercicios:" + Alineado(ejercicios, 3) + "; Errores:" + Alineado(errores, 3);
}

std::string MarcadorDeSerie(int ejercicios, int errores)
{
    const std::string cifras = std::to_string(errores);
    return "Ejercicios: " + Alineado(ejercicios, 3) + "; Errores: " + Alineado(errores, 2 * cifras.size()) + ".";
}

std::string MarcadorDeFichas(int ejercicios, int errores)
{
    return "Ejercicios: " + std::to_string(ejercicios) + ". Errores: " + std::to_string(errores) + ".";
}

} // namespace lenguaje
