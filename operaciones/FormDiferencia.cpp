#include "FormDiferencia.h"

namespace operaciones {

FormDiferencia::FormDiferencia()
    : FormDenominadores({.name = "FormDiferencia",
                         .caption = "DIFERENCIA DE FRACCIONES",
                         .signo = "-",
                         .modo = {lenguaje::Variante::ConMenos, lenguaje::Singular::UnoConSigno}})
{
}

Operandos FormDiferencia::SortearOperandos(int limite) const
{
    return reglas::SortearResta(limite, ConMismoDenominador());
}

Fraccion FormDiferencia::CalcularSolucion() const
{
    return reglas::Restar(LeerOperandos());
}

void FormDiferencia::RespuestaIncorrecta()
{
    Borrar();
}

} // namespace operaciones
