#include "FormOperacion.h"

#include "Dialogs.h"
#include "Keys.h"
#include "Lectura.h"
#include "Marcador.h"
#include "Random.h"

#include <cmath>

namespace operaciones {

namespace {

using enum ui::Kind;
using ui::Alignment;
using ui::Color;
using ui::Coloring;
using ui::KeyResult;
using ui::Speaking;
using ui::Typing;

constexpr ui::ControlDesign Caja(int index, std::string_view says, int left, int top, int tab, Typing typing)
{
    return {.name = "Text1",
            .index = index,
            .says = says,
            .place = {left, top, 600, 555},
            .tab = tab,
            .typing = typing,
            .alignment = Alignment::Center,
            .points = 15};
}

constexpr ui::ControlDesign Signo(int index, std::string_view text, std::string_view says, int left, int tab)
{
    return {.name = "Text2",
            .index = index,
            .text = text,
            .says = says,
            .place = {left, 800, 600, 555},
            .tab = tab,
            .alignment = Alignment::Center,
            .points = 15};
}

constexpr ui::ControlDesign Raya(int index, int left)
{
    return {.kind = Line, .name = "Line1", .index = index, .place = {left, 1060, 600, 30}};
}

// The lower buttons cover the foot of "&Hecho" and the head of the verdict box.
constexpr ui::ControlDesign controles[]{
    Caja(0, "Numerador de la primera fracción", 500, 500, 0, Typing::Locked),
    Caja(1, "Denominador de la primera fracción", 500, 1100, 1, Typing::Locked),
    Signo(0, "", "Signo de la operación", 1400, 2),
    Caja(2, "Numerador de la segunda fracción", 2455, 500, 3, Typing::Locked),
    Caja(3, "Denominador de la segunda fracción", 2455, 1100, 4, Typing::Locked),
    Signo(1, "=", "Signo igual", 3355, 5),
    Caja(4, "Numerador del resultado", 4210, 500, 6, Typing::Editable),
    Caja(5, "Denominador del resultado", 4210, 1100, 7, Typing::Editable),
    Raya(0, 500),
    Raya(1, 2455),
    Raya(2, 4210),
    {.kind = Button,
     .name = "Command1",
     .text = "&Hecho",
     .place = {1650, 2100, 1500, 495},
     .tab = 8,
     .color = Color::Yellow,
     .coveredBottom = 95},
    {.name = "Text3",
     .says = "Resultado",
     .place = {900, 2800, 3000, 500},
     .tab = 9,
     .speaking = Speaking::Spoken,
     .coloring = Coloring::Selection,
     .alignment = Alignment::Center,
     .coveredTop = 200},
    ui::ButtonDesign("Command2", 0, "&Continuar", {1650, 2500, 1500, 500}, 10, Color::Cyan),
    ui::ButtonDesign("Command2", 1, "&Borrar", {75, 2500, 1500, 500}, 11, Color::Green),
    ui::ButtonDesign("Command2", 2, "&Ver solución", {3225, 2500, 1500, 500}, 12, Color::Red),
    {.name = "TbMensajes", .says = "Mensajes", .place = {0, 3500, 4800, 495}, .tab = 13, .speaking = Speaking::Spoken},
    {.name = "tbResultados",
     .text = "Ejercicios:  0; Errores:  0",
     .says = "Marcador",
     .place = {900, 4500, 3000, 495},
     .tab = 14,
     .speaking = Speaking::Score,
     .points = 10.5},
};

} // namespace

FormOperacion::FormOperacion(const Operacion& operacion, std::span<const ui::MenuDesign> menus)
    : Form({.name = operacion.name,
            .caption = operacion.caption,
            .width = 4885,
            .height = 5200,
            .controls = controles,
            .menus = menus,
            .keys = "F4 dice el marcador."}),
      m_operacion(operacion)
{
    Text2[0].Text(operacion.signo);
    for (ui::TextBox& box : Text1) {
        box.OnKeyPress = [this](int Index, int KeyAscii) { return Text1_KeyPress(Index, KeyAscii); };
    }
    The<ui::Button>("Command1").OnClick = [this](int) { Command1_Click(); };
    Command2.OnClick(this, &FormOperacion::Command2_Click);
    MnuOpcCanLis.OnClick(this, &FormOperacion::MnuOpcCanLis_Click);
    The<ui::MenuItem>("MnuOpcTec").OnClick = [this](int) { MnuOpcTec_Click(); };
    The<ui::MenuItem>("MnuOpcSal").OnClick = [this](int) { MnuOpcSal_Click(); };
}

void FormOperacion::Form_Load()
{
    ui::Randomize(ui::TimerSeed());
    NuevoEjercicio();
}

void FormOperacion::Command1_Click()
{
    const bool correcto = EsCorrecto();
    const std::string_view veredicto = correcto ? "Resultado correcto " : m_operacion.incorrecto;
    Text3.Text(lenguaje::ConBlancoSiRepite(std::string(veredicto), Text3.Text()));
    Contar(correcto);
    MostrarResultados();
    if (correcto) {
        Command2[0].SetFocus();
    } else {
        RespuestaIncorrecta();
    }
}

void FormOperacion::Command2_Click(int Index)
{
    constexpr std::array acciones{&FormOperacion::Continuar, &FormOperacion::Borrar, &FormOperacion::VerSolucion};
    (this->*acciones.at(static_cast<std::size_t>(Index)))();
}

KeyResult FormOperacion::Text1_KeyPress(int, int KeyAscii)
{
    if (KeyAscii != ui::KeyAscii::Enter) {
        return KeyResult::Pass;
    }
    Command1_Click();
    return KeyResult::Swallow;
}

KeyResult FormOperacion::Form_KeyDown(int KeyCode, int Shift)
{
    const bool control = (Shift & ui::ShiftMask::Control) != 0;
    if (KeyCode == ui::KeyCode::F2 || (control && KeyCode == ui::KeyCode::Up)) {
        LeerFraccion(-1);
        return KeyResult::Swallow;
    }
    if (KeyCode == ui::KeyCode::F3 || (control && KeyCode == ui::KeyCode::Down)) {
        LeerOperacion();
        return KeyResult::Swallow;
    }
    if (control && KeyCode == ui::KeyCode::Right) {
        return MoverDerecha();
    }
    if (control && KeyCode == ui::KeyCode::Left) {
        return MoverIzquierda();
    }
    return KeyResult::Pass;
}

void FormOperacion::MnuOpcCanLis_Click(int Index)
{
    MnuOpcCanLis[Index].Check();
    OpcionCantidad = Index;
}

void FormOperacion::MnuOpcTec_Click()
{
    ui::MsgBox("F2: Lee la fracción seleccionada.\r\n"
               "F3: Lee la operación completa.\r\n"
               "Control + cursor derecha: Pasa de una fracción a la de su derecha.\r\n"
               "Control + cursor izquierda: Pasa de una fracción a la de su izquierda.",
               "Combinaciones de teclas");
}

void FormOperacion::MnuOpcSal_Click()
{
    close();
}

void FormOperacion::NuevoEjercicio()
{
    constexpr std::array limites{10, 20, 100};
    NuevosOperandos(limites.at(static_cast<std::size_t>(OpcionCantidad.Valor())));
    VaciarResultado();
    LeerOperacion();
}

void FormOperacion::NuevosOperandos(int limite)
{
    for (int i = 0; i < 4; ++i) {
        Text1[i].Text(ui::Draw(limite - 1, 2));
    }
}

void FormOperacion::Continuar()
{
    NuevoEjercicio();
    Text1[4].SetFocus();
    Pendiente = true;
}

void FormOperacion::RespuestaIncorrecta()
{
    Text1[4].SetFocus();
}

void FormOperacion::Borrar()
{
    VaciarResultado();
    Text1[4].SetFocus();
}

void FormOperacion::VerSolucion()
{
    Text1[4].Text(""); // so that coming into the box is not heard as the old answer
    Text1[4].SetFocus();
    EscribirSolucion();
}

void FormOperacion::VaciarResultado()
{
    Text1[4].Text("");
    Text1[5].Text("");
}

void FormOperacion::EscribirSolucion()
{
    const Fraccion solucion = CalcularSolucion();
    Text1[4].Text(solucion.numerador.Valor());
    Text1[5].Text(solucion.denominador.Valor());
    TbMensajes.Text(LeerFraccion(2));
    Pendiente = false; // an exercise whose solution was seen is never counted
}

numeros::Entero16 FormOperacion::Numero(int indice) const
{
    return numeros::Entero16::Redondeado(Text1[indice].Number());
}

// Any fraction of the same value is right, and so is 0/0: the cross product alone decides.
bool FormOperacion::EsCorrecto() const
{
    const Fraccion solucion = CalcularSolucion();
    if (Text1[4].Text().empty() || Text1[5].Text().empty()) {
        return false;
    }
    const double cruzado = Text1[4].Number() * solucion.denominador.Valor();
    return std::isfinite(cruzado) && cruzado == solucion.numerador.Valor() * Text1[5].Number();
}

// A wrong answer leaves the exercise pending, so each further one counts as an exercise and an error more.
void FormOperacion::Contar(bool correcto)
{
    if (!Pendiente) {
        return;
    }
    Ejercicios += 1;
    if (correcto) {
        Pendiente = false;
    } else {
        Errores += 1;
    }
}

void FormOperacion::MostrarResultados()
{
    tbResultados.Text(lenguaje::Marcador(Ejercicios.Valor(), Errores.Valor()));
}

std::string FormOperacion::LeerFraccion(int indice)
{
    if (indice >= 0) {
        return EnPalabras(indice, EsSingular(Text1[2 * indice].Number()));
    }
    const ui::Control* foco = ActiveControl();
    if (foco == nullptr || foco->Name() != "Text1") {
        TbMensajes.Text("No hay ninguna fracción seleccionada");
    } else {
        // With the reading key only a numerator of 1 is singular, on every screen: -1/2 is "menos un medios" here, on
        // purpose.
        const int fraccion = foco->Index() / 2;
        const bool singular = Text1[2 * fraccion].Number() == 1;
        TbMensajes.Text(lenguaje::ConBlancoSiRepite(EnPalabras(fraccion, singular), TbMensajes.Text()));
    }
    return {};
}

std::string FormOperacion::EnPalabras(int fraccion, bool singular) const
{
    return lenguaje::FraccionEnLetras(Text1[2 * fraccion].Number(), Text1[2 * fraccion + 1].Number(), singular,
                                      m_operacion.variante);
}

void FormOperacion::LeerOperacion()
{
    std::string texto(BlancoInicial());
    texto += LeerFraccion(0);
    texto += m_operacion.signoLeido.empty() ? Text2[0].Text() : std::string(m_operacion.signoLeido);
    texto += LeerFraccion(1) + Text2[1].Text();
    if (Text1[4].Number() != 0 || Text1[5].Number() != 0) {
        texto += LeerFraccion(2);
    }
    TbMensajes.Text(texto);
}

std::string_view FormOperacion::BlancoInicial() const
{
    return TbMensajes.Text().starts_with(' ') ? "" : " ";
}

// The row, numerators or denominators, stays the same; beyond the result comes the first fraction again.
KeyResult FormOperacion::MoverDerecha()
{
    const ui::Control* foco = ActiveControl();
    if (foco != nullptr && foco->Name() == "Text1") {
        return MoverA((foco->Index() + 2) % Text1.Count());
    }
    if (foco != nullptr && foco->Name() == "Text2") {
        return MoverA(2 * (foco->Index() + 1));
    }
    return KeyResult::Pass;
}

KeyResult FormOperacion::MoverIzquierda()
{
    const ui::Control* foco = ActiveControl();
    if (foco != nullptr && foco->Name() == "Text1") {
        return MoverA((foco->Index() + Text1.Count() - 2) % Text1.Count());
    }
    if (foco != nullptr && foco->Name() == "Text2") {
        return MoverA(2 * foco->Index());
    }
    return KeyResult::Pass;
}

KeyResult FormOperacion::MoverA(int indice)
{
    Text1[indice].SetFocus();
    LeerFraccion(-1);
    return KeyResult::Swallow;
}

} // namespace operaciones
