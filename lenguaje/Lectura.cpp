#include "Lectura.h"

#include <cmath>

namespace lenguaje {

namespace {

// `valor` in words, as a denominator or not.
std::string EnLetras(double valor, bool esDenominador, Variante variante)
{
    return NumeroEnLetras(valor, esDenominador, variante);
}

} // namespace

bool EsSingular(double numerador, Singular singular)
{
    switch (singular) {
    case Singular::Uno:
        return numerador == 1;
    case Singular::UnoConSigno:
        return std::abs(numerador) == 1;
    case Singular::HastaUno:
        break;
    }
    return numerador <= 1;
}

std::string EnLetrasSolo(double valor)
{
    return valor == 1 ? "uno" : EnLetras(valor, false, Variante::ConMenos);
}

std::string DenominadorEnLetras(double numerador, double denominador, Modo modo)
{
    std::string texto = EnLetras(denominador, true, modo.variante);
    if (!EsSingular(numerador, modo.singular)) {
        texto += 's';
    }
    return texto;
}

std::string FraccionEnLetras(double numerador, double denominador, Modo modo)
{
    std::string texto = EnLetras(numerador, false, modo.variante);
    texto += ' ';
    texto += DenominadorEnLetras(numerador, denominador, modo);
    return texto;
}

std::string FraccionEnLetras(const numeros::Fraccion& fraccion)
{
    return FraccionEnLetras(fraccion.numerador.Valor(), fraccion.denominador.Valor(), {});
}

std::string FraccionesEnLetras(std::span<const numeros::Fraccion> fracciones)
{
    std::string texto;
    for (const numeros::Fraccion& fraccion : fracciones) {
        texto += (texto.empty() ? "" : ", ") + FraccionEnLetras(fraccion);
    }
    return texto;
}

std::string OperacionEnLetras(const std::array<double, 6>& valores, std::string_view signo, std::string_view igual,
                              Modo modo)
{
    const auto [n1, d1, n2, d2, n3, d3] = valores;
    std::string texto = FraccionEnLetras(n1, d1, modo).append(signo);
    texto.append(FraccionEnLetras(n2, d2, modo)).append(igual);
    if (n3 != 0 || d3 != 0) {
        texto += FraccionEnLetras(n3, d3, modo);
    }
    return texto;
}

std::string FraccionDeCantidadEnLetras(const numeros::Fraccion& fraccion, numeros::Entero16 cantidad)
{
    constexpr Modo modo{Variante::Entera, Singular::HastaUno};
    std::string texto = FraccionEnLetras(fraccion.numerador.Valor(), fraccion.denominador.Valor(), modo);
    texto += fraccion.numerador >= 1 ? "  de " : " de ";
    return texto + EnLetras(cantidad.Valor(), false, Variante::Entera);
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
