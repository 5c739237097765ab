#include "FormSeries.h"

#include "Azar.h"
#include "Clock.h"
#include "Filas.h"
#include "Keys.h"
#include "Lectura.h"

namespace ejercicios {

namespace {

using enum ui::Kind;
using reglas::terminos;
using ui::Alignment;
using ui::Checking;
using ui::KeyResult;
using ui::Typing;
using ui::Weight;

// A numerator or denominator of a term. Eight columns and nine gaps share the width as two to one.
constexpr ui::ControlDesign Termino(std::string_view name, int index, std::string_view nombre, int top, int tab)
{
    return {.name = name,
            .index = index,
            .accessibleName = nombre,
            .place = {600 + index * 13000 / 9, top, 1000, 600},
            .tab = tab,
            .typing = Typing::Editable,
            .alignment = Alignment::Center,
            .weight = Weight::Bold};
}

constexpr ui::ControlDesign fijos[]{
    {.name = "TbInstruc",
     .text = "Completa la serie",
     .accessibleName = "Instrucciones",
     .keys = "F3 repite el ejercicio. F4 dice el marcador.",
     .place = {3500, 200, 5000, 465},
     .tab = 0,
     .alignment = Alignment::Center,
     .font = "Verdana",
     .points = 14.25,
     .weight = Weight::Bold},
    comun::Hecho({5250, 2800, 1500, 495}, 17),
    comun::Centrada(comun::Mensajes("Text3", {4500, 3450, 3000, 500}, 18)),
    comun::BotonContinuar({5250, 4100, 1500, 500}, 19),
    comun::BotonBorrar({3600, 4100, 1500, 500}, 20),
    comun::BotonVerSolucion({6900, 4100, 1500, 500}, 21),
    comun::LineaMarcador({0, 5300, 3000, 495}, 22, 12),
};

constexpr std::array<std::string_view, terminos> numeradores{
    "Numerador del término 1", "Numerador del término 2", "Numerador del término 3", "Numerador del término 4",
    "Numerador del término 5", "Numerador del término 6", "Numerador del término 7", "Numerador del término 8"};
constexpr std::array<std::string_view, terminos> denominadores{
    "Denominador del término 1", "Denominador del término 2", "Denominador del término 3", "Denominador del término 4",
    "Denominador del término 5", "Denominador del término 6", "Denominador del término 7", "Denominador del término 8"};

constexpr auto controles = comun::ConFilas<terminos>(fijos, [](int i) {
    const ui::ControlDesign encima = Termino("Text1", i, numeradores[i], 1000, 1 + 2 * i);
    const ui::Place raya{encima.place.left, 1635, 1000, 30};
    return std::array{encima, ui::ControlDesign{.kind = Line, .name = "Line1", .index = i, .place = raya},
                      Termino("Text2", i, denominadores[i], 1700, 2 + 2 * i)};
});

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

} // namespace

FormSeries::FormSeries()
    : Ejercicio({.name = "FormSeries",
                 .caption = "Completa la serie",
                 .width = 12000,
                 .height = 5895,
                 .controls = controles,
                 .menus = menus})
{
    OnChange("Text1", &FormSeries::Text1_Change);
    OnChange("Text2", &FormSeries::Text2_Change);
    OnKeyPress("Text1", &FormSeries::Text1_KeyPress);
    OnKeyPress("Text2", &FormSeries::Text2_KeyPress);
    OnClick("Command1", &FormSeries::Command1_Click);
    OnClick("MnuOpcDifLis", &FormSeries::MnuOpcDifLis_Click);
    OnClick("MnuOpcTipLis", &FormSeries::MnuOpcTipLis_Click);
}

void FormSeries::Form_Load()
{
    numeros::Sembrar(ui::TimeOfDaySeed());
    NuevaSerie(); // of level 1, so that there is one
}

std::string FormSeries::Exercise() const
{
    return lenguaje::FraccionesEnLetras(m_serie.Primeros(PosicionHueco)) + "; falta el término " +
           std::to_string(PosicionHueco + 1);
}

// The term itself is asked for, not its value.
void FormSeries::Command1_Click()
{
    const auto [numerador, denominador] = m_serie.Termino(PosicionHueco);
    if (Text1[PosicionHueco].Number() == numerador.Valor() && Text2[PosicionHueco].Number() == denominador.Valor()) {
        Text3.Text("Respuesta correcta");
        if (!solucionVista) {
            Ejercicios += 1; // and again with every further check
        }
        Command2[0].SetFocus();
    } else {
        Text3.Text("Respuesta incorrecta");
        Errores += 1;
    }
    tbResultados.Text(lenguaje::MarcadorDeSerie(Ejercicios.Valor(), Errores.Valor()));
}

void FormSeries::Command2_Click(int Index)
{
    Ejercicio::Command2_Click(Index);
    Text1[PosicionHueco].SetFocus();
}

void FormSeries::Text1_Change(int Index)
{
    Proteger(Text1[Index], m_serie.NumeradoresSerie);
}

void FormSeries::Text2_Change(int Index)
{
    Proteger(Text2[Index], m_serie.DenominadoresSerie);
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
    m_nivel = reglas::NivelDe(Index);
    solucionVista = false;
    Text1[PosicionHueco].SetFocus();
}

void FormSeries::MnuOpcTipLis_Click(int Index)
{
    SoloSeleccionado = Index == 0;
    NuevaSerie();
    TellExercise();
    Text1[PosicionHueco].SetFocus();
}

void FormSeries::NuevaSerie()
{
    GenerarSerie(SoloSeleccionado ? m_nivel : reglas::SortearNivel(m_nivel));
}

// Where there is none the one on view stays.
void FormSeries::GenerarSerie(const reglas::Nivel& nivel)
{
    if (const auto serie = reglas::SortearSerie(nivel)) {
        m_serie = *serie;
        MostrarSerie();
    }
}

void FormSeries::MostrarSerie()
{
    PosicionHueco = reglas::TerminosMostrados(m_nivel); // of the level chosen, not of the one drawn
    for (int i = 0; i < PosicionHueco; ++i) {
        Text1[i].Text(m_serie.Termino(i).numerador);
        Text2[i].Text(m_serie.Termino(i).denominador);
    }
    Borrar();
    for (int i = 0; i < terminos; ++i) {
        if (i == PosicionHueco + 1 && Text1[PosicionHueco].IsVisible()) { // not yet while the screen loads
            Text1[PosicionHueco].SetFocus(); // before the box in focus goes, and the focus wanders
        }
        Text1[i].Visible(i <= PosicionHueco);
        Text2[i].Visible(i <= PosicionHueco);
        Line1[i].Visible(i <= PosicionHueco);
    }
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
    Text1[PosicionHueco].Text("");
    Text2[PosicionHueco].Text("");
}

void FormSeries::VerSolucion()
{
    const auto [numerador, denominador] = m_serie.Termino(PosicionHueco);
    Text3.Text("");
    Text1[PosicionHueco].Text(numerador);
    Text2[PosicionHueco].Text(denominador);
    solucionVista = true;
    Tell(lenguaje::FraccionEnLetras({numerador, denominador}));
}

void FormSeries::Proteger(ui::TextBox& termino, const reglas::Numeros& numeros) const
{
    if (termino.Index() >= PosicionHueco) {
        return;
    }
    const std::string correcto = std::to_string(numeros.at(termino.Index()));
    if (termino.Text() != correcto) {
        termino.Text(correcto);
        termino.Say(); // or else the key would sound as if it had done something
    }
}

} // namespace ejercicios
