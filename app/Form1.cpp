#include "Form1.h"

#include "Application.h"
#include "Dialogs.h"
#include "Entero16.h"
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

#include <memory>

namespace app {

namespace {

using ui::Modality;

template <class Screen>
ui::Form* New()
{
    return new Screen; // NOLINT(cppcoreguidelines-owning-memory): a screen destroys itself when it is closed
}

struct Entrada
{
    std::string_view caption;
    ui::Form* (*open)();
    Modality modality;
};

// A screen is wired here and nowhere else. The button after the last screen ends the program.
constexpr std::array<Entrada, 11> entradas{{
    {"Representación &gráfica", New<ejercicios::FormRepresentacion>, Modality::Modal},
    {"&Expresa con fracciones", New<ejercicios::FormFichas>, Modality::Modal},
    {"&Fracción de una cantidad", New<ejercicios::FormCantidad>, Modality::Modal},
    {"D&escomposición en factores primos", New<ejercicios::FormFactores>, Modality::Modeless},
    {"&Ordenar fracciones", New<ejercicios::FormOrdenar>, Modality::Modeless},
    {"&Conversión al mismo denominador", New<ejercicios::FormConversion>, Modality::Modeless},
    {"&Suma de fracciones", New<operaciones::Form2>, Modality::Modeless},
    {"&Diferencia de fracciones", New<operaciones::FormDiferencia>, Modality::Modeless},
    {"&Producto de fracciones", New<operaciones::FormProducto>, Modality::Modal},
    {"&Cociente de fracciones", New<operaciones::FormCociente>, Modality::Modal},
    {"&Completa la serie", New<ejercicios::FormSeries>, Modality::Modeless},
}};
constexpr int salir = entradas.size();

constexpr auto controles = [] {
    std::array<ui::ControlDesign, entradas.size() + 1> buttons;
    for (int i = 0; i < std::ssize(buttons); ++i) {
        buttons[i] = {.kind = ui::Kind::Button,
                      .name = "Command1",
                      .index = i,
                      .text = i == salir ? "&Salir" : entradas[i].caption,
                      .tab = i,
                      .color = ui::Color::Green,
                      .points = 15};
    }
    return buttons;
}();

constexpr ui::MenuDesign menus[]{{0, "MnuAce", ui::noIndex, "Acerca de..."}};

} // namespace

Form1::Form1()
    : Form({.name = "Form1",
            .caption = "KELVORA",
            .width = 9200,
            .height = 9200,
            .controls = controles,
            .menus = menus,
            .resizing = ui::Resizing::Own})
{
    Command1.OnClick(this, &Form1::Command1_Click);
    The<ui::MenuItem>("MnuAce").OnClick = [this](int) { MnuAce_Click(); };
}

// Two columns, read downwards; everything in whole units of the window's size.
void Form1::Form_Resize()
{
    using numeros::Entero16;
    const int rows = Command1.Count() - Command1.Count() / 2;
    const int unit = Entero16::Redondeado(InnerWidth() / 11.0).Valor();
    const int rowUnit = Entero16::Redondeado(InnerHeight() / (3.0 * rows + 1)).Valor();
    for (int i = 0; i < Command1.Count(); ++i) {
        const int left = i < rows ? unit : 6 * unit;
        Command1[i].Move({left, 3 * rowUnit * (i % rows) + rowUnit, 4 * unit, 2 * rowUnit});
    }
}

void Form1::Command1_Click(int Index)
{
    if (Index == salir) {
        ui::End();
        return;
    }
    QPointer<ui::Form>& screen = m_open[Index];
    if (screen) {
        screen->BringForward();
        return;
    }
    screen = entradas[Index].open();
    screen->Open(entradas[Index].modality);
}

void Form1::MnuAce_Click()
{
    ui::MsgBox("Kelvora: ejercicios de fracciones.\r\n"
               "Autores: el equipo de Kelvora.\r\n"
               "Contacto: el apartado «Ayuda» del manual de Kelvora.\r\n"
               "Versión " KELVORA_VERSION ".");
}

} // namespace app
