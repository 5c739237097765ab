#include "Escribir.h"

#include "Lectura.h"

namespace comun {

void EscribirOtraVez(ui::TextBox& caja, std::string_view texto)
{
    caja.Text(lenguaje::ConBlancoSiRepite(std::string(texto), caja.Text()));
}

void EscribirOtraVezDelante(ui::TextBox& caja, std::string_view texto)
{
    caja.Text(lenguaje::ConBlancoDelanteSiRepite(texto, caja.Text()));
}

} // namespace comun
