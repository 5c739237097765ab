#include "FormCantidad.h"

#include "Cifras.h"
#include "Dialogs.h"
#include "Keys.h"
#include "Lectura.h"
#include "Locale.h"
#include "Marcador.h"
#include "PedirValor.h"
#include "Random.h"

#include <array>

namespace ejercicios {

namespace {

using enum ui::Kind;
using lenguaje::Variante;
using numeros::Entero16;
using ui::Alignment;
using ui::Checking;
using ui::Color;
using ui::Coloring;
using ui::KeyResult;
using ui::Speaking;
using ui::Typing;

constexpr ui::ControlDesign Numero(int index, std::string_view says, const ui::Place& place, int tab)
{
    return {.name = "Text2",
            .index = index,
            .text = "10",
            .says = says,
            .place = place,
            .tab = tab,
            .alignment = Alignment::Center,
            .points = 15};
}

constexpr ui::ControlDesign controles[]{
    {.name = "Text1",
     .text = "CALCULA",
     .says = "Instrucciones",
     .keys = "F4 dice el marcador.",
     .place = {1000, 100, 3000, 500},
     .tab = 0,
     .alignment = Alignment::Center},
    Numero(0, "Numerador", {400, 900, 600, 500}, 1),
    Numero(1, "Denominador", {400, 1430, 600, 525}, 2),
    {.kind = Line, .name = "Line1", .place = {400, 1410, 600, 30}}, // in front of the box's edge
    {.name = "Text3",
     .text = "de",
     .says = "Palabra entre la fracción y la cantidad",
     .place = {1300, 1165, 600, 495},
     .tab = 3,
     .alignment = Alignment::Center,
     .points = 15},
    Numero(2, "Cantidad", {2200, 1165, 600, 525}, 4),
    {.name = "Text5",
     .text = "=",
     .says = "Signo igual",
     .place = {3100, 1165, 600, 525},
     .tab = 5,
     .alignment = Alignment::Center,
     .points = 15},
    {.name = "Text6",
     .says = "Resultado",
     .place = {4000, 1165, 1100, 525},
     .tab = 6,
     .typing = Typing::Editable,
     .alignment = Alignment::Center,
     .points = 15},
    {.name = "TbTexto",
     .says = "Ejercicio en palabras",
     .place = {500, 2500, 4000, 400},
     .tab = 7,
     .speaking = Speaking::Spoken,
     .coloring = Coloring::Selection},
    ui::ButtonDesign("Command1", ui::noIndex, "&Hecho", {1750, 3200, 1500, 495}, 8, Color::Yellow),
    {.name = "Text7",
     .says = "Mensajes",
     .place = {1500, 3900, 2000, 495},
     .tab = 9,
     .speaking = Speaking::Spoken,
     .coloring = Coloring::Selection},
    ui::ButtonDesign("Command2", 0, "&Continuar", {1750, 4600, 1500, 500}, 10, Color::Cyan),
    ui::ButtonDesign("Command2", 1, "&Borrar", {125, 4600, 1500, 500}, 11, Color::Green),
    ui::ButtonDesign("Command2", 2, "&Ver solución", {3375, 4600, 1500, 500}, 12, Color::Red),
    {.name = "tbResultados",
     .text = "Ejercicios:  0; Errores:  0",
     .says = "Marcador",
     .place = {1000, 7000, 3000, 495},
     .tab = 13,
     .speaking = Speaking::Score,
     .points = 10.5},
};

constexpr ui::MenuDesign menus[]{
    {0, "MnuOpc", ui::noIndex, "&Opciones"},
    {1, "MnuOpcDen", ui::noIndex, "Denominador"},
    {2, "MnuOpcDenLis", 0, "&Hasta 10", Checking::Checked},
    {2, "MnuOpcDenLis", 1, "&Hasta 20", Checking::Unchecked},
    {1, "MnuOpcLee", ui::noIndex, "&Leer fracción", Checking::None, 1},
    {1, "MnuOpcFrac", ui::noIndex, "Introducir &fracción", Checking::None, 2},
    {1, "MnuOpcCan", ui::noIndex, "Introducir cantidad", Checking::None, 3},
    {1, "MnuOpcSal", ui::noIndex, "&Salir Alt-F4"},
};

std::string EnLetras(Entero16 valor, bool esDenominador)
{
    return lenguaje::EnLetras(valor.Valor(), esDenominador, Variante::Entera);
}

// Whether the quantity can be divided without a remainder, or the pupil wants to go on all the same.
bool ConfirmarDivision(Entero16 cantidad, Entero16 denominador, std::string_view titulo)
{
    return cantidad.Valor() % denominador.Valor() == 0 ||
           ui::MsgBoxYesNo("La división de la cantidad entre el denominador no es exacta ¿desea continuar?", titulo) ==
               ui::Answer::Yes;
}

} // namespace

FormCantidad::FormCantidad()
    : Form({.name = "FormCantidad",
            .caption = "Fracción de una cantidad",
            .width = 5205,
            .height = 7695,
            .controls = controles,
            .menus = menus})
{
    Text6.OnKeyPress = [this](int, int KeyAscii) { return Text6_KeyPress(KeyAscii); };
    The<ui::Button>("Command1").OnClick = [this](int) { Command1_Click(); };
    Command2.OnClick(this, &FormCantidad::Command2_Click);
    MnuOpcDenLis.OnClick(this, &FormCantidad::MnuOpcDenLis_Click);
    The<ui::MenuItem>("MnuOpcLee").OnClick = [this](int) { MnuOpcLee_Click(); };
    The<ui::MenuItem>("MnuOpcFrac").OnClick = [this](int) { MnuOpcFrac_Click(); };
    The<ui::MenuItem>("MnuOpcCan").OnClick = [this](int) { MnuOpcCan_Click(); };
    The<ui::MenuItem>("MnuOpcSal").OnClick = [this](int) { MnuOpcSal_Click(); };
}

void FormCantidad::Form_Load()
{
    ui::Randomize(ui::TimeOfDaySeed());
    NuevoEjercicio();
}

KeyResult FormCantidad::Form_KeyDown(int KeyCode, int Shift)
{
    if (KeyCode != ui::KeyCode::R || (Shift & (ui::ShiftMask::Control | ui::ShiftMask::Alt)) == 0) {
        return KeyResult::Pass;
    }
    Text6.SetFocus();
    return KeyResult::Swallow;
}

void FormCantidad::Command1_Click()
{
    if (Denominador == 0) {
        Text2[1].Refuse();
        return;
    }
    const bool correcto = Resultado() == Text6.Number();
    Text7.Text(correcto ? "resultado correcto" : "Resultado incorrecto");
    // A right answer counts once, a wrong one always: both on purpose.
    if (!correcto || puntuable) {
        Ejercicios += 1;
    }
    if (correcto) {
        puntuable = false;
        Command2[0].SetFocus();
    } else {
        Errores += 1;
        Text6.SelectAll();
        Text6.SetFocus();
    }
    tbResultados.Text(lenguaje::Marcador(Ejercicios.Valor(), Errores.Valor()));
}

void FormCantidad::Command2_Click(int Index)
{
    constexpr std::array acciones{&FormCantidad::Continuar, &FormCantidad::Borrar, &FormCantidad::VerSolucion};
    (this->*acciones.at(static_cast<std::size_t>(Index)))();
}

KeyResult FormCantidad::Text6_KeyPress(int KeyAscii)
{
    Text7.Text("");
    if (KeyAscii != ui::KeyAscii::Enter) {
        return KeyResult::Pass;
    }
    Command1_Click();
    return KeyResult::Swallow;
}

void FormCantidad::MnuOpcDenLis_Click(int Index)
{
    MnuOpcDenLis[Index].Check();
    OpcionDenominador = Index;
}

void FormCantidad::MnuOpcLee_Click()
{
    TbTexto.Text(lenguaje::ConBlancoDelanteSiRepite(TextoFraccionCantidad(), TbTexto.Text()));
}

void FormCantidad::MnuOpcFrac_Click()
{
    constexpr std::string_view titulo = "Introducir fracción";
    const auto numerador = PedirValor("Introduzca el numerador de la fracción:", titulo, Numerador, 0);
    if (!numerador) {
        return;
    }
    const auto denominador = PedirValor("Introduzca el denominador de la fracción:", titulo, Denominador, 2);
    if (!denominador || !ConfirmarDivision(Cantidad, *denominador, {})) {
        return;
    }
    Numerador = *numerador;
    Denominador = *denominador;
    MostrarEjercicio();
}

void FormCantidad::MnuOpcCan_Click()
{
    constexpr std::string_view titulo = "Introducir cantidad";
    const auto cantidad = PedirValor("Introduzca la cantidad:", titulo, Cantidad, 0);
    if (!cantidad || !ConfirmarDivision(*cantidad, Denominador, titulo)) {
        return;
    }
    Cantidad = *cantidad;
    MostrarEjercicio();
}

void FormCantidad::MnuOpcSal_Click()
{
    close();
}

void FormCantidad::NuevoEjercicio()
{
    Numerador = ui::Draw(10, 1);
    Denominador = ui::Draw(OpcionDenominador == 0 ? 9 : 19, 2);
    Cantidad = ui::Draw(10, 1) * Denominador;
    MostrarEjercicio();
}

void FormCantidad::MostrarEjercicio()
{
    Text2[0].Text(Numerador.Valor());
    Text2[1].Text(Denominador.Valor());
    Text2[2].Text(Cantidad.Valor());
    TbTexto.Text(TextoFraccionCantidad());
}

void FormCantidad::Continuar()
{
    Text6.Text("");
    Text7.Text("");
    NuevoEjercicio();
    Text6.SetFocus();
    puntuable = true;
}

void FormCantidad::Borrar()
{
    Text6.Text("");
    Text7.Text("");
    Text6.SetFocus();
}

void FormCantidad::VerSolucion()
{
    constexpr std::size_t caben = 5; // characters of the solution that are shown
    Text6.Text(numeros::EnCifras(Resultado(), caben, ui::DecimalSeparator()));
    puntuable = false;
    Text6.SelectAll();
    Text6.SetFocus();
}

// The name of the fraction, singular or plural, brings a blank of its own, so that there are two before "de"; a
// fraction of nothing has neither "s" nor blank.
std::string FormCantidad::TextoFraccionCantidad() const
{
    std::string texto = EnLetras(Numerador, false) + " " + EnLetras(Denominador, true);
    if (Numerador.Valor() >= 2) {
        texto += "s ";
    } else if (Numerador == 1) {
        texto += " ";
    }
    return texto + " de " + EnLetras(Cantidad, false);
}

double FormCantidad::Resultado() const
{
    return static_cast<double>((Cantidad * Numerador).Valor()) / Denominador.Valor();
}

} // namespace ejercicios
