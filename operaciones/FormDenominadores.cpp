#include "FormDenominadores.h"

#include "DenominadorComun.h"

namespace operaciones {

namespace {

using enum ui::Checking;

constexpr auto menus = Menus(std::array<ui::MenuDesign, 3>{{
    {1, "MnuOpcDen", ui::noIndex, "&Denominador"},
    {2, "MnuOpcDenLis", 0, "El &mismo denominador", Checked},
    {2, "MnuOpcDenLis", 1, "&Distinto denominador ", Unchecked},
}});

} // namespace

FormDenominadores::FormDenominadores(const Operacion& operacion) : FormOperacion(operacion, menus)
{
    MnuOpcDenLis.OnClick(this, &FormDenominadores::MnuOpcDenLis_Click);
}

// The second denominator is drawn even where the first one takes its place, so that a seed gives the same numerators
// either way.
void FormDenominadores::NuevosOperandos(int limite)
{
    FormOperacion::NuevosOperandos(limite);
    if (MismoDenominador) {
        Text1[3].Text(Text1[1].Text());
    } else if (const int segundo = Numero(3).Valor(); Numero(1) == segundo) {
        Text1[3].Text(segundo == 2 ? 3 : segundo - 1);
    }
}

Fraccion FormDenominadores::CalcularSolucion() const
{
    const numeros::Entero16 d1 = Numero(1);
    const numeros::Entero16 d2 = Numero(3);
    if (d1 == d2) {
        return {Operar(Numero(0), Numero(2)), d1};
    }
    const numeros::Entero16 comun = DenominadorComun(d1, d2);
    return {Operar(comun / d1 * Numero(0), comun / d2 * Numero(2)), comun};
}

void FormDenominadores::MnuOpcDenLis_Click(int Index)
{
    MnuOpcDenLis[Index].Check();
    MismoDenominador = Index == 0;
}

} // namespace operaciones
