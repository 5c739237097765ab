// Seeds from the clock, for the generator of random draws.
#pragma once

#include <cstdint>
#include <optional>

namespace ui {

// A seed from the time since the computer's start.
std::uint32_t TimerSeed();

// The time of day as a seed: (hour + 1) * (minute + 1) * (second + 1), 1 to 86400.
std::uint32_t TimeOfDaySeed();

// For tests: the time of day, in seconds from 0 to 86399, that the clock shows from now on, or the real one.
void FixTimeOfDay(std::optional<int> seconds);

} // namespace ui
