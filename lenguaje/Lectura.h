// Readings for the ear: fractions, operations and fractions of quantities in words, and the blank that makes a repeated
// text a new one.
#pragma once

#include "Fraccion.h"
#include "Numerales.h"

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace lenguaje {

// The numerators with which the name of a fraction stands in the singular, without an "s" behind.
enum class Singular {
    Uno,         // 1 alone: "cero quintos", "menos un medios"
    UnoConSigno, // 1 and -1: "menos un medio"
    HastaUno,    // 1 and below: "cero quinto"
};
bool EsSingular(double numerador, Singular singular);

// How a screen reads its fractions.
struct Modo
{
    Variante variante = Variante::Base;
    Singular singular = Singular::Uno;
};

// `valor` in words where no noun follows: 1 is "uno".
std::string EnLetrasSolo(double valor);

// The name of the parts of which a fraction has `numerador`: "cuartos".
std::string DenominadorEnLetras(double numerador, double denominador, Modo modo);

// "tres cuartos", "un medio".
std::string FraccionEnLetras(double numerador, double denominador, Modo modo);
std::string FraccionEnLetras(const numeros::Fraccion& fraccion);

// Several, with ", " between them.
std::string FraccionesEnLetras(std::span<const numeros::Fraccion> fracciones);

// "tres cuartos+un medio=": an operation of two fractions, with what stands between and behind them, and its result,
// where that is not 0/0. The six numbers are the numerators and denominators in their order.
std::string OperacionEnLetras(const std::array<double, 6>& valores, std::string_view signo, std::string_view igual,
                              Modo modo);

// "tres cuartos  de veinte". The name of the fraction, singular or plural, brings a blank of its own, so that there are
// two before "de"; a fraction of nothing has no such blank.
std::string FraccionDeCantidadEnLetras(const numeros::Fraccion& fraccion, numeros::Entero16 cantidad);

// `texto`, with one blank behind where the box that is to receive it holds exactly that text already.
std::string ConBlancoSiRepite(std::string texto, std::string_view contenido);

// The same with the blank in front.
std::string ConBlancoDelanteSiRepite(std::string_view texto, std::string_view contenido);

} // namespace lenguaje
