#include "FormOperacion.h"

#include "Azar.h"
#include "Cajas.h"
#include "Clock.h"
#include "Controles.h"
#include "Dialogs.h"
#include "Escribir.h"
#include "Keys.h"

namespace operaciones {

using ui::KeyResult;

FormOperacion::FormOperacion(const Operacion& operacion, ui::Menus menus)
    : Ejercicio({.name = operacion.name,
                 .caption = operacion.caption,
                 .width = 4885,
                 .height = 5200,
                 .controls = controles,
                 .menus = menus,
                 .keys = "F4 dice el marcador."}),
      m_operacion(operacion)
{
    OnKeyPress("Text1", &FormOperacion::Text1_KeyPress);
    OnClick("Command1", &FormOperacion::Command1_Click);
    OnClick("MnuOpcCanLis", &FormOperacion::MnuOpcCanLis_Click);
    OnClick("MnuOpcTec", &FormOperacion::MnuOpcTec_Click);
}

void FormOperacion::Form_Load()
{
    Text2[0].Text(m_operacion.signo);
    numeros::Sembrar(ui::TimerSeed());
    NuevoEjercicio();
}

void FormOperacion::Command1_Click()
{
    const bool correcto = EsCorrecto();
    comun::EscribirOtraVez(Text3, correcto ? "Resultado correcto " : m_operacion.incorrecto);
    Contar(correcto);
    tbResultados.Text(lenguaje::Marcador(Ejercicios.Valor(), Errores.Valor()));
    if (correcto) {
        Command2[0].SetFocus();
    } else {
        RespuestaIncorrecta();
    }
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

void FormOperacion::NuevoEjercicio()
{
    constexpr std::array limites{10, 20, 100};
    const auto [primero, segundo] = SortearOperandos(limites.at(OpcionCantidad));
    Text1[0].Text(primero.numerador);
    Text1[1].Text(primero.denominador);
    Text1[2].Text(segundo.numerador);
    Text1[3].Text(segundo.denominador);
    VaciarResultado();
    LeerOperacion();
}

Operandos FormOperacion::SortearOperandos(int limite) const
{
    return reglas::SortearOperandos(limite);
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
    Text1[4].Text(solucion.numerador);
    Text1[5].Text(solucion.denominador);
    TbMensajes.Text(LeerFraccion(2));
    Pendiente = false; // an exercise whose solution was seen is never counted
}

Operandos FormOperacion::LeerOperandos() const
{
    const auto numero = [this](int indice) { return numeros::Entero16::Redondeado(Text1[indice].Number()); };
    return {Fraccion{numero(0), numero(1)}, Fraccion{numero(2), numero(3)}};
}

bool FormOperacion::EsCorrecto() const
{
    const Fraccion solucion = CalcularSolucion();
    return !Text1[4].Text().empty() && !Text1[5].Text().empty() &&
           reglas::EsEquivalente(Text1[4].Number(), Text1[5].Number(), solucion);
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

std::string FormOperacion::LeerFraccion(int indice)
{
    if (indice >= 0) {
        return EnPalabras(indice, m_operacion.modo);
    }
    const ui::Control* foco = ActiveControl();
    if (foco == nullptr || foco->Name() != "Text1") {
        TbMensajes.Text("No hay ninguna fracción seleccionada");
    } else {
        // With the reading key only a numerator of 1 is singular, on every screen: -1/2 is "menos un medios" here.
        comun::EscribirOtraVez(TbMensajes, EnPalabras(reglas::FraccionDe(foco->Index()),
                                                      {m_operacion.modo.variante, lenguaje::Singular::Uno}));
    }
    return {};
}

std::string FormOperacion::EnPalabras(int fraccion, lenguaje::Modo modo) const
{
    return lenguaje::FraccionEnLetras(Text1[2 * fraccion].Number(), Text1[2 * fraccion + 1].Number(), modo);
}

void FormOperacion::LeerOperacion()
{
    std::array<double, reglas::cajasDeOperacion> valores{};
    std::ranges::transform(Text1, valores.begin(), &ui::TextBox::Number);
    const std::string signo = m_operacion.signoLeido.empty() ? Text2[0].Text() : std::string(m_operacion.signoLeido);
    TbMensajes.Text(std::string(BlancoInicial()) +
                    lenguaje::OperacionEnLetras(valores, signo, Text2[1].Text(), m_operacion.modo));
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
        return MoverA(reglas::CajaALaDerecha(foco->Index()));
    }
    if (foco != nullptr && foco->Name() == "Text2") {
        return MoverA(reglas::CajaTrasSigno(foco->Index()));
    }
    return KeyResult::Pass;
}

KeyResult FormOperacion::MoverIzquierda()
{
    const ui::Control* foco = ActiveControl();
    if (foco != nullptr && foco->Name() == "Text1") {
        return MoverA(reglas::CajaALaIzquierda(foco->Index()));
    }
    if (foco != nullptr && foco->Name() == "Text2") {
        return MoverA(reglas::CajaAnteSigno(foco->Index()));
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
