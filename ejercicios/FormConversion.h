// Conversion to a common denominator, which is always the product of the two. Only the last row of boxes is checked.
#pragma once

#include "Entero16.h"
#include "Form.h"

#include <array>

namespace ejercicios {

class FormConversion final : public ui::Form
{
public:
    FormConversion();

private:
    void Form_Load() override;
    void Command1_Click();
    void Command2_Click(int Index);

    void NuevaConversion();
    void Borrar();
    void VerSolucion();

    // What belongs in the boxes of the last row.
    std::array<numeros::Entero16, 4> Solucion() const;

    // Two numerators and below them two denominators.
    const ui::ControlArray<ui::TextBox> TBIni = All<ui::TextBox>("TBIni");
    const ui::ControlArray<ui::TextBox> TBMedi = All<ui::TextBox>("TBMedi");
    const ui::ControlArray<ui::TextBox> TBFin = All<ui::TextBox>("TBFin");
    const ui::ControlArray<ui::Button> Command2 = All<ui::Button>("Command2");
    ui::TextBox& TBMensajes = The<ui::TextBox>("TBMensajes");

    numeros::Entero16 PrimerNumerador;
    numeros::Entero16 PrimerDenominador;
    numeros::Entero16 SegundoNumerador;
    numeros::Entero16 SegundoDenominador;
    // Every check counts. The score line does not show it, on purpose.
    numeros::Entero16 Ejercicios;
    numeros::Entero16 Errores;
};

} // namespace ejercicios
