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
    void NuevosOperandos(int limite) override;
    numeros::Entero16 Operar(numeros::Entero16 primero, numeros::Entero16 segundo) const override;
    void RespuestaIncorrecta() override;
    bool EsSingular(double numerador) const override;
};

} // namespace operaciones
