#include "FormOrdenar.h"

#include "Azar.h"
#include "Clock.h"
#include "Escribir.h"
#include "Filas.h"
#include "Lectura.h"

namespace ejercicios {

namespace {

using enum ui::Kind;
using ui::Color;

constexpr ui::ControlDesign Fraccion(int index)
{
    return {.kind = Button,
            .name = "Command1",
            .index = index,
            .text = "3\r\n-\r\n5",
            .place = {600 + 1600 * index, 1200, 1200, 1500},
            .tab = 1 + index,
            .color = Color::White,
            .font = "Courier New",
            .points = 15};
}

constexpr std::string_view estrecho = "Arial Narrow";

constexpr ui::ControlDesign controles[]{
    comun::EnTipo(comun::Instrucciones("Text1",
                                       "Ordena estas fracciones de menor a mayor\r\n"
                                       "Pulsa sobre una fracción para moverla hacia la izquierda \r\n",
                                       "F3 repite el ejercicio.", {300, 200, 6600, 800}),
                  estrecho),
    Fraccion(0),
    Fraccion(1),
    Fraccion(2),
    Fraccion(3),
    ui::ButtonDesign("CBHecho", ui::noIndex, "&Hecho", {2850, 2950, 1500, 495}, 5, Color::Yellow),
    comun::EnTipo(comun::BotonContinuar({2850, 4250, 1500, 500}, 6), estrecho),
    comun::EnTipo(comun::BotonBorrar({1200, 4250, 1500, 500}, 7), estrecho),
    comun::EnTipo(comun::BotonVerSolucion({4500, 4250, 1500, 500}, 8), estrecho),
    {.name = "TBMensajes",
     .accessibleName = "Mensajes",
     .place = {1850, 3600, 3500, 500},
     .tab = 9,
     .speaking = ui::Speaking::Spoken,
     .font = "MS Sans Serif"},
    {.name = "TbResultados",
     .text = lenguaje::marcadorFijo,
     .accessibleName = "Marcador",
     .place = {1850, 4950, 3500, 495},
     .tab = 10},
};

} // namespace

FormOrdenar::FormOrdenar()
    : Ejercicio({.name = "FormOrdenar",
                 .caption = "Ordenar fracciones",
                 .width = 7200,
                 .height = 5655,
                 .controls = controles})
{
    OnClick("Command1", &FormOrdenar::Command1_Click);
    OnClick("CBHecho", &FormOrdenar::CBHecho_Click);
}

void FormOrdenar::Form_Load()
{
    numeros::Sembrar(ui::TimerSeed());
    NuevaOrdenacion();
}

// The four from left to right.
std::string FormOrdenar::Exercise() const
{
    return lenguaje::FraccionesEnLetras(m_ordenacion.Fracciones());
}

void FormOrdenar::Command1_Click(int Index)
{
    if (Index == 0) {
        Command1[0].Refuse();
        return;
    }
    m_ordenacion.Mover(Index);
    MostrarFracciones();
    // In place of the fraction that stands on the button now.
    Tell(EnPalabras(Index - 1) + ", posición " + std::to_string(Index) + " de 4");
}

void FormOrdenar::CBHecho_Click()
{
    const bool correcto = EstanOrdenadas();
    comun::EscribirOtraVez(TBMensajes, correcto ? " Resultado correcto" : "Resultado incorrecto");
    (correcto ? Command2 : Command1)[0].SetFocus();
}

void FormOrdenar::Command2_Click(int Index)
{
    Ejercicio::Command2_Click(Index);
    TellExercise();
}

void FormOrdenar::NuevaOrdenacion()
{
    m_ordenacion = reglas::Ordenacion::Sortear();
    MostrarFracciones();
    if (Command1[0].IsVisible()) { // not yet while the screen loads
        Command1[0].SetFocus();
    }
}

void FormOrdenar::MostrarFracciones()
{
    for (ui::Button& button : Command1) {
        const auto [numerador, denominador] = m_ordenacion[button.Index()];
        button.Caption(std::to_string(numerador.Valor()) + "\r\n-\r\n" + std::to_string(denominador.Valor()));
        button.AccessibleName(EnPalabras(button.Index()));
    }
}

std::string FormOrdenar::EnPalabras(int posicion) const
{
    return lenguaje::FraccionEnLetras(m_ordenacion[posicion]);
}

bool FormOrdenar::EstanOrdenadas() const
{
    return m_ordenacion.EstanOrdenadas();
}

void FormOrdenar::Continuar()
{
    NuevaOrdenacion();
}

void FormOrdenar::Borrar()
{
    m_ordenacion.Desordenar();
    MostrarFracciones();
}

void FormOrdenar::VerSolucion()
{
    m_ordenacion.Ordenar();
    MostrarFracciones();
}

} // namespace ejercicios
