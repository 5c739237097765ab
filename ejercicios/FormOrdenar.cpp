#include "FormOrdenar.h"

#include "Lectura.h"
#include "Random.h"

#include <algorithm>

namespace ejercicios {

namespace {

using enum ui::Kind;
using numeros::Entero16;
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

constexpr ui::ControlDesign Boton(int index, std::string_view caption, int left, int tab, Color color)
{
    ui::ControlDesign boton = ui::ButtonDesign("Command2", index, caption, {left, 4250, 1500, 500}, tab, color);
    boton.font = "Arial Narrow";
    return boton;
}

constexpr ui::ControlDesign controles[]{
    {.kind = MultiLine,
     .name = "Text1",
     .text = "Ordena estas fracciones de menor a mayor\r\n"
             "Pulsa sobre una fracción para moverla hacia la izquierda \r\n",
     .says = "Instrucciones",
     .keys = "F3 repite el ejercicio.",
     .place = {300, 200, 6600, 800},
     .tab = 0,
     .font = "Arial Narrow"},
    Fraccion(0),
    Fraccion(1),
    Fraccion(2),
    Fraccion(3),
    ui::ButtonDesign("CBHecho", ui::noIndex, "&Hecho", {2850, 2950, 1500, 495}, 5, Color::Yellow),
    Boton(0, "&Continuar", 2850, 6, Color::Cyan),
    Boton(1, "&Borrar", 1200, 7, Color::Green),
    Boton(2, "&Ver solución", 4500, 8, Color::Red),
    {.name = "TBMensajes",
     .says = "Mensajes",
     .place = {1850, 3600, 3500, 500},
     .tab = 9,
     .speaking = ui::Speaking::Spoken,
     .font = "MS Sans Serif"},
    {.name = "TbResultados",
     .text = "Ejercicios: 0; Errores: 0",
     .says = "Marcador",
     .place = {1850, 4950, 3500, 495},
     .tab = 10},
};

// Four different numbers from 1 to 10. A number is taken for one that was drawn before where its digits occur in the
// list of those: so no 1 comes after a 10, on purpose.
std::array<Entero16, 4> Sortear()
{
    std::array<Entero16, 4> numeros;
    std::string lista;
    for (Entero16& numero : numeros) {
        do {
            numero = ui::Draw(10, 1);
        } while (lista.find(std::to_string(numero.Valor())) != std::string::npos);
        lista += std::to_string(numero.Valor()) + ";";
    }
    return numeros;
}

bool Menor(Entero16 uno, Entero16 otro)
{
    return uno.Valor() < otro.Valor();
}

} // namespace

FormOrdenar::FormOrdenar()
    : Form({.name = "FormOrdenar",
            .caption = "Ordenar fracciones",
            .width = 7200,
            .height = 5655,
            .controls = controles})
{
    Command1.OnClick(this, &FormOrdenar::Command1_Click);
    The<ui::Button>("CBHecho").OnClick = [this](int) { CBHecho_Click(); };
    Command2.OnClick(this, &FormOrdenar::Command2_Click);
}

void FormOrdenar::Form_Load()
{
    ui::Randomize(ui::TimerSeed());
    NuevaOrdenacion();
}

// The four from left to right.
std::string FormOrdenar::Exercise() const
{
    return EnPalabras(0) + ", " + EnPalabras(1) + ", " + EnPalabras(2) + ", " + EnPalabras(3);
}

void FormOrdenar::Command1_Click(int Index)
{
    if (Index == 0) {
        Command1[0].Refuse();
        return;
    }
    const auto posicion = static_cast<std::size_t>(Index);
    std::swap(Numeradores.at(posicion), Numeradores.at(posicion - 1));
    std::swap(Denominadores.at(posicion), Denominadores.at(posicion - 1));
    MostrarFracciones();
    // In place of the fraction that stands on the button now.
    Tell(EnPalabras(Index - 1) + ", posición " + std::to_string(Index) + " de 4");
}

void FormOrdenar::CBHecho_Click()
{
    const bool correcto = EstanOrdenadas();
    const std::string_view veredicto = correcto ? " Resultado correcto" : "Resultado incorrecto";
    TBMensajes.Text(lenguaje::ConBlancoSiRepite(std::string(veredicto), TBMensajes.Text()));
    (correcto ? Command2 : Command1)[0].SetFocus();
}

void FormOrdenar::Command2_Click(int Index)
{
    constexpr std::array acciones{&FormOrdenar::NuevaOrdenacion, &FormOrdenar::Borrar, &FormOrdenar::VerSolucion};
    (this->*acciones.at(static_cast<std::size_t>(Index)))();
    TellExercise();
}

void FormOrdenar::NuevaOrdenacion()
{
    MismoDenominador = ui::Rnd() < 0.5;
    (MismoDenominador ? Denominadores : Numeradores).fill(ui::Draw(10, 5));
    Variables() = Sortear();
    if (EstanOrdenadas()) {
        std::swap(Variables()[0], Variables()[2]);
    }
    MostrarFracciones();
    if (Command1[0].IsVisible()) { // not yet while the screen loads
        Command1[0].SetFocus();
    }
}

void FormOrdenar::MostrarFracciones()
{
    for (ui::Button& button : Command1) {
        const int numerador = Numeradores.at(static_cast<std::size_t>(button.Index())).Valor();
        const int denominador = Denominadores.at(static_cast<std::size_t>(button.Index())).Valor();
        button.Caption(std::to_string(numerador) + "\r\n-\r\n" + std::to_string(denominador));
        button.Says(EnPalabras(button.Index()));
    }
}

std::string FormOrdenar::EnPalabras(int posicion) const
{
    const auto i = static_cast<std::size_t>(posicion);
    return lenguaje::FraccionEnLetras(Numeradores.at(i).Valor(), Denominadores.at(i).Valor());
}

// Of two fractions of one numerator, that with the larger denominator is the smaller one.
bool FormOrdenar::EstanOrdenadas() const
{
    return MismoDenominador ? std::ranges::is_sorted(Numeradores, Menor)
                            : std::ranges::is_sorted(Denominadores.rbegin(), Denominadores.rend(), Menor);
}

void FormOrdenar::Borrar()
{
    do {
        const auto i = static_cast<std::size_t>(ui::Draw(4, 0));
        const auto j = static_cast<std::size_t>(ui::Draw(4, 0));
        std::swap(Variables().at(i), Variables().at(j));
    } while (EstanOrdenadas());
    MostrarFracciones();
}

void FormOrdenar::VerSolucion()
{
    std::ranges::sort(Variables(), Menor);
    if (!MismoDenominador) {
        std::ranges::reverse(Denominadores);
    }
    MostrarFracciones();
}

} // namespace ejercicios
