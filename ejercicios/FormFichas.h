// Express with fractions: a board of red, yellow and green tokens, and for each colour the fraction of all tokens that
// it is. The counts are also told in words, and letters on the tokens tell the colours.
#pragma once

#include "Entero16.h"
#include "Form.h"

#include <array>

namespace ejercicios {

class FormFichas final : public ui::Form
{
public:
    FormFichas();

private:
    void Form_Load() override;
    ui::KeyResult Form_KeyDown(int KeyCode, int Shift) override;
    void Command1_Click();
    void Command2_Click(int Index);

    // Makes a new exercise if `nuevo`, and lays out and colours the tokens in any case.
    void DibujarFichas(bool nuevo);

    void NuevasCantidades();
    void PonerFicha(int indice);
    void Continuar();
    void VaciarRespuesta();
    void VerSolucion();

    // How a token looks and what it says.
    struct Aspecto
    {
        ui::Color color;
        std::string_view letra;
        std::string_view nombre;
    };
    const Aspecto& AspectoDe(int indice) const;

    // What belongs in the six boxes.
    std::array<int, 6> Solucion() const;

    ui::Picture& Picture1 = The<ui::Picture>("Picture1");
    const ui::ControlArray<ui::Button> CBFicha = All<ui::Button>("CBFicha");
    const ui::ControlArray<ui::TextBox> TBFrac = All<ui::TextBox>("TBFrac");
    ui::TextBox& TBResultado = The<ui::TextBox>("TBResultado");
    const ui::ControlArray<ui::Button> Command2 = All<ui::Button>("Command2");
    ui::Label& Label1 = The<ui::Label>("Label1");
    ui::Label& Label2 = The<ui::Label>("Label2");

    numeros::Entero16 Rojas;
    numeros::Entero16 Amarillas;
    numeros::Entero16 Verdes;
    numeros::Entero16 Total;
    numeros::Entero16 Columnas;
    numeros::Entero16 Filas;
    numeros::Entero16 Ejercicios;
    numeros::Entero16 Errores;
    bool LetrasVisibles = false;
    bool resuelto = false; // the solution of this board was shown
};

} // namespace ejercicios
