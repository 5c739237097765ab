#include "Form2.h"

namespace operaciones {

Form2::Form2()
    : FormDenominadores(
          {.name = "Form2", .caption = "SUMA DE FRACCIONES", .signo = "+", .incorrecto = "Resultado incorrecto"})
{
}

numeros::Entero16 Form2::Operar(numeros::Entero16 primero, numeros::Entero16 segundo) const
{
    return primero + segundo;
}

} // namespace operaciones
