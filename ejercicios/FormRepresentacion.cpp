#include "FormRepresentacion.h"

#include "Azar.h"
#include "Clock.h"
#include "Escribir.h"
#include "Filas.h"
#include "Lectura.h"
#include "Reparto.h"

namespace ejercicios {

namespace {

using enum ui::Kind;
using reglas::maximoPartes;
using ui::Color;

constexpr ui::ControlDesign Caja(std::string_view name, int index, std::string_view text, std::string_view nombre,
                                 const ui::Place& place, int tab)
{
    return {.name = name,
            .index = index,
            .text = text,
            .accessibleName = nombre,
            .place = place,
            .tab = tab,
            .alignment = ui::Alignment::Center,
            .points = name == "Text2" ? 20.25 : 12};
}

constexpr ui::ControlDesign Palabra(int index, std::string_view text, std::string_view nombre, int top, int tab)
{
    return {.name = "Text3",
            .index = index,
            .text = text,
            .accessibleName = nombre,
            .place = {2750, top, 2000, 500},
            .tab = tab,
            .speaking = ui::Speaking::Spoken,
            .coloring = ui::Coloring::Selection,
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
    comun::Instrucciones("Text1",
                         "Escribe el número de partes a realizar y colorea las \r\n"
                         "partes necesarias haciendo click en ellas.\r\n",
                         "F4 dice el marcador.", {250, 100, 6000, 700}),
    Caja("Text2", 0, "10", "Numerador", {1750, 900, 500, 500}, 1),
    {.kind = Line, .name = "Line1", .place = {1750, 1435, 500, 30}},
    Caja("Text2", 1, "10", "Denominador", {1750, 1500, 500, 500}, 2),
    Palabra(0, "diez", "Numerador en palabras", 900, 3),
    Palabra(1, "décimos", "Denominador en palabras", 1500, 4),
    Rotulo(1, "P&artes coloreadas:", 2100, 7),
    Caja("Text4", 1, "0", "Partes coloreadas", {4535, 2100, 715, 405}, 8),
    Rotulo(0, "&Partes en total:", 2600, 5),
    comun::Editable(Caja("Text4", 0, "", "Partes en total", {4535, 2600, 715, 405}, 6)),
    {.kind = Picture, .name = "Picture1", .place = {1250, 3100, 4000, 2400}},
    comun::Hecho({2500, 5500, 1500, 495}, 19),
    comun::EnTipo(comun::Mensajes("Text5", {2250, 6100, 2000, 500}, 20), "Arial", 9.75),
    comun::BotonContinuar({2500, 6700, 1500, 500}, 21),
    comun::BotonBorrar({500, 6700, 1500, 500}, 22),
    comun::BotonVerSolucion({4500, 6700, 1500, 500}, 23),
    comun::LineaMarcador({1750, 7500, 3000, 495}, 24, 12),
};

constexpr auto controles = comun::ConFilas<maximoPartes>(fijos, [](int i) {
    const ui::Place unica{0, 0, 1215, 495}; // until they are laid out
    return std::array{comun::Dentro("Picture1", ui::ButtonDesign("CbParte", i, "1", unica, 9 + i, Color::Green))};
});

constexpr ui::MenuDesign menus[]{
    {0, "MnuOpc", ui::noIndex, "&Opciones"},
    {1, "MnuOpcLee", ui::noIndex, "&Leer fracción", ui::Checking::None, 3},
    {1, "MnuOpcSal", ui::noIndex, "&Salir Alt-F4"},
};

} // namespace

FormRepresentacion::FormRepresentacion()
    : Ejercicio({.name = "FormRepresentacion",
                 .caption = "Representación gráfica de fracciones",
                 .width = 6375,
                 .height = 8190,
                 .controls = controles,
                 .menus = menus})
{
    OnChange("Text4", &FormRepresentacion::Text4_Change);
    OnClick("CbParte", &FormRepresentacion::CbParte_Click);
    OnClick("Command1", &FormRepresentacion::Command1_Click);
    OnClick("MnuOpcLee", &FormRepresentacion::MnuOpcLee_Click);
}

void FormRepresentacion::Form_Load()
{
    numeros::Sembrar(ui::TimeOfDaySeed());
    NuevaFraccion();
    CrearPartes();
    DistribuirPartes(maximoPartes);
}

void FormRepresentacion::CbParte_Click(int Index)
{
    const bool verde = CbParte[Index].Caption().find("erde") != std::string::npos;
    PonerParte(Index, verde);
    PartesColoreadas += verde ? 1 : -1;
    Text4[1].Text(PartesColoreadas);
    CbParte[Index].SayWith("partes coloreadas: " + Text4[1].Text());
}

// Only the two boxes are looked at, not which parts are red.
void FormRepresentacion::Command1_Click()
{
    const bool correcta =
        Text4[0].Number() == m_fraccion.denominador.Valor() && Text4[1].Number() == m_fraccion.numerador.Valor();
    if (puntuable) {
        Ejercicios += 1; // with a wrong answer again and again
        Errores += correcta ? 0 : 1;
        puntuable = !correcta;
    }
    tbResultados.Text(lenguaje::Marcador(Ejercicios.Valor(), Errores.Valor()));
    if (correcta) {
        Command2[0].SetFocus();
    }
    comun::EscribirOtraVez(Text5, correcta ? "Respuesta correcta" : "Respuesta incorrecta");
}

// A correction runs this again inside itself; the outer run then finds the same value.
void FormRepresentacion::Text4_Change(int Index)
{
    if (Index != 0 || Text4[0].Number() == 0) {
        return;
    }
    if (const auto partes = reglas::PartesCorregidas(Text4[0].Number())) {
        Text4[0].Text(*partes);
        Text4[0].Refuse();
    }
    PonerPartes(0);
    PartesColoreadas = 0;
    Text4[1].Text("0");
    DistribuirPartes(numeros::Entero16::Redondeado(Text4[0].Number()));
}

void FormRepresentacion::MnuOpcLee_Click()
{
    const auto [numerador, denominador] = EnLetras();
    comun::EscribirOtraVez(Text3[0], numerador);
    comun::EscribirOtraVez(Text3[1], denominador);
}

void FormRepresentacion::NuevaFraccion()
{
    m_fraccion = reglas::SortearFraccion();
    Text2[0].Text(m_fraccion.numerador);
    Text2[1].Text(m_fraccion.denominador);
    const auto [numerador, denominador] = EnLetras();
    Text3[0].Text(numerador);
    Text3[1].Text(denominador);
}

// The picture at opening is a sample: every other part red.
void FormRepresentacion::CrearPartes()
{
    for (int i = 0; i < maximoPartes; ++i) {
        PonerParte(i, i % 2 == 0);
    }
}

void FormRepresentacion::DistribuirPartes(const numeros::Entero16& n)
{
    const reglas::Rejilla rejilla = reglas::Repartir(n.Valor());
    for (ui::Button& parte : CbParte) {
        const bool seVe = parte.Index() < n.Valor();
        parte.Visible(seVe);
        if (seVe) {
            const auto [columna, fila] = reglas::Celda(rejilla, parte.Index());
            parte.Move(Picture1.Cell(rejilla.columnas, rejilla.filas, columna, fila));
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
    for (int i = 0; i < maximoPartes; ++i) {
        PonerParte(i, i < rojas);
    }
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
    Text4[0].Text(m_fraccion.denominador);
    PonerPartes(m_fraccion.numerador.Valor());
    Text4[1].Text(m_fraccion.numerador);
    Text4[0].SelectAll();
    Text4[1].SelectAll();
    puntuable = false;
    Text4[0].SetFocus();
}

std::array<std::string, 2> FormRepresentacion::EnLetras() const
{
    constexpr lenguaje::Modo modo{lenguaje::Variante::Entera, lenguaje::Singular::HastaUno};
    const int numerador = m_fraccion.numerador.Valor();
    return {lenguaje::EnLetrasSolo(numerador),
            lenguaje::DenominadorEnLetras(numerador, m_fraccion.denominador.Valor(), modo)};
}

} // namespace ejercicios
