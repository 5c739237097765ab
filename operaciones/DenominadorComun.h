// The common denominator that sums and differences of fractions are written over.
#pragma once

#include "Entero16.h"

namespace operaciones {

// A common multiple of two different denominators from 2 to 100: the least one, unless both share a factor 19 or 29.
// Greater denominators get one too, though not always the least, or numeros::Desbordamiento where it exceeds 16 bits.
numeros::Entero16 DenominadorComun(numeros::Entero16 d1, numeros::Entero16 d2);

} // namespace operaciones
