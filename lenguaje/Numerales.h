// Numbers in Spanish words: cardinals ("veintiuno") and names of fractions ("doceavo"). The plural of a fraction's name
// is made by the caller (Lectura.h).
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace lenguaje {

// Three ways of reading, which differ in what they do with negatives and with denominators above ten.
enum class Variante {
    Base,     // a denominator above 10 is the cardinal and "avo"; a negative value is "cero"
    ConMenos, // as Base, but a negative value is "menos " and the words of its absolute value
    Entera,   // a denominator is made of the fraction names whatever its size; a negative value is "cero"
};

// The words, exact to the blank: the blanks are what separates words when the pieces are joined. The first four make
// cardinals, the last four fraction names; only `Partes` differs from its twin, but each reading takes a whole set.
struct TablasNumerales
{
    std::array<std::string_view, 21> Unidades;
    std::array<std::string_view, 10> Decenas;
    std::array<std::string_view, 10> DecenasCompuestas;
    std::array<std::string_view, 11> Centenas;
    std::array<std::string_view, 21> Partes;
    std::array<std::string_view, 10> DecenasPartes;
    std::array<std::string_view, 10> DecenasCompuestasPartes;
    std::array<std::string_view, 11> CentenasPartes;
};

// The tables, the same read-only ones for every screen: nothing has to be filled before a reading.
const TablasNumerales& CargarTablasNumerales();

// `valor` in words, never empty. A true `esDenominador` asks for a fraction's name, and is set to false where the
// number is read as a cardinal with "avo". Fractions are rounded group by group. From 10^24 on there are no words for
// the scale and for NaN none at all: both give "número demasiado grande".
std::string NumeroEnLetras(double valor, bool& esDenominador, Variante variante);

// The largest whole number that is not greater than a / b; `b` is not 0.
double Cociente(double a, double b);

// a - Cociente(a, b) * b, so for a positive `b` never negative.
double Resto(double a, double b);

} // namespace lenguaje
