// Fraction of a quantity: the exercise is read in words, and may be one of the pupil's own.
#pragma once

#include "Entero16.h"
#include "Form.h"

namespace ejercicios {

class FormCantidad final : public ui::Form
{
public:
    FormCantidad();

private:
    void Form_Load() override;
    ui::KeyResult Form_KeyDown(int KeyCode, int Shift) override;
    void Command1_Click();
    void Command2_Click(int Index);
    ui::KeyResult Text6_KeyPress(int KeyAscii);
    void MnuOpcDenLis_Click(int Index);
    void MnuOpcLee_Click();
    void MnuOpcFrac_Click();
    void MnuOpcCan_Click();
    void MnuOpcSal_Click();

    void NuevoEjercicio();
    void MostrarEjercicio();
    void Continuar();
    void Borrar();
    void VerSolucion();
    std::string TextoFraccionCantidad() const;

    // The quantity's share, whole or not. Throws Desbordamiento where quantity times numerator exceeds 16 bits.
    double Resultado() const;

    const ui::ControlArray<ui::TextBox> Text2 = All<ui::TextBox>("Text2");
    ui::TextBox& Text6 = The<ui::TextBox>("Text6");
    ui::TextBox& TbTexto = The<ui::TextBox>("TbTexto");
    ui::TextBox& Text7 = The<ui::TextBox>("Text7");
    ui::TextBox& tbResultados = The<ui::TextBox>("tbResultados");
    const ui::ControlArray<ui::Button> Command2 = All<ui::Button>("Command2");
    const ui::ControlArray<ui::MenuItem> MnuOpcDenLis = All<ui::MenuItem>("MnuOpcDenLis");

    numeros::Entero16 Numerador;
    numeros::Entero16 Denominador; // never 0
    numeros::Entero16 Cantidad;
    numeros::Entero16 Ejercicios;
    numeros::Entero16 Errores;
    bool puntuable = true; // a right answer still counts
    numeros::Entero16 OpcionDenominador;
};

} // namespace ejercicios
