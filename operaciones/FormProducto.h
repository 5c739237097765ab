// Product of fractions. Whatever is typed into a fraction box empties the verdict, and only the boxes of the result
// check on Enter.
#pragma once

#include "FormOperacion.h"

namespace operaciones {

class FormProducto final : public FormOperacion
{
public:
    FormProducto();

private:
    Fraccion CalcularSolucion() const override;
    ui::KeyResult Text1_KeyPress(int Index, int KeyAscii) override;
};

} // namespace operaciones
