// The twelve windows of the program, for what looks at all of them.
#pragma once

#include "Form1.h"
#include "Pantallas.h"

#include <QString>

#include <vector>

namespace support {

struct Window
{
    QString name;
    std::unique_ptr<ui::Form> (*make)() = nullptr;
};

// The menu first.
inline const std::vector<Window>& Windows()
{
    static const std::vector<Window> windows = [] {
        std::vector<Window> all{{"Form1", ui::Make<app::Form1>}};
        for (const app::Pantalla& pantalla : app::pantallas) {
            all.push_back({QString::fromLatin1(pantalla.nombre), pantalla.crear});
        }
        return all;
    }();
    return windows;
}

} // namespace support
