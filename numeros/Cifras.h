// Numbers to text.
#pragma once

#include <string>
#include <string_view>

namespace numeros {

// `valor` in up to 15 significant digits, without zeros behind the last one that counts, and with `separador` before
// the decimals. What does not go into `caben` characters is cut off.
std::string EnCifras(double valor, std::size_t caben, std::string_view separador);

// `numero` in digits, at the right of so many places; a longer one takes the room that it needs.
std::string Alineado(int numero, std::size_t lugares);

} // namespace numeros
