// The exercise screens, in the order of the menu: a screen is listed here and nowhere else.
#pragma once

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
#include <memory>
#include <string_view>

namespace app {

struct Pantalla
{
    std::string_view nombre;  // of the window
    std::string_view caption; // of its button
    ui::Modality modality;
    std::string_view primero; // where the focus is when it opens
    std::unique_ptr<ui::Form> (*crear)();
};

inline constexpr auto pantallas = [] {
    using namespace ejercicios;
    using namespace operaciones;
    using enum ui::Modality;
    using ui::Make;
    return std::to_array<Pantalla>({
        {"FormRepresentacion", "Representación &gráfica", Modal, "Text1", Make<FormRepresentacion>},
        {"FormFichas", "&Expresa con fracciones", Modal, "Text1", Make<FormFichas>},
        {"FormCantidad", "&Fracción de una cantidad", Modal, "Text1", Make<FormCantidad>},
        {"FormFactores", "D&escomposición en factores primos", Modeless, "TbInstruc", Make<FormFactores>},
        {"FormOrdenar", "&Ordenar fracciones", Modeless, "Text1", Make<FormOrdenar>},
        {"FormConversion", "&Conversión al mismo denominador", Modeless, "TBInstruc", Make<FormConversion>},
        {"Form2", "&Suma de fracciones", Modeless, "Text1(0)", Make<Form2>},
        {"FormDiferencia", "&Diferencia de fracciones", Modeless, "Text1(0)", Make<FormDiferencia>},
        {"FormProducto", "&Producto de fracciones", Modal, "Text1(0)", Make<FormProducto>},
        {"FormCociente", "&Cociente de fracciones", Modal, "Text1(0)", Make<FormCociente>},
        {"FormSeries", "&Completa la serie", Modeless, "TbInstruc", Make<FormSeries>},
    });
}();

} // namespace app
