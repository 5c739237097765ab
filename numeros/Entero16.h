// A 16-bit signed integer whose arithmetic is checked. Counters and what is computed of fractions are kept in it:
// leaving the range -32768..32767 throws Desbordamiento, which ends the program (ui/Handlers.h).
#pragma once

#include <cstdint>
#include <exception>
#include <optional>

#include <compare> // not before the others: moc of Qt 6.4 stumbles over it

namespace numeros {

class Desbordamiento final : public std::exception
{
public:
    const char* what() const noexcept override { return "a value left the 16-bit range"; }
};

class Entero16
{
public:
    constexpr Entero16() = default;

    // Throws Desbordamiento where `valor` is out of range.
    constexpr Entero16(int valor) // NOLINT(google-explicit-constructor): literals read like plain integers
        : m_valor(Comprobado(valor))
    {
    }

    // The nearest whole number, halves to the even neighbour. Throws Desbordamiento where that is out of range or
    // `valor` is not a number.
    static Entero16 Redondeado(double valor);

    // The same, or nothing where it would throw.
    static std::optional<Entero16> SiCabe(double valor);

    constexpr int Valor() const { return m_valor; }

    constexpr Entero16& operator+=(Entero16 otro) { return *this = *this + otro; }

    friend constexpr Entero16 operator+(Entero16 a, Entero16 b) { return a.m_valor + b.m_valor; }
    friend constexpr Entero16 operator-(Entero16 a, Entero16 b) { return a.m_valor - b.m_valor; }
    friend constexpr Entero16 operator*(Entero16 a, Entero16 b) { return a.m_valor * b.m_valor; }
    friend constexpr Entero16 operator/(Entero16 a, Entero16 b) { return a.m_valor / b.m_valor; } // `b` is not 0
    friend constexpr auto operator<=>(Entero16 a, Entero16 b) = default;

private:
    static constexpr std::int16_t Comprobado(int valor)
    {
        if (valor < INT16_MIN || valor > INT16_MAX) {
            throw Desbordamiento();
        }
        return static_cast<std::int16_t>(valor);
    }

    std::int16_t m_valor = 0;
};

} // namespace numeros
