// What the sum and the difference share: one denominator or two, as the pupil chooses.
#pragma once

#include "FormOperacion.h"

namespace operaciones {

class FormDenominadores : public FormOperacion
{
protected:
    explicit FormDenominadores(const Operacion& operacion);

    bool MismoDenominador = true;

private:
    void MnuOpcDenLis_Click(int Index);
};

} // namespace operaciones
