#include "Lectura.h"

namespace lenguaje {

std::string EnLetras(double valor, bool esDenominador, Variante variante)
{
    return NumeroEnLetras(valor, esDenominador, variante);
}

std::string EnLetrasSolo(double valor)
{
    return valor == 1 ? "uno" : EnLetras(valor, false, Variante::ConMenos);
}

std::string FraccionEnLetras(double numerador, double denominador, bool singular, Variante variante)
{
    std::string texto = EnLetras(numerador, false, variante);
    texto += ' ';
    texto += EnLetras(denominador, true, variante);
    if (!singular) {
        texto += 's';
    }
    return texto;
}

std::string FraccionEnLetras(int numerador, int denominador)
{
    return FraccionEnLetras(numerador, denominador, numerador == 1, Variante::Base);
}

std::string ConBlancoSiRepite(std::string texto, std::string_view contenido)
{
    if (texto == contenido) {
        texto += ' ';
    }
    return texto;
}

std::string ConBlancoDelanteSiRepite(std::string_view texto, std::string_view contenido)
{
    return std::string(texto == contenido ? " " : "").append(texto);
}

} // namespace lenguaje
