// Numbers out of texts, against the C library's after everything that it would read otherwise has been taken away.
#include "Val.h"
#include "Fuzz.h"

#include <cmath>
#include <string>
#include <string_view>

namespace {

double Reference(std::string_view text)
{
    std::string number;
    bool point = false;
    for (const char c : text) {
        if (c == ' ' || c == '\t' || c == '\r' || c == '\n') {
            continue;
        }
        const bool sign = (c == '+' || c == '-') && number.empty();
        const bool first = c == '.' && !point;
        if (!sign && !first && (c < '0' || c > '9')) {
            break;
        }
        point = point || first;
        number += c;
    }
    const double value = std::strtod(number.c_str(), nullptr);
    return std::isinf(value) ? std::nan("") : value;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(data, data + size);
    const double value = numeros::Val(text);
    const double expected = Reference(text);
    EXPECT(value == expected || (std::isnan(value) && std::isnan(expected)));
    return 0;
}
