#include "Escalera.h"

#include "Cifras.h"
#include "Val.h"

#include <algorithm>

namespace reglas {

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

// A number at the right, or the left, of so many columns.
std::u16string ALaDerecha(int numero, std::size_t columnas)
{
    const std::string texto = numeros::Alineado(numero, columnas);
    return {texto.begin(), texto.end()};
}
std::u16string ALaIzquierda(int numero, std::size_t columnas)
{
    std::u16string texto = ALaDerecha(numero, 0);
    texto.resize(std::max(columnas, texto.size()), u' ');
    return texto;
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

Escalera::Efecto Escalera::Pulsar(int caracter)
{
    constexpr int controlA = 1;
    constexpr int controlC = 3;
    constexpr int retroceso = 8;
    constexpr int escape = 27;
    switch (caracter) {
    case retroceso:
        return Retroceso();
    case controlA:
    case controlC:
    case escape:
        return Efecto::Ajeno;
    default:
        return caracter < int{u' '} && caracter != int{enter} ? Efecto::Negado
                                                              : Escribir(static_cast<char16_t>(caracter));
    }
}

Escalera::Efecto Escalera::Escribir(char16_t caracter)
{
    const bool hay = m_cursor < m_texto.size();
    if (hay && m_texto[m_cursor] == barra && caracter != u'=') {
        return Efecto::Negado;
    }
    const std::u16string nuevo = caracter == enter ? std::u16string(finDeLinea) : std::u16string(1, caracter);
    m_texto.replace(m_cursor, hay ? 1 : 0, nuevo);
    m_cursor += nuevo.size();
    return Efecto::Hecho;
}

Escalera::Efecto Escalera::Retroceso()
{
    if (m_cursor == 0) {
        return Efecto::Hecho;
    }
    if (m_texto[m_cursor - 1] == barra) {
        return Efecto::Negado;
    }
    m_texto[--m_cursor] = u' ';
    return Efecto::Hecho;
}

Escalera::Efecto Escalera::Suprimir()
{
    if (m_cursor == m_texto.size()) {
        return Efecto::Hecho;
    }
    if (m_texto[m_cursor] == barra) {
        return Efecto::Negado;
    }
    m_texto[m_cursor] = u' ';
    return Efecto::Hecho;
}

Divisores Escalera::LeerDivisores() const
{
    Divisores divisores;
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

std::u16string EscaleraDe(Entero16 valor)
{
    std::u16string texto;
    for (const auto& [dividendo, divisor] : Descomponer(valor)) {
        (texto += ALaDerecha(dividendo, 5) + barra + ALaIzquierda(divisor, 4)).append(finDeLinea);
    }
    return (texto += ALaDerecha(1, 5) + barra).append(finDeLinea);
}

} // namespace reglas
