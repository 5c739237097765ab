// Readings for the ear: a fraction in words, and the blank that makes a repeated text a new one.
#pragma once

#include "Numerales.h"

#include <string>
#include <string_view>

namespace lenguaje {

// `valor` in words, as a denominator or not.
std::string EnLetras(double valor, bool esDenominador, Variante variante);

// `valor` in words where no noun follows: 1 is "uno".
std::string EnLetrasSolo(double valor);

// "tres cuartos", "un medio": numerator and denominator in words, with an "s" behind unless `singular`.
std::string FraccionEnLetras(double numerador, double denominador, bool singular, Variante variante);

// The same of whole numbers as the exercises give them: the plural goes by the numerator.
std::string FraccionEnLetras(int numerador, int denominador);

// `texto`, with one blank behind where the box that is to receive it holds exactly that text already.
std::string ConBlancoSiRepite(std::string texto, std::string_view contenido);

// The same with the blank in front.
std::string ConBlancoDelanteSiRepite(std::string_view texto, std::string_view contenido);

} // namespace lenguaje
