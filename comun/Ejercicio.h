// What every exercise screen has: the trio of buttons and the way out. What is checked and how it counts differs, and
// is the screens' own.
#pragma once

#include "Form.h"

namespace comun {

class Ejercicio : public ui::Form
{
protected:
    // Of a screen with menus, `salida` is the name of the entry that closes it.
    explicit Ejercicio(const ui::FormDesign& design, std::string_view salida = "MnuOpcSal");

    // The next exercise, an empty answer, the right answer.
    virtual void Continuar() = 0;
    virtual void Borrar() = 0;
    virtual void VerSolucion() = 0;

    // Does one of the three. A screen adds what all of them bring.
    virtual void Command2_Click(int Index);

    void MnuOpcSal_Click();

    const ui::ControlArray<ui::Button> Command2 = All<ui::Button>("Command2");
};

} // namespace comun
