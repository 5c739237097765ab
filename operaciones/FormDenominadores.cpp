#include "FormDenominadores.h"

namespace operaciones {

namespace {

using enum ui::Checking;

constexpr auto menus = MenusCon(std::array<ui::MenuDesign, 3>{{
    {1, "MnuOpcDen", ui::noIndex, "&Denominador"},
    {2, "MnuOpcDenLis", 0, "El &mismo denominador", Checked},
    {2, "MnuOpcDenLis", 1, "&Distinto denominador ", Unchecked},
}});

} // namespace

FormDenominadores::FormDenominadores(const Operacion& operacion) : FormOperacion(operacion, menus)
{
    OnClick("MnuOpcDenLis", &FormDenominadores::MnuOpcDenLis_Click);
}

void FormDenominadores::MnuOpcDenLis_Click(int Index)
{
    MismoDenominador = Index == 0;
}

} // namespace operaciones
