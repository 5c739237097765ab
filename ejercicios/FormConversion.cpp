#include "FormConversion.h"

#include "Azar.h"
#include "Clock.h"
#include "Escribir.h"
#include "Filas.h"

namespace ejercicios {

namespace {

using enum ui::Kind;

constexpr ui::ControlDesign Raya(int index, std::string_view marco)
{
    const int left = index % 2 == 0 ? 300 : 1400;
    return {.kind = Line, .name = "Line1", .index = index, .place = {left, 1085, 900, 30}, .inside = marco};
}

// A box of a frame: 0 and 1 are the numerators, 2 and 3 the denominators, and the pupil comes first to both boxes of
// the first fraction.
constexpr ui::ControlDesign Caja(std::string_view name, int index, std::string_view nombre, std::string_view marco,
                                 int tab)
{
    return {.name = name,
            .index = index,
            .accessibleName = nombre,
            .place = {index % 2 == 0 ? 300 : 1400, index < 2 ? 500 : 1200, 900, 500},
            .tab = tab,
            .inside = marco,
            .typing = name == "TBIni" ? ui::Typing::Locked : ui::Typing::Editable,
            .alignment = ui::Alignment::Center,
            .font = name == "TBMedi" ? "Arial" : "Courier New",
            .points = 15};
}

constexpr ui::ControlDesign controles[]{
    comun::Instrucciones("TBInstruc",
                         "Convierte estas fracciones al mismo denominador.\r\n"
                         "Escribe primero los cálculos intermedios. \r\n",
                         "", {250, 200, 8100, 900}),
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
    comun::Hecho({3550, 3600, 1500, 495}, 13),
    comun::BotonContinuar({3550, 4850, 1500, 500}, 14),
    comun::BotonBorrar({1900, 4850, 1500, 500}, 15),
    comun::BotonVerSolucion({5200, 4850, 1500, 500}, 16),
    {.name = "TBMensajes",
     .accessibleName = "Mensajes",
     .place = {2550, 4200, 3500, 500},
     .tab = 17,
     .speaking = ui::Speaking::Spoken},
    {.name = "TBResultados",
     .text = lenguaje::marcadorFijo,
     .accessibleName = "Marcador",
     .place = {2550, 5550, 3500, 495},
     .tab = 18},
};

} // namespace

FormConversion::FormConversion()
    : Ejercicio({.name = "FormConversion",
                 .caption = "Convertir a común denominador",
                 .width = 8595,
                 .height = 6255,
                 .controls = controles})
{
    OnClick("Command1", &FormConversion::Command1_Click);
}

void FormConversion::Form_Load()
{
    numeros::Sembrar(ui::TimerSeed());
    NuevaConversion();
}

// The same verdict again is the same text, and is heard all the same.
void FormConversion::Command1_Click()
{
    const bool correcto = comun::Aciertos(TBFin, m_conversion.Final()) == TBFin.Count();
    TBMensajes.Text(correcto ? "Resultado correcto" : "Resultado incorrecto");
    Ejercicios += 1;
    if (correcto) {
        Command2[0].SetFocus();
    } else {
        Errores += 1;
    }
}

void FormConversion::NuevaConversion()
{
    m_conversion = reglas::Conversion::Sortear();
    comun::EscribirTodas(TBIni, m_conversion.Inicial());
    Borrar();
}

void FormConversion::Continuar()
{
    NuevaConversion();
}

void FormConversion::Borrar()
{
    constexpr std::array<std::string_view, 4> nada{};
    comun::EscribirTodas(TBMedi, nada);
    comun::EscribirTodas(TBFin, nada);
}

void FormConversion::VerSolucion()
{
    comun::EscribirTodas(TBMedi, m_conversion.Intermedia());
    comun::EscribirTodas(TBFin, m_conversion.Final());
}

} // namespace ejercicios
