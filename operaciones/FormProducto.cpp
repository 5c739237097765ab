#include "FormProducto.h"

namespace operaciones {

namespace {

constexpr auto menus = MenusCon();

} // namespace

FormProducto::FormProducto()
    : FormOperacion({.name = "FormProducto", .caption = "PRODUCTO DE FRACCIONES", .signo = "x", .signoLeido = " por "},
                    menus)
{
}

Fraccion FormProducto::CalcularSolucion() const
{
    return reglas::Multiplicar(LeerOperandos());
}

ui::KeyResult FormProducto::Text1_KeyPress(int Index, int KeyAscii)
{
    const bool hayVeredicto = !Text3.Text().empty();
    Text3.Text("");
    if (Index > 3) {
        return FormOperacion::Text1_KeyPress(Index, KeyAscii);
    }
    return hayVeredicto ? ui::KeyResult::Share : ui::KeyResult::Pass;
}

} // namespace operaciones
