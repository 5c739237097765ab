#include "Marcador.h"

#include "Cifras.h"

namespace lenguaje {

using numeros::Alineado;

std::string Marcador(int ejercicios, int errores)
{
    return "Ejercicios:" + Alineado(ejercicios, 3) + "; Errores:" + Alineado(errores, 3);
}

} // namespace lenguaje
