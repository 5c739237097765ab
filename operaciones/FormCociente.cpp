#include "FormCociente.h"

namespace operaciones {

namespace {

constexpr auto menus = Menus<0>({}, "&Combinaciones de teclas");

} // namespace

FormCociente::FormCociente()
    : FormOperacion({.name = "FormCociente", .caption = "COCIENTE DE FRACCIONES", .signo = "÷"}, menus)
{
}

Fraccion FormCociente::CalcularSolucion() const
{
    return {Numero(0) * Numero(3), Numero(1) * Numero(2)};
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
