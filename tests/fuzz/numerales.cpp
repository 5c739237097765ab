// Numbers in words: whatever the number, they are words, and the same ones again.
#include "Numerales.h"
#include "Fuzz.h"

#include <cmath>
#include <cstring>
#include <string>

namespace {

bool AreWords(const std::string& text)
{
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool letter = (text[i] >= 'a' && text[i] <= 'z') || text[i] == ' ' || text.compare(i, 5, "Sexto") == 0;
        const bool accented = text[i] == '\xC3' && i + 1 < text.size(); // of two bytes, "á" to "ú"
        if (accented) {
            ++i;
        } else if (!letter) {
            return false;
        }
    }
    return !text.empty();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using lenguaje::Variante;
    constexpr std::size_t longest = 600; // characters of any reading, by far
    double value = 0;
    std::memcpy(&value, data, std::min(size, sizeof value));
    for (const Variante variante : {Variante::Base, Variante::ConMenos, Variante::Entera}) {
        for (const bool asked : {false, true}) {
            bool denominator = asked;
            const std::string words = lenguaje::NumeroEnLetras(value, denominator, variante);
            EXPECT(AreWords(words));
            EXPECT(words.size() < longest);
            EXPECT(asked || !denominator);
            bool again = asked;
            EXPECT(lenguaje::NumeroEnLetras(value, again, variante) == words && again == denominator);
        }
    }
    return 0;
}
