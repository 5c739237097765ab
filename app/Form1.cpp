#include "Form1.h"

#include "Application.h"
#include "Dialogs.h"
#include "Entero16.h"
#include "Pantallas.h"

namespace app {

namespace {

// The button after the last screen ends the program.
constexpr int salir = pantallas.size();

constexpr auto controles = [] {
    std::array<ui::ControlDesign, pantallas.size() + 1> buttons;
    for (int i = 0; i <= salir; ++i) {
        buttons[i] = {.kind = ui::Kind::Button,
                      .name = "Command1",
                      .index = i,
                      .text = i == salir ? "&Salir" : pantallas[i].caption,
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
            .controls = {controles, ui::Controls::AccessKeys::Shared},
            .menus = menus,
            .resizing = ui::Resizing::Own})
{
    OnClick("Command1", &Form1::Command1_Click);
    OnClick("MnuAce", &Form1::MnuAce_Click);
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
    std::weak_ptr<ui::Form>& open = m_open[Index];
    if (const auto screen = open.lock()) {
        screen->BringForward();
        return;
    }
    const Pantalla& pantalla = pantallas.at(Index);
    open = Open(pantalla.crear(), pantalla.modality, this);
}

void Form1::MnuAce_Click()
{
    ui::MsgBox("Kelvora: ejercicios de fracciones.\r\n"
               "Autores: el equipo de Kelvora.\r\n"
               "Contacto: el apartado «Ayuda» del manual de Kelvora.\r\n"
               "Manual: " KELVORA_MANUAL ".\r\n"
               "Versión " KELVORA_VERSION ".");
}

} // namespace app
