// Random draws. One generator serves the whole program; each screen seeds it when it loads.
#pragma once

#include <cstdint>
#include <optional>

namespace ui {

// A seed from the clock.
std::uint32_t TimerSeed();

// The time of day as a seed: (hour + 1) * (minute + 1) * (second + 1), 1 to 86400.
std::uint32_t TimeOfDaySeed();

// Starts the generator anew. Where FixSeed has set a seed, that one is used instead.
void Randomize(std::uint32_t seed);

// The next value, uniform in [0, 1).
double Rnd();

// A whole number from `from` to `from` + `count` - 1: Int(count * Rnd) + from.
int Draw(int count, int from);

// For tests: the time of day, in seconds from 0 to 86399, that the clock shows from now on, or the real one.
void FixTimeOfDay(std::optional<int> seconds);

// For tests: the seed that every later Randomize uses, or none.
void FixSeed(std::optional<std::uint32_t> seed);

} // namespace ui
