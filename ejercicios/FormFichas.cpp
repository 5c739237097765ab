#include "FormFichas.h"

#include "Azar.h"
#include "Clock.h"
#include "Escribir.h"
#include "Filas.h"
#include "Keys.h"

namespace ejercicios {

namespace {

using enum ui::Kind;
using ui::Alignment;
using ui::Color;
using ui::KeyResult;
using ui::Speaking;
using ui::Typing;

constexpr int numeroFichas = reglas::Tablero::maximo;

constexpr ui::ControlDesign Marco(int index, std::string_view caption, int left, Color color)
{
    return {.kind = Frame,
            .name = "Frame1",
            .index = index,
            .text = caption,
            .place = {left, 1100, 1400, 1800},
            .color = color};
}

constexpr ui::ControlDesign Caja(int index, std::string_view nombre, std::string_view marco)
{
    return {.name = "TBFrac",
            .index = index,
            .accessibleName = nombre,
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
    comun::Instrucciones("Text1", "Expresa con una fracción la parte que representa cada color\r\n",
                         "L repite el ejercicio. F4 dice el marcador.", {250, 200, 4500, 800}),
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
    comun::Hecho({1500, 3000, 2000, 350}, 7),
    comun::EnTipo(comun::Mensajes("TBResultado", {500, 3500, 4000, 400}, 8), "Arial Narrow"),
    comun::BotonContinuar({1750, 4100, 1500, 350}, 9),
    comun::BotonBorrar({250, 4100, 1500, 350}, 10),
    comun::BotonVerSolucion({3250, 4100, 1500, 350}, 11),
    {.kind = Label,
     .name = "Label2",
     .text = "Ejercicios: 0. Errores: 0.",
     .place = {250, 4700, 4500, 350},
     .speaking = Speaking::Score},
    {.kind = Label, .name = "Label1", .place = {250, 5200, 4500, 700}, .speaking = Speaking::Spoken},
};

// One token more than the largest board has: it is never shown.
constexpr auto controles = [] {
    auto todos = comun::ConFilas<numeroFichas + 1>(fijos, [](int i) {
        auto ficha = ui::ButtonDesign("CBFicha", i, "", {0, 0, 225, 225}, 12 + i, Color::Red);
        ficha.accessibleName = "ficha"; // until its colour is known
        return std::array{comun::Dentro("Picture1", ficha)};
    });
    for (ui::ControlDesign& control : todos) {
        if (control.name != "TBResultado") {
            control.font = "Comic Sans MS";
        }
    }
    return todos;
}();

// How a token looks and what it says.
struct Aspecto
{
    Color color;
    std::string_view letra;
    std::string_view nombre;
};

constexpr Aspecto AspectoDe(reglas::ColorFicha color)
{
    switch (color) {
    case reglas::ColorFicha::Rojo:
        return {Color::Red, "R", "ficha roja "};
    case reglas::ColorFicha::Amarillo:
        return {Color::Yellow, "A", "ficha amarilla "};
    case reglas::ColorFicha::Verde:
        break;
    }
    return {Color::Green, "V", "ficha verde "};
}

} // namespace

FormFichas::FormFichas()
    : Ejercicio({.name = "FormFichas",
                 .caption = "Expresa con fracciones",
                 .width = 9150,
                 .height = 6255,
                 .controls = controles})
{
    OnClick("Command1", &FormFichas::Command1_Click);
}

void FormFichas::Form_Load()
{
    numeros::Sembrar(ui::TimerSeed());
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
    const int aciertos = comun::Aciertos(TBFrac, m_tablero.Solucion());
    if (!resuelto) {
        Ejercicios += 1; // with every check, right or wrong
    }
    std::string_view veredicto = "Respuesta correcta";
    if (aciertos == TBFrac.Count()) {
        Command2[0].SetFocus();
    } else {
        veredicto = aciertos == 0 ? "Respuesta incorrecta" : "Hay algunos valores incorrectos en la respuesta ";
        Errores += 1;
    }
    comun::EscribirOtraVezDelante(TBResultado, veredicto);
    Label2.Caption(lenguaje::MarcadorDeFichas(Ejercicios.Valor(), Errores.Valor()));
}

void FormFichas::Command2_Click(int Index)
{
    Ejercicio::Command2_Click(Index);
    TBFrac[0].SetFocus();
}

void FormFichas::DibujarFichas(bool nuevo)
{
    resuelto = false; // also where only the letters come or go
    if (nuevo) {
        m_tablero = reglas::Tablero::Sortear();
    }
    for (int i = 0; i < numeroFichas; ++i) {
        PonerFicha(i);
    }
    const auto& [Columnas, Filas, Rojas, Amarillas, Verdes] = m_tablero;
    Label1.Caption("Rojas: " + std::to_string(Rojas) + "; Amarillas: " + std::to_string(Amarillas) +
                   "; Verdes: " + std::to_string(Verdes) + "; Total: " + std::to_string(m_tablero.Total()) + ".");
}

void FormFichas::PonerFicha(int indice)
{
    ui::Button& ficha = CBFicha[indice];
    const bool seVe = indice < m_tablero.Total();
    ficha.Enabled(seVe);
    ficha.Visible(seVe);
    if (!seVe) {
        ficha.Move({Picture1.ScaleWidth(), Picture1.ScaleHeight(), 225, 225});
        return;
    }
    const auto [columna, fila] = m_tablero.Celda(indice);
    ficha.Move(Picture1.Cell(m_tablero.Columnas, m_tablero.Filas, columna, fila));

    const Aspecto aspecto = AspectoDe(m_tablero.ColorDe(indice));
    ficha.BackColor(aspecto.color);
    ficha.Caption(LetrasVisibles ? aspecto.letra : "");
    ficha.AccessibleName(std::string(aspecto.nombre) + std::to_string(indice + 1)); // the letters are not always there
}

void FormFichas::Continuar()
{
    DibujarFichas(true);
    Borrar();
}

void FormFichas::Borrar()
{
    for (ui::TextBox& box : TBFrac) {
        box.Text("");
    }
}

void FormFichas::VerSolucion()
{
    comun::EscribirTodas(TBFrac, m_tablero.Solucion());
    resuelto = true;
}

} // namespace ejercicios
