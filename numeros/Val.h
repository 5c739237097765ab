// Numbers out of texts, as lenient as pupils are careless.
#pragma once

#include <string_view>

namespace numeros {

// The decimal number that `texto` begins with: an optional sign, digits and "." as the only decimal separator; blanks
// (space, tab, line ends) are skipped before and inside it. No exponents, no hexadecimal. A text that does not begin
// with a number is 0; a number beyond the range of a double is NaN, which equals nothing.
double Val(std::string_view texto);

} // namespace numeros
