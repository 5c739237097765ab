#include "Factores.h"

#include "Primos.h"

#include <algorithm>
#include <cmath>

namespace reglas {

using numeros::Entero16;

namespace {

bool EsFactor(Entero16 divisor)
{
    return divisor >= 2;
}

} // namespace

Entero16 Producto(const Divisores& divisores)
{
    Entero16 producto = 1;
    for (auto divisor = divisores.begin(); divisor != divisores.end() && EsFactor(*divisor); ++divisor) {
        producto = producto * *divisor;
    }
    return producto;
}

void Ordenar(Divisores& divisores)
{
    for (auto* desde = divisores.begin(); desde != divisores.end();) {
        desde = std::find_if(desde, divisores.end(), EsFactor);
        auto* hasta = std::find_if_not(desde, divisores.end(), EsFactor);
        std::sort(desde, hasta);
        desde = hasta;
    }
}

std::string Lista(const Divisores& divisores)
{
    std::string lista;
    for (const Entero16 divisor : divisores) {
        if (EsFactor(divisor)) {
            lista += (lista.empty() ? "" : ", ") + std::to_string(divisor.Valor());
        }
    }
    return lista;
}

std::vector<Division> Descomponer(Entero16 valor)
{
    std::vector<Division> divisiones;
    for (int n = valor.Valor(); n >= 2; n /= divisiones.back().divisor) {
        // What no prime of the table divides is, in 16 bits, a prime itself.
        const auto* primo = std::ranges::find_if(Primos, [n](int p) { return n % p == 0; });
        divisiones.push_back({n, primo == Primos.end() ? n : *primo});
    }
    return divisiones;
}

std::string ListaConAsteriscos(const Divisores& divisores)
{
    std::string lista;
    for (auto divisor = divisores.begin(); divisor != divisores.end() && EsFactor(*divisor); ++divisor) {
        lista += std::to_string(divisor->Valor()) + " * ";
    }
    // The last asterisk goes with one of its two blanks; the other one stays.
    return lista.substr(0, lista.size() - std::min<std::size_t>(lista.size(), 2));
}

std::optional<Entero16> ValorPropio(double numero)
{
    const double valor = std::abs(numero);
    return valor > 0 && valor <= 1000 ? std::optional(Entero16::Redondeado(valor)) : std::nullopt;
}

std::optional<Entero16> ValorSobreVeredicto(double numero)
{
    return numero > 1 && numero < 2000 ? std::optional(Entero16::Redondeado(numero)) : std::nullopt;
}

std::optional<std::string> Objecion(const Divisores& divisores, Entero16 valor)
{
    if (const Entero16 producto = Producto(divisores); producto != valor) {
        // The first parenthesis stays open.
        return "El producto de los factores calculados (" + std::to_string(producto.Valor()) +
               " es distinto del valor inicial (" + std::to_string(valor.Valor()) + ")";
    }
    Divisores calculados = divisores;
    Ordenar(calculados);
    Divisores correctos = divisores; // what is behind the right ones counts where it is a factor
    const std::vector<Division> divisiones = Descomponer(valor);
    std::ranges::transform(divisiones, correctos.begin(), &Division::divisor);
    for (std::size_t i = 0; i < correctos.size(); ++i) {
        if (EsFactor(correctos[i]) && correctos[i] != calculados[i]) {
            return "Los factores primos obtenidos por usted son diferentes a los que corresponden a la cantidad "
                   "utilizada.\r\nValores calculados : " +
                   Lista(calculados) + "\r\nValores correctos: " + Lista(correctos);
        }
    }
    return std::nullopt;
}

std::vector<int> BuscarPrimos(int hasta)
{
    std::vector<int> primos;
    for (int candidato = 2; candidato <= hasta; ++candidato) {
        bool esPrimo = true;
        for (int divisor = 2; divisor <= candidato / 2 && esPrimo; ++divisor) {
            esPrimo = candidato % divisor != 0;
        }
        if (esPrimo) {
            primos.push_back(candidato);
        }
    }
    return primos;
}

} // namespace reglas
