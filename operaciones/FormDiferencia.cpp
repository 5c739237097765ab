#include "FormDiferencia.h"

#include <algorithm>
#include <cmath>

namespace operaciones {

FormDiferencia::FormDiferencia()
    : FormDenominadores({.name = "FormDiferencia",
                         .caption = "DIFERENCIA DE FRACCIONES",
                         .signo = "-",
                         .variante = lenguaje::Variante::ConMenos})
{
}

// The smaller numerator is lowered even where the two were in order already; of equal ones the first is raised, except
// at the limit. All of it is on purpose.
void FormDiferencia::NuevosOperandos(int limite)
{
    FormDenominadores::NuevosOperandos(limite);
    const int primero = Numero(0).Valor();
    const int segundo = Numero(2).Valor();
    if (primero != segundo) {
        Text1[0].Text(std::max(primero, segundo));
        Text1[2].Text(std::min(primero, segundo) - 1);
    } else if (primero < limite) {
        Text1[0].Text(primero + 1);
    }
}

numeros::Entero16 FormDiferencia::Operar(numeros::Entero16 primero, numeros::Entero16 segundo) const
{
    return primero - segundo;
}

void FormDiferencia::RespuestaIncorrecta()
{
    Borrar();
}

bool FormDiferencia::EsSingular(double numerador) const
{
    return std::abs(numerador) == 1;
}

} // namespace operaciones
