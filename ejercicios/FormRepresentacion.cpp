#include "FormRepresentacion.h"

#include "Lectura.h"
#include "Marcador.h"
#include "Random.h"

#include <algorithm>
#include <array>

namespace ejercicios {

namespace {

using enum ui::Kind;
using lenguaje::Variante;
using numeros::Entero16;
using ui::Alignment;
using ui::Color;
using ui::Coloring;
using ui::Speaking;

constexpr int numeroPartes = 10;

constexpr ui::ControlDesign Cifra(int index, std::string_view says, int top, int tab)
{
    return {.name = "Text2",
            .index = index,
            .text = "10",
            .says = says,
            .place = {1750, top, 500, 500},
            .tab = tab,
            .alignment = Alignment::Center,
            .points = 20.25};
}

constexpr ui::ControlDesign Palabra(int index, std::string_view text, std::string_view says, int top, int tab)
{
    return {.name = "Text3",
            .index = index,
            .text = text,
            .says = says,
            .place = {2750, top, 2000, 500},
            .tab = tab,
            .speaking = Speaking::Spoken,
            .coloring = Coloring::Selection,
            .points = 15.75};
}

constexpr ui::ControlDesign Rotulo(int index, std::string_view text, int top, int tab)
{
    return {.kind = Label,
            .name = "Label1",
            .index = index,
            .text = text,
            .place = {1250, top, 3285, 405},
            .tab = tab,
            .points = 18};
}

constexpr ui::ControlDesign fijos[]{
    {.kind = MultiLine,
     .name = "Text1",
     .text = "Escribe el número de partes a realizar y colorea las \r\n"
             "partes necesarias haciendo click en ellas.\r\n",
     .says = "Instrucciones",
     .keys = "F4 dice el marcador.",
     .place = {250, 100, 6000, 700},
     .tab = 0},
    Cifra(0, "Numerador", 900, 1),
    {.kind = Line, .name = "Line1", .place = {1750, 1435, 500, 30}},
    Cifra(1, "Denominador", 1500, 2),
    Palabra(0, "diez", "Numerador en palabras", 900, 3),
    Palabra(1, "décimos", "Denominador en palabras", 1500, 4),
    Rotulo(1, "P&artes coloreadas:", 2100, 7),
    {.name = "Text4",
     .index = 1,
     .text = "0",
     .says = "Partes coloreadas",
     .place = {4535, 2100, 715, 405},
     .tab = 8,
     .alignment = Alignment::Center},
    Rotulo(0, "&Partes en total:", 2600, 5),
    {.name = "Text4",
     .index = 0,
     .says = "Partes en total",
     .place = {4535, 2600, 715, 405},
     .tab = 6,
     .typing = ui::Typing::Editable,
     .alignment = Alignment::Center},
    {.kind = Picture, .name = "Picture1", .place = {1250, 3100, 4000, 2400}},
    ui::ButtonDesign("Command1", ui::noIndex, "&Hecho", {2500, 5500, 1500, 495}, 20, Color::Yellow),
    {.name = "Text5",
     .says = "Mensajes",
     .place = {2250, 6100, 2000, 500},
     .tab = 21,
     .speaking = Speaking::Spoken,
     .coloring = Coloring::Selection,
     .points = 9.75},
    ui::ButtonDesign("Command2", 0, "&Continuar", {2500, 6700, 1500, 500}, 22, Color::Cyan),
    ui::ButtonDesign("Command2", 1, "&Borrar", {500, 6700, 1500, 500}, 23, Color::Green),
    ui::ButtonDesign("Command2", 2, "&Ver solución", {4500, 6700, 1500, 500}, 24, Color::Red),
    {.name = "tbResultados",
     .text = "Ejercicios:  0; Errores:  0",
     .says = "Marcador",
     .place = {1750, 7500, 3000, 495},
     .tab = 25,
     .speaking = Speaking::Score},
};

constexpr auto controles = [] {
    std::array<ui::ControlDesign, std::size(fijos) + numeroPartes> todos;
    auto* next = std::ranges::copy(fijos, todos.begin()).out;
    for (int i = 0; i < numeroPartes; ++i) {
        *next = ui::ButtonDesign("CbParte", i, "1", {0, 0, 1215, 495}, 10 + i, Color::Green);
        next++->inside = "Picture1";
    }
    return todos;
}();

constexpr ui::MenuDesign menus[]{
    {0, "MnuOpc", ui::noIndex, "&Opciones"},
    {1, "MnuOpcLee", ui::noIndex, "&Leer fracción", ui::Checking::None, 3},
    {1, "MnuOpcSal", ui::noIndex, "&Salir Alt-F4"},
};

// Strips for 1, 2, 3, 5 and 7 parts, else two columns, and three for 9.
constexpr int Columnas(int partes)
{
    switch (partes) {
    case 4:
    case 6:
    case 8:
    case 10:
        return 2;
    case 9:
        return 3;
    default:
        return 1;
    }
}

} // namespace

FormRepresentacion::FormRepresentacion()
    : Form({.name = "FormRepresentacion",
            .caption = "Representación gráfica de fracciones",
            .width = 6375,
            .height = 8190,
            .controls = controles,
            .menus = menus})
{
    for (ui::TextBox& box : Text4) {
        box.OnChange = [this](int Index) { Text4_Change(Index); };
    }
    CbParte.OnClick(this, &FormRepresentacion::CbParte_Click);
    The<ui::Button>("Command1").OnClick = [this](int) { Command1_Click(); };
    Command2.OnClick(this, &FormRepresentacion::Command2_Click);
    The<ui::MenuItem>("MnuOpcLee").OnClick = [this](int) { MnuOpcLee_Click(); };
    The<ui::MenuItem>("MnuOpcSal").OnClick = [this](int) { MnuOpcSal_Click(); };
}

void FormRepresentacion::Form_Load()
{
    ui::Randomize(ui::TimeOfDaySeed());
    NuevaFraccion();
    CrearPartes();
    DistribuirPartes(numeroPartes);
}

void FormRepresentacion::CbParte_Click(int Index)
{
    const bool verde = CbParte[Index].Caption().find("erde") != std::string::npos;
    PonerParte(Index, verde);
    PartesColoreadas += verde ? 1 : -1;
    Text4[1].Text(PartesColoreadas.Valor());
    CbParte[Index].SayWith("partes coloreadas: " + Text4[1].Text());
}

// Only the two boxes are looked at, not which parts are red.
void FormRepresentacion::Command1_Click()
{
    const bool correcta = Text4[0].Number() == Denominador.Valor() && Text4[1].Number() == Numerador.Valor();
    if (puntuable) {
        Ejercicios += 1;
        if (correcta) {
            puntuable = false;
        } else {
            Errores += 1; // and again with every further wrong answer
        }
    }
    tbResultados.Text(lenguaje::Marcador(Ejercicios.Valor(), Errores.Valor()));
    if (correcta) {
        Command2[0].SetFocus();
    }
    Text5.Text(lenguaje::ConBlancoSiRepite(correcta ? "Respuesta correcta" : "Respuesta incorrecta", Text5.Text()));
}

void FormRepresentacion::Command2_Click(int Index)
{
    constexpr std::array acciones{&FormRepresentacion::Continuar, &FormRepresentacion::Borrar,
                                  &FormRepresentacion::VerSolucion};
    (this->*acciones.at(static_cast<std::size_t>(Index)))();
}

// A correction runs this again inside itself; the outer run then finds the same value.
void FormRepresentacion::Text4_Change(int Index)
{
    if (Index != 0 || Text4[0].Number() == 0) {
        return;
    }
    if (Text4[0].Number() < 0) {
        Corregir(1);
    }
    if (!(Text4[0].Number() <= numeroPartes)) { // beyond all measure a number is not even greater
        Corregir(numeroPartes);
    }
    PonerPartes(0);
    PartesColoreadas = 0;
    Text4[1].Text("0");
    DistribuirPartes(Entero16::Redondeado(Text4[0].Number()));
}

void FormRepresentacion::MnuOpcLee_Click()
{
    Text3[0].Text(lenguaje::ConBlancoSiRepite(NumeradorEnLetras(), Text3[0].Text()));
    Text3[1].Text(lenguaje::ConBlancoSiRepite(DenominadorEnLetras(), Text3[1].Text()));
}

void FormRepresentacion::MnuOpcSal_Click()
{
    close();
}

void FormRepresentacion::NuevaFraccion()
{
    const int a = ui::Draw(10, 1);
    const int b = ui::Draw(9, 2);
    Numerador = std::min(a, b);
    Denominador = std::max(a, b);
    Text2[0].Text(Numerador.Valor());
    Text2[1].Text(Denominador.Valor());
    Text3[0].Text(NumeradorEnLetras());
    Text3[1].Text(DenominadorEnLetras());
}

// The picture at opening is a sample: every other part red.
void FormRepresentacion::CrearPartes()
{
    for (int i = 0; i < numeroPartes; ++i) {
        PonerParte(i, i % 2 == 0);
    }
}

void FormRepresentacion::DistribuirPartes(const Entero16& n)
{
    const int partes = n.Valor();
    const int columnas = Columnas(partes);
    const int filas = partes / columnas;
    for (int i = 0; i < numeroPartes; ++i) {
        CbParte[i].Visible(i < partes);
        if (i < partes) {
            CbParte[i].Move(Picture1.Cell(columnas, filas, i / filas, i % filas));
        }
    }
}

void FormRepresentacion::PonerParte(int indice, bool roja)
{
    CbParte[indice].Caption(std::to_string(indice + 1) + (roja ? " - rojo" : " - verde"));
    CbParte[indice].BackColor(roja ? Color::Red : Color::Green);
}

// The first `rojas` parts red, the others green.
void FormRepresentacion::PonerPartes(int rojas)
{
    for (int i = 0; i < numeroPartes; ++i) {
        PonerParte(i, i < rojas);
    }
}

void FormRepresentacion::Corregir(int partes)
{
    Text4[0].Text(partes);
    Text4[0].Refuse();
}

void FormRepresentacion::Continuar()
{
    puntuable = true;
    Text5.Text("");
    Text4[1].Text("0");
    Text4[0].Text("");
    Text4[0].SetFocus();
    NuevaFraccion();
}

void FormRepresentacion::Borrar()
{
    Text4[0].Text("");
    Text4[1].Text("0");
    PonerPartes(0);
    Text4[0].SetFocus();
}

void FormRepresentacion::VerSolucion()
{
    Text4[0].Text(Denominador.Valor());
    PonerPartes(Numerador.Valor());
    Text4[1].Text(Numerador.Valor());
    Text4[0].SelectAll();
    Text4[1].SelectAll();
    puntuable = false;
    Text4[0].SetFocus();
}

std::string FormRepresentacion::NumeradorEnLetras() const
{
    return lenguaje::EnLetrasSolo(Numerador.Valor());
}

std::string FormRepresentacion::DenominadorEnLetras() const
{
    return lenguaje::EnLetras(Denominador.Valor(), true, Variante::Entera) + (Numerador.Valor() >= 2 ? "s" : "");
}

} // namespace ejercicios
