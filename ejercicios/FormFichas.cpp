#include "FormFichas.h"

#include "Keys.h"
#include "Lectura.h"
#include "Random.h"

#include <algorithm>

namespace ejercicios {

namespace {

using enum ui::Kind;
using ui::Alignment;
using ui::Color;
using ui::Coloring;
using ui::KeyResult;
using ui::Speaking;
using ui::Typing;

constexpr int numeroFichas = 25;

constexpr ui::ControlDesign Marco(int index, std::string_view caption, int left, Color color)
{
    return {.kind = Frame,
            .name = "Frame1",
            .index = index,
            .text = caption,
            .place = {left, 1100, 1400, 1800},
            .color = color};
}

constexpr ui::ControlDesign Caja(int index, std::string_view says, std::string_view marco)
{
    return {.name = "TBFrac",
            .index = index,
            .says = says,
            .place = {400, index % 2 == 0 ? 450 : 1150, 600, 500},
            .tab = 1 + index,
            .inside = marco,
            .typing = Typing::Editable,
            .alignment = Alignment::Center,
            .points = 15};
}

constexpr ui::ControlDesign Raya(int index, std::string_view marco)
{
    return {.kind = Line, .name = "Line1", .index = index, .place = {400, 1035, 600, 30}, .inside = marco};
}

constexpr ui::ControlDesign fijos[]{
    {.kind = MultiLine,
     .name = "Text1",
     .text = "Expresa con una fracción la parte que representa cada color\r\n",
     .says = "Instrucciones",
     .keys = "L repite el ejercicio. F4 dice el marcador.",
     .place = {250, 200, 4500, 800},
     .tab = 0},
    {.kind = Picture, .name = "Picture1", .place = {5100, 1200, 3800, 4800}},
    Marco(0, "ROJO", 250, Color::Red),
    Marco(1, "AMARILLO", 1800, Color::Yellow),
    Marco(2, "VERDE", 3350, Color::Green),
    Caja(0, "Numerador rojo", "Frame1(0)"),
    Raya(0, "Frame1(0)"),
    Caja(1, "Denominador rojo", "Frame1(0)"),
    Caja(2, "Numerador amarillo", "Frame1(1)"),
    Raya(1, "Frame1(1)"),
    Caja(3, "Denominador amarillo", "Frame1(1)"),
    Caja(4, "Numerador verde", "Frame1(2)"),
    Raya(2, "Frame1(2)"),
    Caja(5, "Denominador verde", "Frame1(2)"),
    ui::ButtonDesign("Command1", ui::noIndex, "&Hecho", {1500, 3000, 2000, 350}, 7, Color::Yellow),
    {.name = "TBResultado",
     .says = "Mensajes",
     .place = {500, 3500, 4000, 400},
     .tab = 8,
     .speaking = Speaking::Spoken,
     .coloring = Coloring::Selection,
     .font = "Arial Narrow"},
    ui::ButtonDesign("Command2", 0, "&Continuar", {1750, 4100, 1500, 350}, 9, Color::Cyan),
    ui::ButtonDesign("Command2", 1, "&Borrar", {250, 4100, 1500, 350}, 10, Color::Green),
    ui::ButtonDesign("Command2", 2, "&Ver solución", {3250, 4100, 1500, 350}, 11, Color::Red),
    {.kind = Label,
     .name = "Label2",
     .text = "Ejercicios: 0. Errores: 0.",
     .place = {250, 4700, 4500, 350},
     .speaking = Speaking::Score},
    {.kind = Label, .name = "Label1", .place = {250, 5200, 4500, 700}, .speaking = Speaking::Spoken},
};

// One token more than the largest board has: it is never shown.
constexpr auto controles = [] {
    std::array<ui::ControlDesign, std::size(fijos) + numeroFichas + 1> todos;
    auto* next = std::ranges::copy(fijos, todos.begin()).out;
    for (int i = 0; i <= numeroFichas; ++i) {
        *next = ui::ButtonDesign("CBFicha", i, "", {0, 0, 225, 225}, 12 + i, Color::Red);
        next++->inside = "Picture1";
    }
    for (ui::ControlDesign& control : todos) {
        if (control.name != "TBResultado") {
            control.font = "Comic Sans MS";
        }
    }
    return todos;
}();

} // namespace

FormFichas::FormFichas()
    : Form({.name = "FormFichas",
            .caption = "Expresa con fracciones",
            .width = 9150,
            .height = 6255,
            .controls = controles})
{
    The<ui::Button>("Command1").OnClick = [this](int) { Command1_Click(); };
    Command2.OnClick(this, &FormFichas::Command2_Click);
}

void FormFichas::Form_Load()
{
    ui::Randomize(ui::TimerSeed());
    CBFicha[numeroFichas].Visible(false);
    DibujarFichas(true);
}

KeyResult FormFichas::Form_KeyDown(int KeyCode, int)
{
    if (KeyCode != ui::KeyCode::L) {
        return KeyResult::Pass;
    }
    LetrasVisibles = !LetrasVisibles;
    DibujarFichas(false);
    return KeyResult::Share;
}

void FormFichas::Command1_Click()
{
    const std::array<int, 6> solucion = Solucion();
    int aciertos = 0;
    for (const ui::TextBox& box : TBFrac) {
        aciertos += box.Number() == solucion.at(static_cast<std::size_t>(box.Index())) ? 1 : 0;
    }
    if (!resuelto) {
        Ejercicios += 1; // with every check, right or wrong, on purpose
    }
    std::string_view veredicto = "Respuesta correcta";
    if (aciertos == TBFrac.Count()) {
        Command2[0].SetFocus();
    } else {
        veredicto = aciertos == 0 ? "Respuesta incorrecta" : "Hay algunos valores incorrectos en la respuesta ";
        Errores += 1;
    }
    TBResultado.Text(lenguaje::ConBlancoDelanteSiRepite(veredicto, TBResultado.Text()));
    Label2.Caption("Ejercicios: " + std::to_string(Ejercicios.Valor()) +
                   ". Errores: " + std::to_string(Errores.Valor()) + ".");
}

void FormFichas::Command2_Click(int Index)
{
    constexpr std::array acciones{&FormFichas::Continuar, &FormFichas::VaciarRespuesta, &FormFichas::VerSolucion};
    (this->*acciones.at(static_cast<std::size_t>(Index)))();
    TBFrac[0].SetFocus();
}

void FormFichas::DibujarFichas(bool nuevo)
{
    resuelto = false; // also where only the letters come or go, on purpose
    if (nuevo) {
        NuevasCantidades();
    }
    for (int i = 0; i < numeroFichas; ++i) {
        PonerFicha(i);
    }
    Label1.Caption("Rojas: " + std::to_string(Rojas.Valor()) + "; Amarillas: " + std::to_string(Amarillas.Valor()) +
                   "; Verdes: " + std::to_string(Verdes.Valor()) + "; Total: " + std::to_string(Total.Valor()) + ".");
}

// A board of at least three tokens, and at least one of each colour.
void FormFichas::NuevasCantidades()
{
    do {
        Columnas = ui::Draw(5, 1);
        Filas = ui::Draw(5, 1);
        Total = Columnas * Filas;
    } while (Total.Valor() < 3);
    Rojas = ui::Draw(Total.Valor() - 2, 1);
    Amarillas = ui::Draw((Total - Rojas).Valor() - 1, 1);
    Verdes = Total - Rojas - Amarillas;
}

// Row by row: the red ones, the yellow ones, the green ones.
void FormFichas::PonerFicha(int indice)
{
    ui::Button& ficha = CBFicha[indice];
    const int columnas = Columnas.Valor();
    const bool seVe = indice < Total.Valor();
    ficha.Enabled(seVe);
    ficha.Visible(seVe);
    if (!seVe) {
        ficha.Move({Picture1.ScaleWidth(), Picture1.ScaleHeight(), 225, 225});
        return;
    }
    ficha.Move(Picture1.Cell(columnas, Filas.Valor(), indice % columnas, indice / columnas));

    const Aspecto& aspecto = AspectoDe(indice);
    ficha.BackColor(aspecto.color);
    ficha.Caption(LetrasVisibles ? aspecto.letra : "");
    ficha.Says(std::string(aspecto.nombre) + " " +
               std::to_string(indice + 1)); // the colour is told with and without letters
}

const FormFichas::Aspecto& FormFichas::AspectoDe(int indice) const
{
    static constexpr Aspecto roja{Color::Red, "R", "ficha roja"};
    static constexpr Aspecto amarilla{Color::Yellow, "A", "ficha amarilla"};
    static constexpr Aspecto verde{Color::Green, "V", "ficha verde"};
    if (indice < Rojas.Valor()) {
        return roja;
    }
    return indice < (Rojas + Amarillas).Valor() ? amarilla : verde;
}

void FormFichas::Continuar()
{
    DibujarFichas(true);
    VaciarRespuesta();
}

void FormFichas::VaciarRespuesta()
{
    for (ui::TextBox& box : TBFrac) {
        box.Text("");
    }
}

void FormFichas::VerSolucion()
{
    const std::array<int, 6> solucion = Solucion();
    for (ui::TextBox& box : TBFrac) {
        box.Text(solucion.at(static_cast<std::size_t>(box.Index())));
    }
    resuelto = true;
}

std::array<int, 6> FormFichas::Solucion() const
{
    const int total = Total.Valor();
    return {Rojas.Valor(), total, Amarillas.Valor(), total, Verdes.Valor(), total};
}

} // namespace ejercicios
