#include "FormCantidad.h"

#include "Azar.h"
#include "Clock.h"
#include "Dialogs.h"
#include "Escribir.h"
#include "Filas.h"
#include "Keys.h"
#include "Lectura.h"
#include "Locale.h"
#include "PedirValor.h"

namespace ejercicios {

namespace {

using enum ui::Kind;
using ui::Alignment;
using ui::Checking;
using ui::Coloring;
using ui::KeyResult;
using ui::Speaking;
using ui::Typing;

constexpr ui::ControlDesign Numero(int index, std::string_view nombre, const ui::Place& place, int tab)
{
    return {.name = "Text2",
            .index = index,
            .text = "10",
            .accessibleName = nombre,
            .place = place,
            .tab = tab,
            .alignment = Alignment::Center,
            .points = 15};
}

constexpr ui::ControlDesign controles[]{
    {.name = "Text1",
     .text = "CALCULA",
     .accessibleName = "Instrucciones",
     .keys = "F4 dice el marcador.",
     .place = {1000, 100, 3000, 500},
     .tab = 0,
     .alignment = Alignment::Center},
    Numero(0, "Numerador", {400, 900, 600, 500}, 1),
    Numero(1, "Denominador", {400, 1430, 600, 525}, 2),
    {.kind = Line, .name = "Line1", .place = {400, 1410, 600, 30}}, // in front of the box's edge
    {.name = "Text3",
     .text = "de",
     .accessibleName = "Palabra entre la fracción y la cantidad",
     .place = {1300, 1165, 600, 495},
     .tab = 3,
     .alignment = Alignment::Center,
     .points = 15},
    Numero(2, "Cantidad", {2200, 1165, 600, 525}, 4),
    {.name = "Text5",
     .text = "=",
     .accessibleName = "Signo igual",
     .place = {3100, 1165, 600, 525},
     .tab = 5,
     .alignment = Alignment::Center,
     .points = 15},
    {.name = "Text6",
     .accessibleName = "Resultado",
     .place = {4000, 1165, 1100, 525},
     .tab = 6,
     .typing = Typing::Editable,
     .alignment = Alignment::Center,
     .points = 15},
    {.name = "TbTexto",
     .accessibleName = "Ejercicio en palabras",
     .place = {500, 2500, 4000, 400},
     .tab = 7,
     .speaking = Speaking::Spoken,
     .coloring = Coloring::Selection},
    comun::Hecho({1750, 3200, 1500, 495}, 8),
    comun::Mensajes("Text7", {1500, 3900, 2000, 495}, 9),
    comun::BotonContinuar({1750, 4600, 1500, 500}, 10),
    comun::BotonBorrar({125, 4600, 1500, 500}, 11),
    comun::BotonVerSolucion({3375, 4600, 1500, 500}, 12),
    comun::LineaMarcador({1000, 7000, 3000, 495}, 13, 10.5),
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

// Whether the quantity can be divided without a remainder, or the pupil wants to go on all the same.
bool ConfirmarDivision(const reglas::FraccionDeCantidad& ejercicio, std::string_view titulo)
{
    return ejercicio.EsExacta() ||
           ui::MsgBoxYesNo("La división de la cantidad entre el denominador no es exacta ¿desea continuar?", titulo) ==
               ui::Answer::Yes;
}

} // namespace

FormCantidad::FormCantidad()
    : Ejercicio({.name = "FormCantidad",
                 .caption = "Fracción de una cantidad",
                 .width = 5205,
                 .height = 7695,
                 .controls = controles,
                 .menus = menus})
{
    OnKeyPress("Text6", &FormCantidad::Text6_KeyPress);
    OnClick("Command1", &FormCantidad::Command1_Click);
    OnClick("MnuOpcDenLis", &FormCantidad::MnuOpcDenLis_Click);
    OnClick("MnuOpcLee", &FormCantidad::MnuOpcLee_Click);
    OnClick("MnuOpcFrac", &FormCantidad::MnuOpcFrac_Click);
    OnClick("MnuOpcCan", &FormCantidad::MnuOpcCan_Click);
}

void FormCantidad::Form_Load()
{
    numeros::Sembrar(ui::TimeOfDaySeed());
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
    const bool correcto = m_ejercicio.Resultado() == Text6.Number();
    Text7.Text(correcto ? "resultado correcto" : "Resultado incorrecto");
    // A right answer counts once, a wrong one always.
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
    OpcionDenominador = Index;
}

void FormCantidad::MnuOpcLee_Click()
{
    comun::EscribirOtraVezDelante(TbTexto, TextoFraccionCantidad());
}

void FormCantidad::MnuOpcFrac_Click()
{
    constexpr std::string_view titulo = "Introducir fracción";
    const auto& [Numerador, Denominador, Cantidad] = m_ejercicio;
    const auto numerador = comun::PedirValor("Introduzca el numerador de la fracción:", titulo, Numerador, 0);
    if (!numerador) {
        return;
    }
    const auto denominador = comun::PedirValor("Introduzca el denominador de la fracción:", titulo, Denominador, 2);
    if (denominador && ConfirmarDivision({*numerador, *denominador, Cantidad}, {})) {
        Proponer({*numerador, *denominador, Cantidad});
    }
}

void FormCantidad::MnuOpcCan_Click()
{
    constexpr std::string_view titulo = "Introducir cantidad";
    const auto& [Numerador, Denominador, Cantidad] = m_ejercicio;
    const auto cantidad = comun::PedirValor("Introduzca la cantidad:", titulo, Cantidad, 0);
    if (cantidad && ConfirmarDivision({Numerador, Denominador, *cantidad}, titulo)) {
        Proponer({Numerador, Denominador, *cantidad});
    }
}

void FormCantidad::NuevoEjercicio()
{
    Proponer(reglas::FraccionDeCantidad::Sortear(OpcionDenominador == 0 ? 10 : 20));
}

void FormCantidad::Proponer(const reglas::FraccionDeCantidad& ejercicio)
{
    m_ejercicio = ejercicio;
    Text2[0].Text(ejercicio.Numerador);
    Text2[1].Text(ejercicio.Denominador);
    Text2[2].Text(ejercicio.Cantidad);
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
    Text6.Text(m_ejercicio.ResultadoEnCifras(ui::DecimalSeparator()));
    puntuable = false;
    Text6.SelectAll();
    Text6.SetFocus();
}

std::string FormCantidad::TextoFraccionCantidad() const
{
    const auto& [Numerador, Denominador, Cantidad] = m_ejercicio;
    return lenguaje::FraccionDeCantidadEnLetras({Numerador, Denominador}, Cantidad);
}

} // namespace ejercicios
