// The common denominator that the sum of fractions is written over.
#pragma once

#include "Entero16.h"

namespace operaciones {

// A common multiple of two positive denominators: the least one, unless both share a factor 19 or 29. Throws
// numeros::Desbordamiento where it does not fit 16 bits.
numeros::Entero16 DenominadorComun(numeros::Entero16 d1, numeros::Entero16 d2);

} // namespace operaciones
