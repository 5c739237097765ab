#include "FormCociente.h"

namespace operaciones {

namespace {

constexpr auto menus = MenusCon<0>({}, "&Combinaciones de teclas");

} // namespace

FormCociente::FormCociente()
    : FormOperacion({.name = "FormCociente", .caption = "COCIENTE DE FRACCIONES", .signo = "÷"}, menus)
{
}

Fraccion FormCociente::CalcularSolucion() const
{
    return reglas::Dividir(LeerOperandos());
}

void FormCociente::Borrar()
{
    VaciarResultado();
}

void FormCociente::VerSolucion()
{
    EscribirSolucion();
}

std::string_view FormCociente::BlancoInicial() const
{
    return "";
}

} // namespace operaciones
