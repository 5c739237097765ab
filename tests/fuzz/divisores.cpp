// What is read out of a ladder that may hold any text, and what is made of it.
#include "Escalera.h"
#include "Fuzz.h"

#include <algorithm>
#include <string>

namespace {

std::array<int, reglas::filasEscalera> Sorted(const reglas::Divisores& divisors)
{
    std::array<int, reglas::filasEscalera> numbers{};
    std::ranges::transform(divisors, numbers.begin(), [](numeros::Entero16 number) { return number.Valor(); });
    std::ranges::sort(numbers);
    return numbers;
}

bool IsPrime(numeros::Entero16 number)
{
    for (int d = 2; d * d <= number.Valor(); ++d) {
        if (number.Valor() % d == 0) {
            return false;
        }
    }
    return true;
}

// There is none against the product of primes, and some against any other; behind a gap it depends.
void CheckObjection(const reglas::Divisores& divisors)
{
    const auto isFactor = [](numeros::Entero16 divisor) { return divisor >= 2; };
    const auto gap = std::ranges::find_if_not(divisors, isFactor);
    if (std::find_if(gap, divisors.end(), isFactor) != divisors.end()) {
        return;
    }
    const numeros::Entero16 product = reglas::Producto(divisors);
    EXPECT(reglas::Objecion(divisors, product).has_value() == !std::all_of(divisors.begin(), gap, IsPrime));
    EXPECT(reglas::Objecion(divisors, product == 7 ? 8 : 7).has_value());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Input input(data, size);
    std::u16string text;
    while (!input.IsEmpty()) {
        const std::uint8_t byte = input.Byte();
        text += static_cast<char16_t>(byte < 128 ? byte : 256 * input.Byte() + byte);
    }
    try {
        reglas::Divisores divisors = reglas::Escalera(text, 0).LeerDivisores();
        const auto rows = std::ranges::count(text, u'\n');
        for (std::size_t i = static_cast<std::size_t>(std::min<std::ptrdiff_t>(rows, reglas::filasEscalera));
             i < divisors.size(); ++i) {
            EXPECT(divisors.at(i) == 0);
        }
        const auto before = Sorted(divisors);
        reglas::Ordenar(divisors);
        EXPECT(Sorted(divisors) == before);
        (void)reglas::Lista(divisors);
        CheckObjection(divisors);
        int product = reglas::Producto(divisors).Valor();
        for (const numeros::Entero16 divisor : divisors) {
            if (divisor.Valor() < 2) {
                break;
            }
            EXPECT(product % divisor.Valor() == 0);
            product /= divisor.Valor();
        }
        EXPECT(product == 1);
    } catch (const numeros::Desbordamiento&) { // a number too large, as told
    }
    return 0;
}
