#include "Cifras.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace numeros {

std::string EnCifras(double valor, std::size_t caben, std::string_view separador)
{
    std::array<char, 32> cifras; // 15 digits, a sign, a point and an exponent
    const auto [end, error] =
        std::to_chars(cifras.data(), cifras.data() + cifras.size(), valor, std::chars_format::general, 15);
    std::string texto = std::string(cifras.data(), end).substr(0, caben);
    if (const std::size_t punto = texto.find('.'); punto != std::string::npos) {
        texto.replace(punto, 1, separador);
    }
    return texto;
}

std::string Alineado(int numero, std::size_t lugares)
{
    const std::string cifras = std::to_string(numero);
    return std::string(lugares - std::min(lugares, cifras.size()), ' ') + cifras;
}

} // namespace numeros
