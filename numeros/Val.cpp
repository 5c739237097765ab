#include "Val.h"

#include <cmath>
#include <limits>
#include <locale>
#include <sstream>
#include <string>

namespace numeros {

namespace {

// The characters of the number itself, without the blanks between them.
std::string Cifras(std::string_view texto)
{
    std::string cifras;
    bool conPunto = false;
    for (const char c : texto) {
        if (c == ' ' || c == '\t' || c == '\r' || c == '\n') {
            continue;
        }
        const bool signo = (c == '-' || c == '+') && cifras.empty();
        const bool punto = c == '.' && !conPunto;
        if (!signo && !punto && (c < '0' || c > '9')) {
            break;
        }
        conPunto = conPunto || punto;
        cifras += c;
    }
    return cifras;
}

} // namespace

double Val(std::string_view texto)
{
    std::istringstream flujo(Cifras(texto));
    flujo.imbue(std::locale::classic()); // the desktop's locale may have a comma for the point
    double valor = 0;
    flujo >> valor; // a number out of range comes as the largest double
    return std::abs(valor) < std::numeric_limits<double>::max() ? valor : std::numeric_limits<double>::quiet_NaN();
}

} // namespace numeros
