// Graphic representation of fractions: the pupil divides a rectangle into equal parts, which are buttons, and colours
// some of them. Whether a part is coloured is told by its caption and colour alone.
#pragma once

#include "Ejercicio.h"
#include "Fraccion.h"

#include <array>
#include <string>

namespace ejercicios {

class FormRepresentacion final : public comun::Ejercicio
{
public:
    FormRepresentacion();

private:
    void Form_Load() override;
    void CbParte_Click(int Index);
    void Command1_Click();
    void Text4_Change(int Index);
    void MnuOpcLee_Click();

    void NuevaFraccion();
    void CrearPartes();

    // Shows the first `n` parts, laid out over the rectangle, and hides the others.
    void DistribuirPartes(const numeros::Entero16& n);

    void PonerParte(int indice, bool roja);
    void PonerPartes(int rojas);
    void Continuar() override;
    void Borrar() override;
    void VerSolucion() override;
    std::array<std::string, 2> EnLetras() const; // numerator and denominator

    const ui::ControlArray<ui::TextBox> Text2 = All<ui::TextBox>("Text2");
    const ui::ControlArray<ui::TextBox> Text3 = All<ui::TextBox>("Text3");
    const ui::ControlArray<ui::TextBox> Text4 = All<ui::TextBox>("Text4");
    ui::Picture& Picture1 = The<ui::Picture>("Picture1");
    const ui::ControlArray<ui::Button> CbParte = All<ui::Button>("CbParte");
    ui::TextBox& Text5 = The<ui::TextBox>("Text5");
    ui::TextBox& tbResultados = The<ui::TextBox>("tbResultados");

    numeros::Fraccion m_fraccion;
    // The parts that clicks have turned red since the rectangle was divided. "Borrar", "Continuar" and "Ver solución"
    // leave it alone, so that it may come apart from what is seen.
    numeros::Entero16 PartesColoreadas;
    numeros::Entero16 Ejercicios;
    numeros::Entero16 Errores;
    bool puntuable = true; // the exercise still changes the score
};

} // namespace ejercicios
