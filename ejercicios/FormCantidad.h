// Fraction of a quantity: the exercise is read in words, and may be one of the pupil's own.
#pragma once

#include "Cantidad.h"
#include "Ejercicio.h"

namespace ejercicios {

class FormCantidad final : public comun::Ejercicio
{
public:
    FormCantidad();

private:
    void Form_Load() override;
    ui::KeyResult Form_KeyDown(int KeyCode, int Shift) override;
    void Command1_Click();
    ui::KeyResult Text6_KeyPress(int KeyAscii);
    void MnuOpcDenLis_Click(int Index);
    void MnuOpcLee_Click();
    void MnuOpcFrac_Click();
    void MnuOpcCan_Click();

    void Continuar() override;
    void Borrar() override;
    void VerSolucion() override;
    void NuevoEjercicio();
    void Proponer(const reglas::FraccionDeCantidad& ejercicio);
    std::string TextoFraccionCantidad() const;

    const ui::ControlArray<ui::TextBox> Text2 = All<ui::TextBox>("Text2");
    ui::TextBox& Text6 = The<ui::TextBox>("Text6");
    ui::TextBox& TbTexto = The<ui::TextBox>("TbTexto");
    ui::TextBox& Text7 = The<ui::TextBox>("Text7");
    ui::TextBox& tbResultados = The<ui::TextBox>("tbResultados");

    reglas::FraccionDeCantidad m_ejercicio;
    numeros::Entero16 Ejercicios;
    numeros::Entero16 Errores;
    bool puntuable = true; // a right answer still counts
    int OpcionDenominador = 0;
};

} // namespace ejercicios
