#include "Ejercicio.h"

#include <array>

namespace comun {

Ejercicio::Ejercicio(const ui::FormDesign& design, std::string_view salida) : Form(design)
{
    OnClick("Command2", &Ejercicio::Command2_Click);
    if (!design.menus.IsEmpty()) {
        OnClick(salida, &Ejercicio::MnuOpcSal_Click);
    }
}

void Ejercicio::Command2_Click(int Index)
{
    constexpr std::array acciones{&Ejercicio::Continuar, &Ejercicio::Borrar, &Ejercicio::VerSolucion};
    (this->*acciones.at(Index))();
}

void Ejercicio::MnuOpcSal_Click()
{
    Close();
}

} // namespace comun
