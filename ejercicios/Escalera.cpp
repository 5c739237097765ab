#include "Escalera.h"

#include "Primos.h"
#include "Val.h"

#include <algorithm>

namespace ejercicios {

using numeros::Entero16;

namespace {

constexpr std::u16string_view finDeLinea = u"\r\n";
constexpr char16_t barra = u'|';
constexpr char16_t enter = u'\r';

// What Val makes of a part of the ladder. It ends at the first character that is no digit, sign, point or blank, so any
// one stands for those beyond ASCII.
double Numero(std::u16string_view texto)
{
    std::string ascii;
    for (const char16_t c : texto) {
        ascii += c < 128 ? static_cast<char>(c) : '?';
    }
    return numeros::Val(ascii);
}

std::u16string Alineado(int numero)
{
    const std::string cifras = std::to_string(numero);
    return std::u16string(5 - std::min<std::size_t>(5, cifras.size()), u' ') +
           std::u16string(cifras.begin(), cifras.end());
}

} // namespace

Escalera::Escalera()
{
    for (int i = 0; i < filasEscalera; ++i) {
        m_texto.append(filaVacia).append(finDeLinea);
    }
}

Escalera::Escalera(std::u16string texto, int cursor)
    : m_texto(std::move(texto)), m_cursor(std::min(static_cast<std::size_t>(std::max(cursor, 0)), m_texto.size()))
{
}

bool Escalera::Escribir(char16_t caracter)
{
    const bool hay = m_cursor < m_texto.size();
    if (hay && m_texto[m_cursor] == barra && caracter != u'=') {
        return false;
    }
    const std::u16string nuevo = caracter == enter ? std::u16string(finDeLinea) : std::u16string(1, caracter);
    m_texto.replace(m_cursor, hay ? 1 : 0, nuevo);
    m_cursor += nuevo.size();
    return true;
}

bool Escalera::Retroceso()
{
    if (m_cursor == 0) {
        return true;
    }
    if (m_texto[m_cursor - 1] == barra) {
        return false;
    }
    m_texto[--m_cursor] = u' ';
    return true;
}

bool Escalera::Suprimir()
{
    if (m_cursor == m_texto.size()) {
        return true;
    }
    if (m_texto[m_cursor] == barra) {
        return false;
    }
    m_texto[m_cursor] = u' ';
    return true;
}

std::array<Entero16, filasEscalera> Escalera::Divisores() const
{
    std::array<Entero16, filasEscalera> divisores;
    std::u16string_view resto = m_texto;
    for (Entero16& divisor : divisores) {
        const std::size_t salto = resto.find(u'\n');
        if (salto == std::u16string_view::npos) {
            break;
        }
        // A row ends one character before its line feed, whatever that character is.
        const std::u16string_view fila = resto.substr(0, salto == 0 ? 0 : salto - 1);
        if (fila == filaVacia) {
            break;
        }
        const std::size_t posicion = fila.find(barra);
        divisor =
            Entero16::Redondeado(Numero(posicion == std::u16string_view::npos ? fila : fila.substr(posicion + 1)));
        resto.remove_prefix(salto + 1);
    }
    return divisores;
}

std::vector<Division> Descomponer(Entero16 valor)
{
    std::vector<Division> divisiones;
    for (int n = valor.Valor(); n >= 2; n /= divisiones.back().divisor) {
        // What no prime of the table divides is, in 16 bits, a prime itself.
        const auto* primo = std::ranges::find_if(Primos, [n](int p) { return n % p == 0; });
        divisiones.push_back({n, primo == Primos.end() ? n : *primo});
    }
    return divisiones;
}

std::u16string EscaleraDe(Entero16 valor)
{
    std::u16string texto;
    for (const auto& [dividendo, divisor] : Descomponer(valor)) {
        const std::string cifras = std::to_string(divisor);
        texto += Alineado(dividendo) + barra + std::u16string(cifras.begin(), cifras.end());
        texto += std::u16string(4 - std::min<std::size_t>(4, cifras.size()), u' ').append(finDeLinea);
    }
    return texto + Alineado(1) + barra + std::u16string(finDeLinea);
}

} // namespace ejercicios
