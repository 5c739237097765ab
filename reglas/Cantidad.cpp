#include "Cantidad.h"

#include "Azar.h"
#include "Cifras.h"

namespace reglas {

FraccionDeCantidad FraccionDeCantidad::Sortear(int limite)
{
    FraccionDeCantidad nueva;
    nueva.Numerador = numeros::Sortear(10, 1);
    nueva.Denominador = numeros::Sortear(limite - 1, 2);
    nueva.Cantidad = numeros::Sortear(10, 1) * nueva.Denominador;
    return nueva;
}

double FraccionDeCantidad::Resultado() const
{
    return static_cast<double>((Cantidad * Numerador).Valor()) / Denominador.Valor();
}

std::string FraccionDeCantidad::ResultadoEnCifras(std::string_view separador) const
{
    constexpr std::size_t caben = 5;
    return numeros::EnCifras(Resultado(), caben, separador);
}

} // namespace reglas
