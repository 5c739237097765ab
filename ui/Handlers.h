// The way from Qt into a screen's code.
#pragma once

#include "Entero16.h"

namespace ui {

// Says that a number has left its range, and ends the program with a failure as soon as Qt's events are done.
void EndOnOverflow();

// Runs a handler of a screen where Qt calls it. No exception may go on from there: Qt's functions would lose what they
// hold. One about a number out of range ends the program with a message, any other one, which is a mistake of the
// program's, at once.
template <class Handler>
void Run(const Handler& handler) noexcept
{
    try {
        handler();
    } catch (const numeros::Desbordamiento&) {
        EndOnOverflow();
    }
}

} // namespace ui
