#include "Lectura.h"

namespace lenguaje {

std::string FraccionEnLetras(double numerador, double denominador, bool singular, Variante variante)
{
    bool esDenominador = false;
    std::string texto = NumeroEnLetras(numerador, esDenominador, variante);
    esDenominador = true;
    texto += ' ';
    texto += NumeroEnLetras(denominador, esDenominador, variante);
    if (!singular) {
        texto += 's';
    }
    return texto;
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
