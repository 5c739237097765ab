#include "FormSeries.h"

#include "Cifras.h"
#include "Keys.h"
#include "Lectura.h"
#include "Random.h"

#include <algorithm>
#include <optional>

namespace ejercicios {

namespace {

using enum ui::Kind;
using numeros::Entero16;
using ui::Alignment;
using ui::Checking;
using ui::Color;
using ui::KeyResult;
using ui::Typing;
using ui::Weight;

constexpr int terminos = std::tuple_size_v<Serie>;

// A numerator or denominator of a term. Eight columns and nine gaps share the width as two to one.
constexpr ui::ControlDesign Termino(std::string_view name, int index, std::string_view says, int top, int tab)
{
    return {.name = name,
            .index = index,
            .says = says,
            .place = {600 + index * 13000 / 9, top, 1000, 600},
            .tab = tab,
            .typing = Typing::Editable,
            .alignment = Alignment::Center,
            .weight = Weight::Bold};
}

constexpr ui::ControlDesign fijos[]{
    {.name = "TbInstruc",
     .text = "Completa la serie",
     .says = "Instrucciones",
     .keys = "F3 repite el ejercicio. F4 dice el marcador.",
     .place = {3500, 200, 5000, 465},
     .tab = 0,
     .alignment = Alignment::Center,
     .font = "Verdana",
     .points = 14.25,
     .weight = Weight::Bold},
    ui::ButtonDesign("Command1", ui::noIndex, "&Hecho", {5250, 2800, 1500, 495}, 17, Color::Yellow),
    {.name = "Text3",
     .says = "Mensajes",
     .place = {4500, 3450, 3000, 500},
     .tab = 18,
     .speaking = ui::Speaking::Spoken,
     .coloring = ui::Coloring::Selection,
     .alignment = Alignment::Center},
    ui::ButtonDesign("Command2", 0, "&Continuar", {5250, 4100, 1500, 500}, 19, Color::Cyan),
    ui::ButtonDesign("Command2", 1, "&Borrar", {3600, 4100, 1500, 500}, 20, Color::Green),
    ui::ButtonDesign("Command2", 2, "&Ver solución", {6900, 4100, 1500, 500}, 21, Color::Red),
    {.name = "tbResultados",
     .text = "Ejercicios:  0; Errores:  0",
     .says = "Marcador",
     .place = {0, 5300, 3000, 495},
     .tab = 22,
     .speaking = ui::Speaking::Score},
};

constexpr auto controles = [] {
    constexpr std::array<std::string_view, terminos> numeradores{
        "Numerador del término 1", "Numerador del término 2", "Numerador del término 3", "Numerador del término 4",
        "Numerador del término 5", "Numerador del término 6", "Numerador del término 7", "Numerador del término 8"};
    constexpr std::array<std::string_view, terminos> denominadores{
        "Denominador del término 1", "Denominador del término 2", "Denominador del término 3",
        "Denominador del término 4", "Denominador del término 5", "Denominador del término 6",
        "Denominador del término 7", "Denominador del término 8"};
    std::array<ui::ControlDesign, std::size(fijos) + std::size_t{3} * terminos> todos;
    auto* next = std::ranges::copy(fijos, todos.begin()).out;
    for (int i = 0; i < terminos; ++i) {
        *next = Termino("Text1", i, numeradores[i], 1000, 1 + 2 * i);
        const ui::Place& encima = next++->place;
        *next++ = {.kind = Line, .name = "Line1", .index = i, .place = {encima.left, 1635, 1000, 30}};
        *next++ = Termino("Text2", i, denominadores[i], 1700, 2 + 2 * i);
    }
    return todos;
}();

constexpr ui::MenuDesign menus[]{
    {0, "MnuOpc", ui::noIndex, "&Opciones"},
    {1, "MnuOpcDif", ui::noIndex, "&Dificultad"},
    {2, "MnuOpcDifLis", 0, "1A", Checking::Checked},
    {2, "MnuOpcDifLis", 1, "1B", Checking::Unchecked},
    {2, "MnuOpcDifLis", 2, "2A", Checking::Unchecked},
    {2, "MnuOpcDifLis", 3, "2B", Checking::Unchecked},
    {2, "MnuOpcDifLis", 4, "3A", Checking::Unchecked},
    {2, "MnuOpcDifLis", 5, "3B", Checking::Unchecked},
    {2, "MnuOpcDifLis", 6, "4A", Checking::Unchecked},
    {2, "MnuOpcDifLis", 7, "4B", Checking::Unchecked},
    {1, "MnuOpcTip", ui::noIndex, "&Tipos de serie"},
    {2, "MnuOpcTipLis", 0, "&Seleccionado", Checking::Checked},
    {2, "MnuOpcTipLis", 1, "Seleccionado e &inferiores", Checking::Unchecked},
    {1, "MnuOpcSal", ui::noIndex, "&Salir Alt - F4"},
};

// A number from 1 to `mayor`, or its negative, with equal chance.
int ConSigno(int mayor)
{
    const int valor = ui::Draw(mayor, 1);
    return ui::Rnd() < 0.5 ? -valor : valor;
}

// Numbers of one step, none below 1.
Serie Aritmetica()
{
    const int paso = ConSigno(7);
    const int inicio = paso < 0 ? ui::Draw(8, 0) - terminos * paso : ui::Draw(8, 1);
    Serie serie;
    for (int i = 0; i < terminos; ++i) {
        serie[i] = inicio + i * paso;
    }
    return serie;
}

// Numbers of a step that itself changes by another step. `margen` times that one keeps a growing series off zero;
// nothing where a number is negative all the same.
std::optional<Serie> DePasoVariable(int margen)
{
    int paso = ConSigno(7);
    const int cambio = ConSigno(5);
    int termino =
        paso < 0 ? ui::Draw(8, 0) - terminos * paso + 5 * std::abs(cambio) : ui::Draw(8, 1) + margen * std::abs(cambio);
    Serie serie;
    for (Entero16& valor : serie) {
        if (termino < 0) {
            return std::nullopt;
        }
        valor = termino;
        termino += paso;
        paso += cambio;
    }
    return serie;
}

} // namespace

FormSeries::FormSeries()
    : Form({.name = "FormSeries",
            .caption = "Completa la serie",
            .width = 12000,
            .height = 5895,
            .controls = controles,
            .menus = menus})
{
    for (ui::TextBox& box : Text1) {
        box.OnChange = [this](int Index) { Text1_Change(Index); };
        box.OnKeyPress = [this](int Index, int KeyAscii) { return Text1_KeyPress(Index, KeyAscii); };
    }
    for (ui::TextBox& box : Text2) {
        box.OnChange = [this](int Index) { Text2_Change(Index); };
        box.OnKeyPress = [this](int Index, int KeyAscii) { return Text2_KeyPress(Index, KeyAscii); };
    }
    The<ui::Button>("Command1").OnClick = [this](int) { Command1_Click(); };
    Command2.OnClick(this, &FormSeries::Command2_Click);
    MnuOpcDifLis.OnClick(this, &FormSeries::MnuOpcDifLis_Click);
    MnuOpcTipLis.OnClick(this, &FormSeries::MnuOpcTipLis_Click);
    The<ui::MenuItem>("MnuOpcSal").OnClick = [this](int) { MnuOpcSal_Click(); };
}

void FormSeries::Form_Load()
{
    ui::Randomize(ui::TimeOfDaySeed());
    NuevaSerie(); // of level 1, so that there is one
}

std::string FormSeries::Exercise() const
{
    std::string texto;
    for (int i = 0; i < PosicionHueco.Valor(); ++i) {
        texto += (i == 0 ? "" : ", ") + EnPalabras(i);
    }
    return texto + "; falta el término " + std::to_string(PosicionHueco.Valor() + 1);
}

// The term itself is asked for, not its value.
void FormSeries::Command1_Click()
{
    const int k = PosicionHueco.Valor();
    if (Text1[k].Number() == NumeradoresSerie.at(k).Valor() && Text2[k].Number() == DenominadoresSerie.at(k).Valor()) {
        Text3.Text("Respuesta correcta");
        if (!solucionVista) {
            Ejercicios += 1; // and again with every further check, on purpose
        }
        Command2[0].SetFocus();
    } else {
        Text3.Text("Respuesta incorrecta");
        Errores += 1;
    }
    // The second padding is as many blanks as the number has digits, on purpose.
    const std::string errores = std::to_string(Errores.Valor());
    tbResultados.Text("Ejercicios: " + numeros::Alineado(Ejercicios.Valor(), 3) +
                      "; Errores: " + std::string(errores.size(), ' ') + errores + ".");
}

void FormSeries::Command2_Click(int Index)
{
    constexpr std::array acciones{&FormSeries::Continuar, &FormSeries::Borrar, &FormSeries::VerSolucion};
    (this->*acciones.at(static_cast<std::size_t>(Index)))();
    Text1[PosicionHueco.Valor()].SetFocus();
}

void FormSeries::Text1_Change(int Index)
{
    Proteger(Text1[Index], NumeradoresSerie);
}

void FormSeries::Text2_Change(int Index)
{
    Proteger(Text2[Index], DenominadoresSerie);
}

KeyResult FormSeries::Text1_KeyPress(int, int KeyAscii)
{
    Text3.Text("");
    if (KeyAscii != ui::KeyAscii::Enter) {
        return KeyResult::Pass;
    }
    Command1_Click();
    return KeyResult::Swallow;
}

KeyResult FormSeries::Text2_KeyPress(int Index, int KeyAscii)
{
    return Text1_KeyPress(Index, KeyAscii);
}

void FormSeries::MnuOpcDifLis_Click(int Index)
{
    MnuOpcDifLis[Index].Check();
    CodigoDificultad = 10 * (Index / 2 + 1) + Index % 2 + 1;
    solucionVista = false;
    Text1[PosicionHueco.Valor()].SetFocus();
}

void FormSeries::MnuOpcTipLis_Click(int Index)
{
    MnuOpcTipLis[Index].Check();
    SoloSeleccionado = Index == 0;
    NuevaSerie();
    TellExercise();
    Text1[PosicionHueco.Valor()].SetFocus();
}

void FormSeries::MnuOpcSal_Click()
{
    close();
}

void FormSeries::NuevaSerie()
{
    const int elegido = CodigoDificultad.Valor() / 10;
    const int letra = CodigoDificultad.Valor() % 10;
    if (SoloSeleccionado) {
        GenerarSerie(elegido, letra);
        return;
    }
    const int nivel = ui::Draw(elegido, 1);
    GenerarSerie(nivel, nivel < elegido || letra == 2 ? ui::Draw(2, 1) : 1);
}

// Where a term comes out negative there is no new series, and the one on view stays, on purpose.
void FormSeries::GenerarSerie(int nivel, int subnivel)
{
    std::optional<Serie> a;
    std::optional<Serie> b;
    switch (nivel) {
    case 1:
        a.emplace().fill(ui::Draw(15, 1));
        b = Aritmetica();
        break;
    case 2:
        a = Aritmetica();
        b = Aritmetica();
        break;
    case 3:
        a = Aritmetica();
        b = DePasoVariable(4);
        break;
    default:
        a = DePasoVariable(0);
        if (a) {
            b = DePasoVariable(0);
        }
        break;
    }
    if (a && b) {
        TerminosA = *a;
        TerminosB = *b;
        MostrarSerie(subnivel);
    }
}

void FormSeries::MostrarSerie(int subnivel)
{
    // Presentations 1 and 2: one run above the other throughout. 3 and 4: every second term upside down.
    const int presentacion = subnivel == 0 ? ui::Draw(4, 1) : ui::Draw(2, 2 * subnivel - 1);
    for (std::size_t i = 0; i < terminos; ++i) {
        const bool deB = (presentacion % 2 == 0) != (presentacion > 2 && i % 2 == 1);
        NumeradoresSerie.at(i) = (deB ? TerminosB : TerminosA).at(i);
        DenominadoresSerie.at(i) = (deB ? TerminosA : TerminosB).at(i);
    }
    const int k = 3 + CodigoDificultad.Valor() / 10; // by the level chosen, not by the one drawn
    PosicionHueco = k;
    for (int i = 0; i < k; ++i) {
        Text1[i].Text(NumeradoresSerie.at(i).Valor());
        Text2[i].Text(DenominadoresSerie.at(i).Valor());
    }
    Borrar();
    for (int i = 0; i < terminos; ++i) {
        if (i == k + 1 && Text1[k].IsVisible()) { // not yet while the screen loads
            Text1[k].SetFocus();                  // before the box in focus goes, and the focus wanders
        }
        Text1[i].Visible(i <= k);
        Text2[i].Visible(i <= k);
        Line1[i].Visible(i <= k);
    }
}

std::string FormSeries::EnPalabras(int termino) const
{
    return lenguaje::FraccionEnLetras(NumeradoresSerie.at(termino).Valor(), DenominadoresSerie.at(termino).Valor());
}

void FormSeries::Continuar()
{
    Text3.Text("");
    solucionVista = false;
    NuevaSerie();
    TellExercise(); // also where it is the old one, or the key would seem to have failed
}

void FormSeries::Borrar()
{
    Text1[PosicionHueco.Valor()].Text("");
    Text2[PosicionHueco.Valor()].Text("");
}

void FormSeries::VerSolucion()
{
    const int k = PosicionHueco.Valor();
    Text3.Text("");
    Text1[k].Text(NumeradoresSerie.at(k).Valor());
    Text2[k].Text(DenominadoresSerie.at(k).Valor());
    solucionVista = true;
    Tell(EnPalabras(k));
}

void FormSeries::Proteger(ui::TextBox& termino, const Serie& serie) const
{
    if (termino.Index() >= PosicionHueco.Valor()) {
        return;
    }
    const std::string correcto = std::to_string(serie.at(termino.Index()).Valor());
    if (termino.Text() != correcto) {
        termino.Text(correcto);
        termino.Say(); // or else the key would sound as if it had done something
    }
}

} // namespace ejercicios
