// Random draws. One generator serves the whole program; each screen seeds it when it loads.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

namespace numeros {

// Starts the generator anew. Where FijarSemilla has set a seed, that one is used instead.
void Sembrar(std::uint32_t semilla);

// A whole number from `desde` to `desde` + `cuantos` - 1, each with the same chance. `cuantos` is 1 or more.
int Sortear(int cuantos, int desde);

// Heads or tails.
bool Cara();

// For tests: the seed that every later Sembrar uses, or none.
void FijarSemilla(std::optional<std::uint32_t> semilla);

// For tests: has `sorteo` draw in the generator's place a number from 0 to `cuantos` - 1; an empty one gives it back.
void SustituirSorteo(std::function<int(int cuantos)> sorteo);

} // namespace numeros
