// The twelve windows of the program, for what looks at all of them.
#pragma once

#include "Form1.h"
#include "Form2.h"
#include "FormCantidad.h"
#include "FormCociente.h"
#include "FormConversion.h"
#include "FormDiferencia.h"
#include "FormFactores.h"
#include "FormFichas.h"
#include "FormOrdenar.h"
#include "FormProducto.h"
#include "FormRepresentacion.h"
#include "FormSeries.h"

#include <array>

namespace support {

struct Window
{
    const char* name = nullptr;
    ui::Form* (*make)() = nullptr;
};

template <class Screen>
ui::Form* Make()
{
    return new Screen;
}

inline constexpr std::array<Window, 12> windows{{
    {"Form1", Make<app::Form1>},
    {"FormRepresentacion", Make<ejercicios::FormRepresentacion>},
    {"FormFichas", Make<ejercicios::FormFichas>},
    {"FormCantidad", Make<ejercicios::FormCantidad>},
    {"FormFactores", Make<ejercicios::FormFactores>},
    {"FormOrdenar", Make<ejercicios::FormOrdenar>},
    {"FormConversion", Make<ejercicios::FormConversion>},
    {"Form2", Make<operaciones::Form2>},
    {"FormDiferencia", Make<operaciones::FormDiferencia>},
    {"FormProducto", Make<operaciones::FormProducto>},
    {"FormCociente", Make<operaciones::FormCociente>},
    {"FormSeries", Make<ejercicios::FormSeries>},
}};

} // namespace support
