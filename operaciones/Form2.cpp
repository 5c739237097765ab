#include "Form2.h"

#include "DenominadorComun.h"
#include "Random.h"

namespace operaciones {

namespace {

using enum ui::Checking;

constexpr ui::MenuDesign menus[]{
    {0, "MnuOpc", ui::noIndex, "&Opciones"},
    {1, "MnuOpcCan", ui::noIndex, "&Cantidades"},
    {2, "MnuOpcCanLis", 0, "Hasta &10", Checked},
    {2, "MnuOpcCanLis", 1, "Hasta &20", Unchecked},
    {2, "MnuOpcCanLis", 2, "Hasta &100", Unchecked},
    {1, "MnuOpcDen", ui::noIndex, "&Denominador"},
    {2, "MnuOpcDenLis", 0, "El &mismo denominador", Checked},
    {2, "MnuOpcDenLis", 1, "&Distinto denominador ", Unchecked},
    {1, "MnuOpcTec", ui::noIndex, "&Combinaciones de teclas..."},
    {1, "MnuOpcSal", ui::noIndex, "&Salir (Alt - F4)"},
};

} // namespace

Form2::Form2() : FormOperacion({.name = "Form2", .caption = "SUMA DE FRACCIONES", .signo = "+", .menus = menus})
{
    for (ui::MenuItem& item : MnuOpcDenLis) {
        item.OnClick = [this](int Index) { MnuOpcDenLis_Click(Index); };
    }
}

void Form2::NuevosOperandos(int limite)
{
    const auto sortear = [limite] { return ui::Draw(limite - 1, 2); };
    Text1[0].Text(sortear());
    Text1[1].Text(sortear());
    Text1[2].Text(sortear());
    const int cuarto = sortear(); // drawn in both modes, so that a seed gives the same numerators in both
    if (MismoDenominador) {
        Text1[3].Text(Text1[1].Text());
    } else if (Text1[1].Number() != cuarto) {
        Text1[3].Text(cuarto);
    } else {
        Text1[3].Text(cuarto == 2 ? 3 : cuarto - 1);
    }
}

Fraccion Form2::CalcularSolucion() const
{
    const auto numero = [this](int indice) { return numeros::Entero16::Redondeado(Text1[indice].Number()); };
    const numeros::Entero16 d1 = numero(1);
    const numeros::Entero16 d2 = numero(3);
    if (d1 == d2) {
        return {numero(0) + numero(2), d1};
    }
    const numeros::Entero16 comun = DenominadorComun(d1, d2);
    return {comun / d1 * numero(0) + comun / d2 * numero(2), comun};
}

void Form2::MnuOpcDenLis_Click(int Index)
{
    MnuOpcDenLis[Index].Check();
    MismoDenominador = Index == 0;
}

} // namespace operaciones
