// Sum of fractions. A wrong answer stays where it is, and so does the focus.
#pragma once

#include "FormDenominadores.h"

namespace operaciones {

class Form2 final : public FormDenominadores
{
public:
    Form2();

private:
    numeros::Entero16 Operar(numeros::Entero16 primero, numeros::Entero16 segundo) const override;
    void RespuestaIncorrecta() override {}
};

} // namespace operaciones
