// Sum of fractions, with one denominator or two.
#pragma once

#include "FormOperacion.h"

namespace operaciones {

class Form2 final : public FormOperacion
{
public:
    Form2();

private:
    void NuevosOperandos(int limite) override;
    Fraccion CalcularSolucion() const override;
    void MnuOpcDenLis_Click(int Index);

    const ui::ControlArray<ui::MenuItem> MnuOpcDenLis = All<ui::MenuItem>("MnuOpcDenLis");

    bool MismoDenominador = true;
};

} // namespace operaciones
