// The text of the division ladder: rows of a dividend, a bar and a divisor, edited by overtyping. It counts characters
// as the text box does, a line end being CR and LF, and knows nothing of the box.
#pragma once

#include "Factores.h"

#include <string>
#include <string_view>

namespace reglas {

// Columns 1 to 5 of a row hold the dividend, column 6 the bar, columns 7 to 10 the divisor.
inline constexpr std::u16string_view filaVacia = u"     |    ";

class Escalera
{
public:
    // Fifteen empty rows, the caret at the start.
    Escalera();

    // A text as it stands in the box, with the caret (or the start of the selection) after `cursor` characters; a caret
    // beyond the text stands at its end.
    Escalera(std::u16string texto, int cursor);

    const std::u16string& Texto() const { return m_texto; }
    int Cursor() const { return static_cast<int>(m_cursor); }

    // What comes of a key: it has done what it does (at an edge of the text, nothing); it is refused, a bar being in
    // the way, or what it would do not being for the ladder; it is none of the ladder's, but the box's own.
    enum class Efecto { Hecho, Negado, Ajeno };

    // A typed character takes the place of the one under the caret, be it part of a line end; only "=" takes that of a
    // bar. Enter (13) puts a line end there. Backspace (8) turns the character before the caret into a blank and goes
    // there; at the start of the text nothing changes. Escape, and Control with A or C, are none of the ladder's; any
    // other control character, which would change the text in a way of its own, is denied.
    Efecto Pulsar(int caracter);

    // Turns the character under the caret into a blank. At the end of the text nothing changes.
    Efecto Suprimir();

    // The numbers behind the bars, row by row up to the first empty row or the fifteenth one; 0 for the rows that there
    // are not. A row without a bar is read from its start, and what follows the last line feed not at all. Throws
    // Desbordamiento where a number does not fit 16 bits.
    Divisores LeerDivisores() const;

private:
    Efecto Escribir(char16_t caracter);
    Efecto Retroceso();

    std::u16string m_texto;
    std::size_t m_cursor = 0;
};

// The ladder that shows the decomposition of `valor`, each row with its line end. The last row is a 1 without blanks
// behind its bar.
std::u16string EscaleraDe(numeros::Entero16 valor);

} // namespace reglas
