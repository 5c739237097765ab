// What the sum and the difference share: one denominator or two, as the pupil chooses, and a solution over a common
// one.
#pragma once

#include "FormOperacion.h"

namespace operaciones {

class FormDenominadores : public FormOperacion
{
protected:
    explicit FormDenominadores(const Operacion& operacion);

    void NuevosOperandos(int limite) override;
    Fraccion CalcularSolucion() const final;

    // The numerator of the result, of the operands' numerators over one denominator.
    virtual numeros::Entero16 Operar(numeros::Entero16 primero, numeros::Entero16 segundo) const = 0;

private:
    void MnuOpcDenLis_Click(int Index);

    const ui::ControlArray<ui::MenuItem> MnuOpcDenLis = All<ui::MenuItem>("MnuOpcDenLis");

    bool MismoDenominador = true;
};

} // namespace operaciones
