#include "FormFactores.h"

#include "Dialogs.h"
#include "Keys.h"
#include "Lectura.h"
#include "Marcador.h"
#include "Random.h"
#include "Val.h"

#include <cmath>
#include <vector>

namespace ejercicios {

namespace {

using enum ui::Kind;
using numeros::Entero16;
using ui::Checking;
using ui::Color;
using ui::KeyResult;
using ui::Typing;

constexpr ui::ControlDesign controles[]{
    {.name = "TbInstruc",
     .text = "Realiza la descomposición en factores primos",
     .says = "Instrucciones",
     .keys = "F3 repite el ejercicio. F4 dice el marcador.",
     .place = {966, 300, 6000, 500},
     .tab = 0,
     .font = "MS Sans Serif"},
    {.name = "TbValor",
     .says = "Valor",
     .place = {933, 1300, 2125, 500},
     .tab = 1,
     .typing = Typing::Editable,
     .font = "Courier New"},
    {.kind = MultiLine,
     .name = "TbDesco",
     .says = "Escalera",
     .place = {933, 2100, 2125, 4000},
     .tab = 2,
     .typing = Typing::KeysOnly,
     .font = "Courier New",
     .points = 11}, // so that fifteen rows go in
    {.kind = Label,
     .name = "LbFactores",
     .text = "Factores primos",
     .place = {933, 6600, 2125, 500},
     .tab = 3,
     .font = "Courier New"},
    {.name = "TbFactores", .says = "Factores primos", .place = {933, 7100, 2125, 500}, .tab = 4, .font = "Courier New"},
    ui::ButtonDesign("Command1", ui::noIndex, "&Hecho", {4750, 1100, 1500, 400}, 5, Color::Yellow),
    {.name = "Text1",
     .says = "Mensajes",
     .place = {4000, 1900, 3000, 500},
     .tab = 6,
     .typing = Typing::Editable,
     .speaking = ui::Speaking::Spoken,
     .coloring = ui::Coloring::Selection,
     .font = "Courier New"},
    ui::ButtonDesign("Command2", 0, "&Continuar", {4750, 2700, 1300, 500}, 7, Color::Cyan),
    ui::ButtonDesign("Command2", 1, "&Borrar", {4000, 3500, 1300, 500}, 8, Color::Green),
    ui::ButtonDesign("Command2", 2, "&Ver solución", {5500, 3500, 1500, 500}, 9, Color::Red),
    {.name = "tbResultados",
     .text = "Ejercicios:  0; Errores:  0",
     .says = "Marcador",
     .place = {4000, 7150, 3000, 480},
     .tab = 10,
     .speaking = ui::Speaking::Score,
     .points = 10.5},
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
    : Form({.name = "FormFactores",
            .caption = "DESCOMPOSICIÓN EN FACTORES PRIMOS",
            .width = 7245,
            .height = 7845,
            .controls = controles,
            .menus = menus})
{
    TbDesco.OnKeyDown = [this](int, int KeyCode, int) { return TbDesco_KeyDown(KeyCode); };
    TbDesco.OnKeyPress = [this](int, int KeyAscii) { return TbDesco_KeyPress(KeyAscii); };
    TbDesco.OnValidate = [this](int) { TbDesco_Validate(); };
    TbValor.OnGotFocus = [this](int) { TbValor_GotFocus(); };
    Text1.OnValidate = [this](int) { Text1_Validate(); };
    The<ui::Button>("Command1").OnClick = [this](int) { Command1_Click(); };
    Command2.OnClick(this, &FormFactores::Command2_Click);
    MnuOpcValLis.OnClick(this, &FormFactores::MnuOpcValLis_Click);
    The<ui::MenuItem>("MnuOpcInt").OnClick = [this](int) { MnuOpcInt_Click(); };
    The<ui::MenuItem>("MnuOpcsal").OnClick = [this](int) { MnuOpcSal_Click(); };
}

void FormFactores::Form_Load()
{
    NuevaEscalera();
    ui::Randomize(ui::TimerSeed());
    SortearValor(100);
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
    Divisores FactoresAlumno = Factores;
    const Entero16 producto = Producto(FactoresAlumno);
    if (!(producto == Valor)) {
        // The first parenthesis stays open, on purpose.
        Incorrecto("El producto de los factores calculados (" + std::to_string(producto.Valor()) +
                   " es distinto del valor inicial (" + std::to_string(Valor.Valor()) + ")");
        return;
    }
    Ordenar(FactoresAlumno);
    const std::vector<Division> divisiones = Descomponer(Valor);
    for (std::size_t i = 0; i < divisiones.size(); ++i) {
        Factores.at(i) = divisiones[i].divisor;
    }
    bool correcto = true;
    for (std::size_t i = 0; i < Factores.size(); ++i) {
        correcto = correcto && (Factores.at(i).Valor() <= 1 || Factores.at(i) == FactoresAlumno.at(i));
    }
    if (!correcto) {
        Incorrecto("Los factores primos obtenidos por usted son diferentes a los que corresponden a la cantidad "
                   "utilizada.\r\nValores calculados : " +
                   Lista(FactoresAlumno) + "\r\nValores correctos: " + Lista(Factores));
        return;
    }
    Veredicto("Resultado correcto");
    if (puntuable) {
        puntuable = false;
        Ejercicios += 1;
    }
    MostrarResultados();
    Command2[0].SetFocus();
}

void FormFactores::Command2_Click(int Index)
{
    constexpr std::array acciones{&FormFactores::Continuar, &FormFactores::Borrar, &FormFactores::VerSolucion};
    (this->*acciones.at(static_cast<std::size_t>(Index)))();
    TbDesco.SetFocus();
}

KeyResult FormFactores::TbDesco_KeyDown(int KeyCode)
{
    return KeyCode == ui::KeyCode::Delete ? Editar(&Escalera::Suprimir) : KeyResult::Pass;
}

// Control with C copies and with A selects all. Any other control character would change the text by another way than
// the keys that the ladder knows.
KeyResult FormFactores::TbDesco_KeyPress(int KeyAscii)
{
    constexpr int controlA = 1;
    constexpr int controlC = 3;
    switch (KeyAscii) {
    case ui::KeyAscii::Backspace:
        return Editar(&Escalera::Retroceso);
    case ui::KeyAscii::Escape:
    case controlA:
    case controlC:
        return KeyResult::Pass;
    default:
        break;
    }
    if (KeyAscii < ' ' && KeyAscii != ui::KeyAscii::Enter) {
        TbDesco.Refuse();
        return KeyResult::Swallow;
    }
    return Editar([KeyAscii](Escalera& escalera) { return escalera.Escribir(static_cast<char16_t>(KeyAscii)); });
}

void FormFactores::TbDesco_Validate()
{
    LeerEscalera(false);
}

void FormFactores::TbValor_GotFocus()
{
    TbValor.SelectAll();
}

// A verdict reads as 0 and gives way to the value, on purpose.
void FormFactores::Text1_Validate()
{
    const double numero = Text1.Number();
    if (numero > 1 && numero < 2000) {
        Valor = Entero16::Redondeado(numero);
    } else {
        Text1.Text(Valor.Valor());
    }
}

void FormFactores::MnuOpcValLis_Click(int Index)
{
    MnuOpcValLis[Index].Check();
    OpcionValores = Index;
}

void FormFactores::MnuOpcInt_Click()
{
    const double numero = std::abs(numeros::Val(ui::InputBox("Introduzca valor a descomponer: ", "Introducir valor")));
    if (numero == 0 || !(numero <= 1000)) {
        return;
    }
    Valor = Entero16::Redondeado(numero);
    TbValor.Text(Valor.Valor());
    NuevaEscalera();
    TellExercise();
}

void FormFactores::MnuOpcSal_Click()
{
    close();
}

void FormFactores::LeerEscalera(bool soloLeer)
{
    Factores = Escalera(TbDesco.Units(), 0).LeerDivisores();
    if (soloLeer) {
        return;
    }
    std::string texto;
    for (const Entero16& factor : Factores) {
        if (factor.Valor() < 2) {
            break;
        }
        texto += std::to_string(factor.Valor()) + " * ";
    }
    // The last asterisk goes with one of its two blanks; the other one stays, on purpose.
    TbFactores.Text(texto.substr(0, texto.size() - std::min<std::size_t>(texto.size(), 2)));
}

void FormFactores::BuscarPrimos()
{
    std::vector<int> primos;
    for (int candidato = 2; candidato <= 1000; ++candidato) {
        bool esPrimo = true;
        for (int divisor = 2; divisor <= candidato / 2 && esPrimo; ++divisor) {
            esPrimo = candidato % divisor != 0;
        }
        if (esPrimo) {
            primos.push_back(candidato);
        }
    }
    ui::MsgBox("Encontrados " + std::to_string(primos.size()) + " números primos");
}

void FormFactores::NuevaEscalera()
{
    const Escalera escalera;
    TbDesco.Edit(escalera.Texto(), escalera.Cursor());
}

void FormFactores::SortearValor(int limite)
{
    TbValor.Text(ui::Draw(limite, 1));
}

// A value that does not fit is put back to the last one that did.
void FormFactores::LeerValor()
{
    if (const auto valor = Entero16::SiCabe(TbValor.Number())) {
        Valor = *valor;
    } else {
        TbValor.Text(Valor.Valor());
        TbValor.Refuse();
    }
}

void FormFactores::Continuar()
{
    constexpr std::array limites{10, 20, 100, 1000};
    SortearValor(limites.at(static_cast<std::size_t>(OpcionValores.Valor())));
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
    TbDesco.Edit(EscaleraDe(Valor), 0);
    LeerEscalera(false);
    TbFactores.SelectAll();
    puntuable = false;
}

// Every wrong answer counts again until the exercise is solved or its solution seen, on purpose.
void FormFactores::Incorrecto(std::string_view motivo)
{
    Veredicto("Resultado incorrecto");
    ui::MsgBox(motivo);
    if (puntuable) {
        Ejercicios += 1;
        Errores += 1;
    }
    MostrarResultados();
}

void FormFactores::Veredicto(std::string_view veredicto)
{
    Text1.Text(lenguaje::ConBlancoDelanteSiRepite(veredicto, Text1.Text()));
}

void FormFactores::MostrarResultados()
{
    tbResultados.Text(lenguaje::Marcador(Ejercicios.Valor(), Errores.Valor()));
}

KeyResult FormFactores::Editar(const std::function<bool(Escalera&)>& tecla)
{
    Escalera escalera(TbDesco.Units(), TbDesco.SelStart());
    if (tecla(escalera)) {
        TbDesco.Edit(escalera.Texto(), escalera.Cursor());
    } else {
        TbDesco.Refuse();
    }
    return KeyResult::Swallow;
}

} // namespace ejercicios
