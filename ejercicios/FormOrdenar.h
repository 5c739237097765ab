// Order fractions: four of them on buttons, of one numerator or of one denominator; pressing one moves it to the left.
// There is no score.
#pragma once

#include "Entero16.h"
#include "Form.h"

#include <array>

namespace ejercicios {

class FormOrdenar final : public ui::Form
{
public:
    FormOrdenar();

private:
    using Cuatro = std::array<numeros::Entero16, 4>;

    void Form_Load() override;
    std::string Exercise() const override;
    void Command1_Click(int Index);
    void CBHecho_Click();
    void Command2_Click(int Index);

    void NuevaOrdenacion();
    void MostrarFracciones();
    std::string EnPalabras(int posicion) const;
    bool EstanOrdenadas() const;
    void Borrar();
    void VerSolucion();

    // The numbers in which the four fractions differ.
    Cuatro& Variables() { return MismoDenominador ? Numeradores : Denominadores; }

    const ui::ControlArray<ui::Button> Command1 = All<ui::Button>("Command1");
    const ui::ControlArray<ui::Button> Command2 = All<ui::Button>("Command2");
    ui::TextBox& TBMensajes = The<ui::TextBox>("TBMensajes");

    bool MismoDenominador = true; // or else the same numerator
    Cuatro Numeradores;           // from left to right
    Cuatro Denominadores;
};

} // namespace ejercicios
