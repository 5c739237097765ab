// Complete the series: four to seven terms are shown and the pupil supplies the next one, at eight levels.
#pragma once

#include "Ejercicio.h"
#include "Serie.h"

namespace ejercicios {

class FormSeries final : public comun::Ejercicio
{
public:
    FormSeries();

private:
    void Form_Load() override;
    std::string Exercise() const override;
    void Command1_Click();
    void Command2_Click(int Index) override;
    void Text1_Change(int Index);
    void Text2_Change(int Index);
    ui::KeyResult Text1_KeyPress(int Index, int KeyAscii);
    ui::KeyResult Text2_KeyPress(int Index, int KeyAscii);
    void MnuOpcDifLis_Click(int Index);
    void MnuOpcTipLis_Click(int Index);

    void Continuar() override;
    void Borrar() override;
    void VerSolucion() override;
    void NuevaSerie();
    void GenerarSerie(const reglas::Nivel& nivel);
    void MostrarSerie();

    // A term that is shown cannot be edited.
    void Proteger(ui::TextBox& termino, const reglas::Numeros& numeros) const;

    const ui::ControlArray<ui::TextBox> Text1 = All<ui::TextBox>("Text1"); // numerators
    const ui::ControlArray<ui::TextBox> Text2 = All<ui::TextBox>("Text2"); // denominators
    const ui::ControlArray<ui::Line> Line1 = All<ui::Line>("Line1");
    ui::TextBox& Text3 = The<ui::TextBox>("Text3");
    ui::TextBox& tbResultados = The<ui::TextBox>("tbResultados");

    reglas::Serie m_serie;
    int PosicionHueco = 4;
    reglas::Nivel m_nivel;        // the one chosen
    bool SoloSeleccionado = true; // and not the easier levels too
    numeros::Entero16 Ejercicios;
    numeros::Entero16 Errores;
    bool solucionVista = false;
};

} // namespace ejercicios
