#include "FormFactores.h"

#include "Azar.h"
#include "Clock.h"
#include "Dialogs.h"
#include "Escribir.h"
#include "Filas.h"
#include "Keys.h"
#include "Lectura.h"
#include "Val.h"

namespace ejercicios {

namespace {

using enum ui::Kind;
using numeros::Entero16;
using reglas::Escalera;
using ui::Checking;
using ui::KeyResult;

constexpr ui::ControlDesign controles[]{
    {.name = "TbInstruc",
     .text = "Realiza la descomposición en factores primos",
     .accessibleName = "Instrucciones",
     .keys = "F3 repite el ejercicio. F4 dice el marcador.",
     .place = {966, 300, 6000, 500},
     .tab = 0,
     .font = "MS Sans Serif"},
    {.name = "TbValor",
     .accessibleName = "Valor",
     .place = {933, 1300, 2125, 500},
     .tab = 1,
     .typing = ui::Typing::Editable,
     .font = "Courier New"},
    {.kind = TextArea,
     .name = "TbDesco",
     .accessibleName = "Escalera",
     .place = {933, 2100, 2125, 4000},
     .tab = 2,
     .typing = ui::Typing::KeysOnly,
     .font = "Courier New",
     .points = 11}, // so that fifteen rows go in
    {.kind = Label,
     .name = "LbFactores",
     .text = "Factores primos",
     .place = {933, 6600, 2125, 500},
     .tab = 3,
     .font = "Courier New"},
    {.name = "TbFactores",
     .accessibleName = "Factores primos",
     .place = {933, 7100, 2125, 500},
     .tab = 4,
     .font = "Courier New"},
    comun::Hecho({4750, 1100, 1500, 400}, 5),
    comun::Editable(comun::EnTipo(comun::Mensajes("Text1", {4000, 1900, 3000, 500}, 6), "Courier New")),
    comun::BotonContinuar({4750, 2700, 1300, 500}, 7),
    comun::BotonBorrar({4000, 3500, 1300, 500}, 8),
    comun::BotonVerSolucion({5500, 3500, 1500, 500}, 9),
    comun::LineaMarcador({4000, 7150, 3000, 480}, 10, 10.5),
};

constexpr ui::MenuDesign menus[]{
    {0, "MnuOpc", ui::noIndex, "&Opciones"},
    {1, "MnuOpcVal", ui::noIndex, "&Valores"},
    {2, "MnuOpcValLis", 0, "&Hasta 10", Checking::Unchecked},
    {2, "MnuOpcValLis", 1, "&Hasta 20", Checking::Unchecked},
    {2, "MnuOpcValLis", 2, "&Hasta 100", Checking::Checked},
    {2, "MnuOpcValLis", 3, "&Hasta 1000", Checking::Unchecked},
    {1, "MnuOpcInt", ui::noIndex, "&Introducir valor...", Checking::None, 2},
    {1, "MnuOpcsal", ui::noIndex, "&Salir (Alt F4)"},
};

} // namespace

FormFactores::FormFactores()
    : Ejercicio({.name = "FormFactores",
                 .caption = "DESCOMPOSICIÓN EN FACTORES PRIMOS",
                 .width = 7245,
                 .height = 7845,
                 .controls = controles,
                 .menus = menus},
                "MnuOpcsal")
{
    OnKeyDown("TbDesco", &FormFactores::TbDesco_KeyDown);
    OnKeyPress("TbDesco", &FormFactores::TbDesco_KeyPress);
    OnValidate("TbDesco", &FormFactores::TbDesco_Validate);
    OnGotFocus("TbValor", &FormFactores::TbValor_GotFocus);
    OnValidate("Text1", &FormFactores::Text1_Validate);
    OnClick("Command1", &FormFactores::Command1_Click);
    OnClick("MnuOpcValLis", &FormFactores::MnuOpcValLis_Click);
    OnClick("MnuOpcInt", &FormFactores::MnuOpcInt_Click);
}

void FormFactores::Form_Load()
{
    NuevaEscalera();
    numeros::Sembrar(ui::TimerSeed());
    TbValor.Text(numeros::Sortear(100, 1));
    LeerValor();
}

std::string FormFactores::Exercise() const
{
    return lenguaje::EnLetrasSolo(TbValor.Number());
}

void FormFactores::Command1_Click()
{
    LeerValor();
    LeerEscalera(false);
    const auto objecion = reglas::Objecion(Factores, Valor);
    comun::EscribirOtraVezDelante(Text1, objecion ? "Resultado incorrecto" : "Resultado correcto");
    if (objecion) {
        ui::MsgBox(*objecion);
    }
    if (puntuable) {
        Ejercicios += 1; // a wrong answer again and again, until the exercise is solved or its solution seen
        Errores += objecion ? 1 : 0;
        puntuable = objecion.has_value();
    }
    tbResultados.Text(lenguaje::Marcador(Ejercicios.Valor(), Errores.Valor()));
    if (!objecion) {
        Command2[0].SetFocus();
    }
}

void FormFactores::Command2_Click(int Index)
{
    Ejercicio::Command2_Click(Index);
    TbDesco.SetFocus();
}

KeyResult FormFactores::TbDesco_KeyDown(int KeyCode, int /*Shift*/)
{
    return KeyCode == ui::KeyCode::Delete ? Editar(&Escalera::Suprimir) : KeyResult::Pass;
}

KeyResult FormFactores::TbDesco_KeyPress(int KeyAscii)
{
    return Editar([KeyAscii](Escalera& escalera) { return escalera.Pulsar(KeyAscii); });
}

void FormFactores::TbDesco_Validate()
{
    LeerEscalera(false);
}

void FormFactores::TbValor_GotFocus()
{
    TbValor.SelectAll();
}

// A verdict reads as 0 and gives way to the value.
void FormFactores::Text1_Validate()
{
    if (const auto valor = reglas::ValorSobreVeredicto(Text1.Number())) {
        Valor = *valor;
    } else {
        Text1.Text(Valor);
    }
}

void FormFactores::MnuOpcValLis_Click(int Index)
{
    OpcionValores = Index;
}

void FormFactores::MnuOpcInt_Click()
{
    const std::string respuesta = ui::InputBox("Introduzca valor a descomponer: ", "Introducir valor");
    if (const auto valor = reglas::ValorPropio(numeros::Val(respuesta))) {
        Valor = *valor;
        TbValor.Text(Valor);
        NuevaEscalera();
        TellExercise();
    }
}

void FormFactores::LeerEscalera(bool soloLeer)
{
    Factores = Escalera(TbDesco.Utf16Text(), 0).LeerDivisores();
    if (!soloLeer) {
        TbFactores.Text(reglas::ListaConAsteriscos(Factores));
    }
}

void FormFactores::BuscarPrimos()
{
    ui::MsgBox("Encontrados " + std::to_string(reglas::BuscarPrimos(1000).size()) + " números primos");
}

void FormFactores::NuevaEscalera()
{
    const Escalera escalera;
    TbDesco.Edit(escalera.Texto(), escalera.Cursor());
}

// A value that does not fit is put back to the last one that did.
void FormFactores::LeerValor()
{
    if (const auto valor = Entero16::SiCabe(TbValor.Number())) {
        Valor = *valor;
    } else {
        TbValor.Text(Valor);
        TbValor.Refuse();
    }
}

void FormFactores::Continuar()
{
    constexpr std::array limites{10, 20, 100, 1000};
    TbValor.Text(numeros::Sortear(limites.at(OpcionValores), 1));
    TbValor.SelectAll();
    Borrar();
    puntuable = true;
    TellExercise();
}

void FormFactores::Borrar()
{
    NuevaEscalera();
    TbFactores.Text("");
}

void FormFactores::VerSolucion()
{
    LeerValor();
    TbDesco.Edit(reglas::EscaleraDe(Valor), 0);
    LeerEscalera(false);
    TbFactores.SelectAll();
    puntuable = false;
}

KeyResult FormFactores::Editar(const std::function<Escalera::Efecto(Escalera&)>& tecla)
{
    Escalera escalera(TbDesco.Utf16Text(), TbDesco.SelStart());
    const Escalera::Efecto efecto = tecla(escalera);
    if (efecto == Escalera::Efecto::Hecho) {
        TbDesco.Edit(escalera.Texto(), escalera.Cursor());
    } else if (efecto == Escalera::Efecto::Negado) {
        TbDesco.Refuse();
    }
    return efecto == Escalera::Efecto::Ajeno ? KeyResult::Pass : KeyResult::Swallow;
}

} // namespace ejercicios
