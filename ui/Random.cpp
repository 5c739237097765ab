#include "Random.h"

#include <QTime>

#include <chrono>
#include <random>

namespace ui {

namespace {

std::mt19937 generator; // NOLINT(cert-msc51-cpp): seeded by Randomize, whenever a screen loads
std::optional<std::uint32_t> fixedSeed;
std::optional<int> fixedTimeOfDay;

} // namespace

std::uint32_t TimerSeed()
{
    return static_cast<std::uint32_t>(std::chrono::steady_clock::now().time_since_epoch().count());
}

std::uint32_t TimeOfDaySeed()
{
    const QTime now = fixedTimeOfDay ? QTime(0, 0).addSecs(*fixedTimeOfDay) : QTime::currentTime();
    return static_cast<std::uint32_t>((now.hour() + 1) * (now.minute() + 1) * (now.second() + 1));
}

void Randomize(std::uint32_t seed)
{
    generator.seed(fixedSeed.value_or(seed));
}

double Rnd()
{
    // 24 bits, so that the value is exact in a double and never reaches 1 by rounding; the standard distributions
    // differ from one library to the next, and a seed should give the same exercises everywhere.
    return static_cast<double>(generator() >> 8U) / (1U << 24U);
}

int Draw(int count, int from)
{
    return static_cast<int>(count * Rnd()) + from;
}

void FixTimeOfDay(std::optional<int> seconds)
{
    fixedTimeOfDay = seconds;
}

void FixSeed(std::optional<std::uint32_t> seed)
{
    fixedSeed = seed;
}

} // namespace ui
