// Conversion to a common denominator, which is always the product of the two. Only the last row of boxes is checked.
#pragma once

#include "Conversion.h"
#include "Ejercicio.h"

namespace ejercicios {

class FormConversion final : public comun::Ejercicio
{
public:
    FormConversion();

private:
    void Form_Load() override;
    void Command1_Click();

    void Continuar() override;
    void Borrar() override;
    void VerSolucion() override;
    void NuevaConversion();

    // Two numerators and below them two denominators.
    const ui::ControlArray<ui::TextBox> TBIni = All<ui::TextBox>("TBIni");
    const ui::ControlArray<ui::TextBox> TBMedi = All<ui::TextBox>("TBMedi");
    const ui::ControlArray<ui::TextBox> TBFin = All<ui::TextBox>("TBFin");
    ui::TextBox& TBMensajes = The<ui::TextBox>("TBMensajes");

    reglas::Conversion m_conversion;
    // Every check counts. The score line does not show it.
    numeros::Entero16 Ejercicios;
    numeros::Entero16 Errores;
};

} // namespace ejercicios
