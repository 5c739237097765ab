#include "Form2.h"

namespace operaciones {

Form2::Form2()
    : FormDenominadores(
          {.name = "Form2", .caption = "SUMA DE FRACCIONES", .signo = "+", .incorrecto = "Resultado incorrecto"})
{
}

Operandos Form2::SortearOperandos(int limite) const
{
    return reglas::SortearSumandos(limite, ConMismoDenominador());
}

Fraccion Form2::CalcularSolucion() const
{
    return reglas::Sumar(LeerOperandos());
}

} // namespace operaciones
