#include "Bell.h"

#include <QApplication>

#include <utility>

namespace ui {

namespace {

std::function<void()>& Replacement()
{
    static std::function<void()> bell;
    return bell;
}

} // namespace

void Beep()
{
    if (Replacement()) {
        Replacement()();
    } else {
        QApplication::beep();
    }
}

void ReplaceBell(std::function<void()> bell)
{
    Replacement() = std::move(bell);
}

} // namespace ui
