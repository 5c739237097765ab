#include "Numerales.h"

#include "Entero16.h"

#include <algorithm>
#include <cmath>

namespace lenguaje {

namespace {

using std::string_view;

constexpr std::array<string_view, 10> decenas{"diez",    "veinte",  "treinta", "cuarenta", "cincuenta",
                                              "sesenta", "setenta", "ochenta", "noventa",  "cien"};

constexpr std::array<string_view, 10> decenasCompuestas{"dieci",        "veinti",     "treinta y ", "cuarenta y ",
                                                        "cincuenta y ", "sesenta y ", "setenta y ", "ochenta y ",
                                                        "noventa y ",   "ciento "};

// Entry 9 is a group that rounds up to 1000, entry 10 a group of exactly one hundred.
constexpr std::array<string_view, 11> centenas{"ciento ",      "doscientos ",  "trescientos ", "cuatrocientos ",
                                               "quinientos ",  "seiscientos ", "setecientos ", "ochocientos ",
                                               "novecientos ", "mil",          "cien"};

// "Sexto" has its capital, and "dieciseisavo" no accent beside "dieciséis": both are kept on purpose.
constexpr TablasNumerales tablas{
    .Unidades = {"",        "uno",    "dos",       "tres",       "cuatro",    "cinco",      "seis",
                 "siete",   "ocho",   "nueve",     "diez",       "once",      "doce",       "trece",
                 "catorce", "quince", "dieciséis", "diecisiete", "dieciocho", "diecinueve", "veinte"},
    .Decenas = decenas,
    .DecenasCompuestas = decenasCompuestas,
    .Centenas = centenas,
    .Partes = {"",          "entero",       "medio",         "tercio",       "cuarto",
               "quinto",    "Sexto",        "séptimo",       "octavo",       "noveno",
               "décimo",    "onceavo",      "doceavo",       "treceavo",     "catorceavo",
               "quinceavo", "dieciseisavo", "diecisieteavo", "dieciochoavo", "diecinueveavo",
               "veinteavo"},
    .DecenasPartes = decenas,
    .DecenasCompuestasPartes = decenasCompuestas,
    .CentenasPartes = centenas,
};

// Words for the groups of three digits: units, thousands, millions and so on. The blanks are uneven on purpose.
constexpr std::array<string_view, 8> escalas{"",           "mil ", " millones ", "mil ",
                                             " billones ", "mil ", " trillones", "mil "};
constexpr std::array<string_view, 8> escalasPartes{
    "", "milésimo ", " millonésimo ", "milésimo ", " billonésimo ", "milésimo ", " trillones", "mil "};
constexpr std::array<string_view, 8> grupoUno{"un",        "mil ",          "un millón ",  "mil millones ",
                                              "un billón", "mil billones ", "un trillón ", "mil trillones "};

constexpr double diezALa24 = 1e24;

// Groups of three digits, units first.
struct Grupos
{
    std::array<int, 11> valor{};
    std::size_t mayor = 0;
};

Grupos Partir(double x)
{
    Grupos grupos;
    while (x > 0) {
        // Beyond 2^53 the remainder of a double can fall outside 0..1000, where the tables have no words.
        const double grupo = std::clamp(Resto(x, 1000), 0.0, 1000.0);
        grupos.valor.at(grupos.mayor) = numeros::Entero16::Redondeado(grupo).Valor();
        x = Cociente(x, 1000);
        if (x > 0) {
            ++grupos.mayor;
        }
    }
    return grupos;
}

void AgregarGrupo(std::string& texto, int valor, std::size_t g, bool esDenominador)
{
    const TablasNumerales& t = CargarTablasNumerales();
    if (valor == 0) {
        return;
    }
    if (valor == 1 && !esDenominador && g < grupoUno.size()) {
        texto += grupoUno[g];
        return;
    }
    const auto c = static_cast<std::size_t>(valor / 100);
    const auto r = static_cast<std::size_t>(valor % 100);
    if (c > 0) {
        const auto& cientos = esDenominador ? t.CentenasPartes : t.Centenas;
        texto += c == 1 && r == 0 ? cientos[10] : cientos[c - 1];
    }
    const auto& unidades = esDenominador ? t.Partes : t.Unidades;
    if (r < unidades.size()) {
        texto += unidades[r];
    } else if (r % 10 == 0) {
        texto += (esDenominador ? t.DecenasPartes : t.Decenas)[r / 10 - 1];
    } else {
        texto += (esDenominador ? t.DecenasCompuestasPartes : t.DecenasCompuestas)[r / 10 - 1];
        texto += unidades[r % 10];
    }
    if (g < escalas.size()) {
        texto += esDenominador ? escalasPartes[g] : escalas[g];
    }
}

} // namespace

const TablasNumerales& CargarTablasNumerales()
{
    return tablas;
}

std::string NumeroEnLetras(double valor, bool& esDenominador, Variante variante)
{
    const double magnitud = variante == Variante::ConMenos ? std::abs(valor) : valor;
    const bool conAvo = esDenominador && magnitud > 10 && variante != Variante::Entera;
    if (conAvo) {
        esDenominador = false;
    }
    if (!(magnitud < diezALa24)) {
        return "número demasiado grande";
    }
    const Grupos grupos = Partir(magnitud);
    std::string texto;
    texto.reserve(64 * (grupos.mayor + 1)); // one allocation, more than the longest group and the affixes
    if (variante == Variante::ConMenos && valor < 0) {
        texto += "menos ";
    }
    const std::size_t signo = texto.size();
    for (std::size_t g = grupos.mayor + 1; g-- > 0;) {
        AgregarGrupo(texto, grupos.valor.at(g), g, esDenominador);
    }
    if (texto.size() == signo) {
        texto += "cero";
    }
    if (conAvo) {
        texto += "avo";
    }
    return texto;
}

double Cociente(double a, double b)
{
    return std::floor(a / b);
}

double Resto(double a, double b)
{
    return a - Cociente(a, b) * b;
}

} // namespace lenguaje
