// Complete the series: four to seven terms are shown and the pupil supplies the next one, at eight levels.
#pragma once

#include "Entero16.h"
#include "Form.h"

#include <array>

namespace ejercicios {

using Serie = std::array<numeros::Entero16, 8>;

class FormSeries final : public ui::Form
{
public:
    FormSeries();

private:
    void Form_Load() override;
    std::string Exercise() const override;
    void Command1_Click();
    void Command2_Click(int Index);
    void Text1_Change(int Index);
    void Text2_Change(int Index);
    ui::KeyResult Text1_KeyPress(int Index, int KeyAscii);
    ui::KeyResult Text2_KeyPress(int Index, int KeyAscii);
    void MnuOpcDifLis_Click(int Index);
    void MnuOpcTipLis_Click(int Index);
    void MnuOpcSal_Click();

    void NuevaSerie();
    void GenerarSerie(int nivel, int subnivel);
    void MostrarSerie(int subnivel);
    std::string EnPalabras(int termino) const;
    void Continuar();
    void Borrar();
    void VerSolucion();

    // A term that is shown cannot be edited.
    void Proteger(ui::TextBox& termino, const Serie& serie) const;

    const ui::ControlArray<ui::TextBox> Text1 = All<ui::TextBox>("Text1"); // numerators
    const ui::ControlArray<ui::TextBox> Text2 = All<ui::TextBox>("Text2"); // denominators
    const ui::ControlArray<ui::Line> Line1 = All<ui::Line>("Line1");
    ui::TextBox& Text3 = The<ui::TextBox>("Text3");
    const ui::ControlArray<ui::Button> Command2 = All<ui::Button>("Command2");
    ui::TextBox& tbResultados = The<ui::TextBox>("tbResultados");
    const ui::ControlArray<ui::MenuItem> MnuOpcDifLis = All<ui::MenuItem>("MnuOpcDifLis");
    const ui::ControlArray<ui::MenuItem> MnuOpcTipLis = All<ui::MenuItem>("MnuOpcTipLis");

    Serie TerminosA;
    Serie TerminosB;
    Serie NumeradoresSerie;
    Serie DenominadoresSerie;
    numeros::Entero16 PosicionHueco = 4;
    numeros::Entero16 CodigoDificultad = 11; // level 1 to 4 and 1 for A or 2 for B
    bool SoloSeleccionado = true;            // and not the easier levels too
    numeros::Entero16 Ejercicios;
    numeros::Entero16 Errores;
    bool solucionVista = false;
};

} // namespace ejercicios
