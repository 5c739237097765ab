// Express with fractions: a board of red, yellow and green tokens, and for each colour the fraction of all tokens that
// it is. The counts are also told in words, and letters on the tokens tell the colours.
#pragma once

#include "Ejercicio.h"
#include "Tablero.h"

namespace ejercicios {

class FormFichas final : public comun::Ejercicio
{
public:
    FormFichas();

private:
    void Form_Load() override;
    ui::KeyResult Form_KeyDown(int KeyCode, int Shift) override;
    void Command1_Click();
    void Command2_Click(int Index) override;

    // Makes a new exercise if `nuevo`, and lays out and colours the tokens in any case.
    void DibujarFichas(bool nuevo);

    void PonerFicha(int indice);
    void Continuar() override;
    void Borrar() override;
    void VerSolucion() override;

    ui::Picture& Picture1 = The<ui::Picture>("Picture1");
    const ui::ControlArray<ui::Button> CBFicha = All<ui::Button>("CBFicha");
    const ui::ControlArray<ui::TextBox> TBFrac = All<ui::TextBox>("TBFrac");
    ui::TextBox& TBResultado = The<ui::TextBox>("TBResultado");
    ui::Label& Label1 = The<ui::Label>("Label1");
    ui::Label& Label2 = The<ui::Label>("Label2");

    reglas::Tablero m_tablero;
    numeros::Entero16 Ejercicios;
    numeros::Entero16 Errores;
    bool LetrasVisibles = false;
    bool resuelto = false; // the solution of this board was shown
};

} // namespace ejercicios
