// What the sum and the difference share: one denominator or two, as the pupil chooses.
#pragma once

#include "FormOperacion.h"

namespace operaciones {

class FormDenominadores : public FormOperacion
{
protected:
    explicit FormDenominadores(const Operacion& operacion);

    // What the pupil has chosen for the next exercise.
    bool ConMismoDenominador() const { return MismoDenominador; }

private:
    void MnuOpcDenLis_Click(int Index);

    bool MismoDenominador = true;
};

} // namespace operaciones
