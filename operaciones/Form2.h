// Sum of fractions. A wrong answer stays where it is, and so does the focus.
#pragma once

#include "FormDenominadores.h"

namespace operaciones {

class Form2 final : public FormDenominadores
{
public:
    Form2();

private:
    Operandos SortearOperandos(int limite) const override;
    Fraccion CalcularSolucion() const override;
    void RespuestaIncorrecta() override {}
};

} // namespace operaciones
