// Quotient of fractions. Clearing and showing the solution leave the focus on their button, and the reading of an
// operation is always the same text.
#pragma once

#include "FormOperacion.h"

namespace operaciones {

class FormCociente final : public FormOperacion
{
public:
    FormCociente();

private:
    Fraccion CalcularSolucion() const override;
    void Borrar() override;
    void VerSolucion() override;
    std::string_view BlancoInicial() const override;
};

} // namespace operaciones
