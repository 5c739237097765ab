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

// "Sexto" has its capital, and "dieciseisavo" no accent beside "dieciséis".
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

// Words for the groups of three digits: units, thousands, millions and so on, with uneven blanks.
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

// A word with the room of the longest one: that all are copied whole needs no look at their lengths.
struct Palabra
{
    Palabra() = default;
    constexpr explicit Palabra(string_view inicio, string_view final = "")
        : longitud(static_cast<std::uint8_t>(inicio.size() + final.size()))
    {
        std::ranges::copy(final, std::ranges::copy(inicio, letras.begin()).out); // a longer word does not compile
    }

    std::array<char, 31> letras{};
    std::uint8_t longitud = 0;
};

// A text that grows in place, so that a reading costs the memory of its result alone.
class Letras
{
public:
    void operator+=(const Palabra& palabra)
    {
        std::ranges::copy(palabra.letras, m_letras.begin() + m_longitud);
        m_longitud += palabra.longitud;
    }
    std::size_t Longitud() const { return m_longitud; }
    std::string Texto() const { return {m_letras.data(), m_longitud}; }

private:
    // Three words for each group, the sign, and "avo".
    std::array<char, sizeof(Palabra) * (3 * std::tuple_size_v<decltype(Grupos::valor)> + 2)> m_letras;
    std::size_t m_longitud = 0;
};

// What a group is put together from: mostly three copies and no decision.
struct Piezas
{
    std::array<Palabra, 8> uno;       // the whole group, by its place, where it is 1
    std::array<Palabra, 12> centenas; // by the hundreds; 10 is a group that rounds up to 1000, 11 a hundred and no more
    std::array<Palabra, 100> resto;   // by what is left of the hundreds
    std::array<Palabra, 8> escalas;   // by the place
};

constexpr std::size_t cienJusto = 11;

constexpr Piezas Componer(bool esDenominador)
{
    const auto& unidades = esDenominador ? tablas.Partes : tablas.Unidades;
    const auto& decenasJustas = esDenominador ? tablas.DecenasPartes : tablas.Decenas;
    const auto& decenasYUnidad = esDenominador ? tablas.DecenasCompuestasPartes : tablas.DecenasCompuestas;
    const auto& cientos = esDenominador ? tablas.CentenasPartes : tablas.Centenas;
    Piezas piezas;
    for (std::size_t g = 0; g < escalas.size(); ++g) {
        const string_view escala = esDenominador ? escalasPartes[g] : escalas[g];
        piezas.escalas[g] = Palabra(escala);
        piezas.uno[g] = esDenominador ? Palabra(unidades[1], escala) : Palabra(grupoUno[g]);
    }
    for (std::size_t c = 0; c < cientos.size(); ++c) {
        piezas.centenas[c + 1] = Palabra(cientos[c]);
    }
    for (std::size_t r = 0; r < piezas.resto.size(); ++r) {
        if (r < unidades.size()) {
            piezas.resto[r] = Palabra(unidades[r]);
        } else if (r % 10 == 0) {
            piezas.resto[r] = Palabra(decenasJustas[r / 10 - 1]);
        } else {
            piezas.resto[r] = Palabra(decenasYUnidad[r / 10 - 1], unidades[r % 10]);
        }
    }
    return piezas;
}

constexpr Piezas cardinales = Componer(false);
constexpr Piezas partes = Componer(true);
constexpr Palabra menos("menos ");
constexpr Palabra cero("cero");
constexpr Palabra avo("avo");

void AgregarGrupo(Letras& texto, const Piezas& piezas, int valor, std::size_t g)
{
    if (valor == 0) {
        return;
    }
    if (valor == 1 && g < piezas.uno.size()) {
        texto += piezas.uno[g];
        return;
    }
    texto += piezas.centenas[valor == 100 ? cienJusto : static_cast<std::size_t>(valor / 100)];
    texto += piezas.resto[static_cast<std::size_t>(valor % 100)];
    if (g < piezas.escalas.size()) {
        texto += piezas.escalas[g];
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
    const Piezas& piezas = esDenominador ? partes : cardinales;
    Letras numero;
    if (variante == Variante::ConMenos && valor < 0) {
        numero += menos;
    }
    const std::size_t signo = numero.Longitud();
    for (std::size_t g = grupos.mayor + 1; g-- > 0;) {
        AgregarGrupo(numero, piezas, grupos.valor.at(g), g);
    }
    if (numero.Longitud() == signo) {
        numero += cero;
    }
    if (conAvo) {
        numero += avo;
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
