// Keys on the ladder, each as a naive editor does it.
#include "Escalera.h"
#include "Fuzz.h"

#include <algorithm>

namespace {

// What a key does to the part before the caret and the part behind it.
struct Naive
{
    std::u16string before;
    std::u16string behind;

    bool Type(char16_t character)
    {
        if (behind.starts_with(u'|') && character != u'=') {
            return false;
        }
        behind.erase(0, 1);
        before += character;
        if (character == u'\r') {
            before += u'\n';
        }
        return true;
    }
    bool Backspace()
    {
        if (before.ends_with(u'|')) {
            return false;
        }
        if (!before.empty()) {
            before.pop_back();
            behind.insert(0, 1, u' ');
        }
        return true;
    }
    bool Delete()
    {
        if (behind.starts_with(u'|')) {
            return false;
        }
        if (!behind.empty()) {
            behind[0] = u' ';
        }
        return true;
    }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr auto hecho = reglas::Escalera::Efecto::Hecho;
    Input keys(data, size);
    reglas::Escalera ladder;
    Naive naive{{}, ladder.Texto()};
    while (!keys.IsEmpty()) {
        switch (const std::uint8_t key = keys.Byte()) {
        case 0: { // the caret goes elsewhere
            const int caret = keys.Byte();
            ladder = reglas::Escalera(ladder.Texto(), caret);
            const std::u16string all = naive.before + naive.behind;
            const std::size_t at = std::min(all.size(), static_cast<std::size_t>(caret));
            naive = {all.substr(0, at), all.substr(at)};
            break;
        }
        case 1:
            EXPECT((ladder.Pulsar(8) == hecho) == naive.Backspace());
            break;
        case 2:
            EXPECT((ladder.Suprimir() == hecho) == naive.Delete());
            break;
        case 8:
            break; // the same as 1
        default: {
            const auto character = static_cast<char16_t>(key < 240 ? key : 256 * keys.Byte() + key);
            const bool isControl = character < ' ' && character != '\r';
            EXPECT((ladder.Pulsar(character) == hecho) == (!isControl && naive.Type(character)));
            break;
        }
        }
        EXPECT(ladder.Texto() == naive.before + naive.behind);
        EXPECT(ladder.Cursor() == static_cast<int>(naive.before.size()));
    }
    try {
        (void)ladder.LeerDivisores();
    } catch (const numeros::Desbordamiento&) { // a number too large, as told
    }
    return 0;
}
