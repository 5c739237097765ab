#include "Numerales.h"

#include "Entero16.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <tuple>

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
    // Whole numbers of this size are exact as doubles and so are their quotients: integers give the same, and faster.
    if (x >= 0 && x < 1e12 && x == std::trunc(x)) {
        auto resto = static_cast<std::uint64_t>(x);
        for (; resto >= 1000; resto /= 1000) {
            grupos.valor[grupos.mayor++] = static_cast<int>(resto % 1000);
        }
        grupos.valor[grupos.mayor] = static_cast<int>(resto);
        return grupos;
    }
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

// A text that grows in place, so that a reading costs the memory of its result alone.
class Letras
{
public:
    void operator+=(string_view texto)
    {
        std::copy(texto.begin(), texto.end(), m_letras.begin() + m_longitud);
        m_longitud += texto.size();
    }
    std::size_t Longitud() const { return m_longitud; }
    std::string Texto() const { return {m_letras.data(), m_longitud}; }

private:
    // Each group takes less than 64, and the affixes together too.
    std::array<char, 64 * (std::tuple_size_v<decltype(Grupos::valor)> + 1)> m_letras;
    std::size_t m_longitud = 0;
};

void AgregarGrupo(Letras& texto, int valor, std::size_t g, bool esDenominador)
{
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
        const auto& cientos = esDenominador ? tablas.CentenasPartes : tablas.Centenas;
        texto += c == 1 && r == 0 ? cientos[10] : cientos[c - 1];
    }
    const auto& unidades = esDenominador ? tablas.Partes : tablas.Unidades;
    if (r < unidades.size()) {
        texto += unidades[r];
    } else if (r % 10 == 0) {
        texto += (esDenominador ? tablas.DecenasPartes : tablas.Decenas)[r / 10 - 1];
    } else {
        texto += (esDenominador ? tablas.DecenasCompuestasPartes : tablas.DecenasCompuestas)[r / 10 - 1];
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
    Letras numero;
    if (variante == Variante::ConMenos && valor < 0) {
        numero += "menos ";
    }
    const std::size_t signo = numero.Longitud();
    for (std::size_t g = grupos.mayor + 1; g-- > 0;) {
        AgregarGrupo(numero, grupos.valor.at(g), g, esDenominador);
    }
    if (numero.Longitud() == signo) {
        numero += "cero";
    }
    if (conAvo) {
        numero += "avo";
    }
    return numero.Texto();
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
