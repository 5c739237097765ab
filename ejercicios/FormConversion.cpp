#include "FormConversion.h"

#include "Random.h"

namespace ejercicios {

namespace {

using enum ui::Kind;
using numeros::Entero16;
using ui::Color;

constexpr ui::ControlDesign Raya(int index, std::string_view marco)
{
    const int left = index % 2 == 0 ? 300 : 1400;
    return {.kind = Line, .name = "Line1", .index = index, .place = {left, 1085, 900, 30}, .inside = marco};
}

// A box of a frame: 0 and 1 are the numerators, 2 and 3 the denominators, and the pupil comes first to both boxes of
// the first fraction.
constexpr ui::ControlDesign Caja(std::string_view name, int index, std::string_view says, std::string_view marco,
                                 int tab)
{
    return {.name = name,
            .index = index,
            .says = says,
            .place = {index % 2 == 0 ? 300 : 1400, index < 2 ? 500 : 1200, 900, 500},
            .tab = tab,
            .inside = marco,
            .typing = name == "TBIni" ? ui::Typing::Locked : ui::Typing::Editable,
            .alignment = ui::Alignment::Center,
            .font = name == "TBMedi" ? "Arial" : "Courier New",
            .points = 15};
}

constexpr ui::ControlDesign controles[]{
    {.kind = MultiLine,
     .name = "TBInstruc",
     .text = "Convierte estas fracciones al mismo denominador.\r\n"
             "Escribe primero los cálculos intermedios. \r\n",
     .says = "Instrucciones",
     .place = {250, 200, 8100, 900},
     .tab = 0},
    {.kind = Frame, .name = "Frame1", .text = "Iniciales", .place = {250, 1300, 2600, 2100}},
    Caja("TBIni", 0, "Numerador de la primera fracción inicial", "Frame1", 1),
    Raya(0, "Frame1"),
    Caja("TBIni", 2, "Denominador de la primera fracción inicial", "Frame1", 2),
    Caja("TBIni", 1, "Numerador de la segunda fracción inicial", "Frame1", 3),
    Raya(1, "Frame1"),
    Caja("TBIni", 3, "Denominador de la segunda fracción inicial", "Frame1", 4),
    {.kind = Frame, .name = "Frame2", .text = "Intermedios", .place = {3000, 1300, 2600, 2100}},
    Caja("TBMedi", 0, "Numerador de la primera fracción intermedia", "Frame2", 5),
    Raya(2, "Frame2"),
    Caja("TBMedi", 2, "Denominador de la primera fracción intermedia", "Frame2", 6),
    Caja("TBMedi", 1, "Numerador de la segunda fracción intermedia", "Frame2", 7),
    Raya(3, "Frame2"),
    Caja("TBMedi", 3, "Denominador de la segunda fracción intermedia", "Frame2", 8),
    {.kind = Frame, .name = "Frame3", .text = "Finales", .place = {5750, 1300, 2600, 2100}},
    Caja("TBFin", 0, "Numerador de la primera fracción final", "Frame3", 9),
    Raya(4, "Frame3"),
    Caja("TBFin", 2, "Denominador de la primera fracción final", "Frame3", 10),
    Caja("TBFin", 1, "Numerador de la segunda fracción final", "Frame3", 11),
    Raya(5, "Frame3"),
    Caja("TBFin", 3, "Denominador de la segunda fracción final", "Frame3", 12),
    ui::ButtonDesign("Command1", ui::noIndex, "&Hecho", {3550, 3600, 1500, 495}, 13, Color::Yellow),
    ui::ButtonDesign("Command2", 0, "&Continuar", {3550, 4850, 1500, 500}, 14, Color::Cyan),
    ui::ButtonDesign("Command2", 1, "&Borrar", {1900, 4850, 1500, 500}, 15, Color::Green),
    ui::ButtonDesign("Command2", 2, "&Ver solución", {5200, 4850, 1500, 500}, 16, Color::Red),
    {.name = "TBMensajes",
     .says = "Mensajes",
     .place = {2550, 4200, 3500, 500},
     .tab = 17,
     .speaking = ui::Speaking::Spoken},
    {.name = "TBResultados",
     .text = "Ejercicios: 0; Errores: 0",
     .says = "Marcador",
     .place = {2550, 5550, 3500, 495},
     .tab = 18},
};

} // namespace

FormConversion::FormConversion()
    : Form({.name = "FormConversion",
            .caption = "Convertir a común denominador",
            .width = 8595,
            .height = 6255,
            .controls = controles})
{
    The<ui::Button>("Command1").OnClick = [this](int) { Command1_Click(); };
    Command2.OnClick(this, &FormConversion::Command2_Click);
}

void FormConversion::Form_Load()
{
    ui::Randomize(ui::TimerSeed());
    NuevaConversion();
}

// The same verdict again is the same text, and is heard all the same.
void FormConversion::Command1_Click()
{
    const std::array<Entero16, 4> solucion = Solucion();
    bool correcto = true;
    for (const ui::TextBox& box : TBFin) {
        correcto = correcto && box.Number() == solucion.at(static_cast<std::size_t>(box.Index())).Valor();
    }
    TBMensajes.Text(correcto ? "Resultado correcto" : "Resultado incorrecto");
    Ejercicios += 1;
    if (correcto) {
        Command2[0].SetFocus();
    } else {
        Errores += 1;
    }
}

void FormConversion::Command2_Click(int Index)
{
    constexpr std::array acciones{&FormConversion::NuevaConversion, &FormConversion::Borrar,
                                  &FormConversion::VerSolucion};
    (this->*acciones.at(static_cast<std::size_t>(Index)))();
}

void FormConversion::NuevaConversion()
{
    PrimerDenominador = ui::Draw(6, 2);
    do {
        SegundoDenominador = ui::Draw(6, 2);
    } while (SegundoDenominador == PrimerDenominador);
    PrimerNumerador = ui::Draw(9, 1);
    SegundoNumerador = ui::Draw(9, 1);
    TBIni[0].Text(PrimerNumerador.Valor());
    TBIni[1].Text(SegundoNumerador.Valor());
    TBIni[2].Text(PrimerDenominador.Valor());
    TBIni[3].Text(SegundoDenominador.Valor());
    Borrar();
}

void FormConversion::Borrar()
{
    for (int i = 0; i < 4; ++i) {
        TBMedi[i].Text("");
        TBFin[i].Text("");
    }
}

void FormConversion::VerSolucion()
{
    const auto producto = [](Entero16 uno, Entero16 otro) {
        return std::to_string(uno.Valor()) + "x" + std::to_string(otro.Valor());
    };
    TBMedi[0].Text(producto(PrimerNumerador, SegundoDenominador));
    TBMedi[1].Text(producto(PrimerDenominador, SegundoNumerador));
    TBMedi[2].Text(producto(PrimerDenominador, SegundoDenominador));
    TBMedi[3].Text(producto(PrimerDenominador, SegundoDenominador));
    const std::array<Entero16, 4> solucion = Solucion();
    for (ui::TextBox& box : TBFin) {
        box.Text(solucion.at(static_cast<std::size_t>(box.Index())).Valor());
    }
}

std::array<Entero16, 4> FormConversion::Solucion() const
{
    const Entero16 comun = PrimerDenominador * SegundoDenominador;
    return {PrimerNumerador * SegundoDenominador, SegundoNumerador * PrimerDenominador, comun, comun};
}

} // namespace ejercicios
