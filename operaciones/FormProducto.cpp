#include "FormProducto.h"

namespace operaciones {

namespace {

constexpr auto menus = Menus();

} // namespace

FormProducto::FormProducto()
    : FormOperacion({.name = "FormProducto", .caption = "PRODUCTO DE FRACCIONES", .signo = "x", .signoLeido = " por "},
                    menus)
{
}

Fraccion FormProducto::CalcularSolucion() const
{
    return {Numero(0) * Numero(2), Numero(1) * Numero(3)};
}

ui::KeyResult FormProducto::Text1_KeyPress(int Index, int KeyAscii)
{
    Text3.Text("");
    return Index > 3 ? FormOperacion::Text1_KeyPress(Index, KeyAscii) : ui::KeyResult::Pass;
}

} // namespace operaciones
