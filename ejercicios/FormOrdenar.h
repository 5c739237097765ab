// Order fractions: four of them on buttons, of one numerator or of one denominator; pressing one moves it to the left.
// There is no score.
#pragma once

#include "Ejercicio.h"
#include "Ordenacion.h"

namespace ejercicios {

class FormOrdenar final : public comun::Ejercicio
{
public:
    FormOrdenar();

private:
    void Form_Load() override;
    std::string Exercise() const override;
    void Command1_Click(int Index);
    void CBHecho_Click();
    void Command2_Click(int Index) override;

    void Continuar() override;
    void Borrar() override;
    void VerSolucion() override;
    void NuevaOrdenacion();
    void MostrarFracciones();
    std::string EnPalabras(int posicion) const;
    bool EstanOrdenadas() const;

    const ui::ControlArray<ui::Button> Command1 = All<ui::Button>("Command1");
    ui::TextBox& TBMensajes = The<ui::TextBox>("TBMensajes");

    reglas::Ordenacion m_ordenacion; // from left to right
};

} // namespace ejercicios
