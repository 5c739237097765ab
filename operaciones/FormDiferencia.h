// Difference of fractions. The larger numerator comes first, but the result may still be negative and is read as such.
// A wrong answer is cleared away.
#pragma once

#include "FormDenominadores.h"

namespace operaciones {

class FormDiferencia final : public FormDenominadores
{
public:
    FormDiferencia();

private:
    Operandos SortearOperandos(int limite) const override;
    Fraccion CalcularSolucion() const override;
    void RespuestaIncorrecta() override;
};

} // namespace operaciones
