#include "PedirValor.h"

#include "Dialogs.h"
#include "Val.h"

namespace comun {

using numeros::Entero16;

std::optional<Entero16> PedirValor(std::string_view pregunta, std::string_view titulo, Entero16 actual, int minimo)
{
    const std::string respuesta = ui::InputBox(pregunta, titulo, std::to_string(actual.Valor()));
    const double valor = numeros::Val(respuesta);
    return !respuesta.empty() && valor >= minimo ? Entero16::SiCabe(valor) : std::nullopt;
}

} // namespace comun
