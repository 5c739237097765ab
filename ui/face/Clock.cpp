#include "Clock.h"

#include <QTime>

#include <chrono>

namespace ui {

namespace {

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

void FixTimeOfDay(std::optional<int> seconds)
{
    fixedTimeOfDay = seconds;
}

} // namespace ui
