// What the screens of the four operations share: controls, exercise cycle, verdicts, score line, readings and keys. A
// screen says what its solution is, and overrides what it does in a way of its own.
#pragma once

#include "Ejercicio.h"
#include "Lectura.h"
#include "Operaciones.h"

#include <algorithm>
#include <array>

namespace operaciones {

using numeros::Fraccion;
using reglas::Operandos;

// What a screen of this kind is, as data.
struct Operacion
{
    std::string_view name;
    std::string_view caption;
    std::string_view signo;
    std::string_view signoLeido = {}; // what the reading of the operation says instead of the sign
    std::string_view incorrecto = "Resultado incorrecto ";
    lenguaje::Modo modo = {}; // of the readings
};

// The menus of these screens: the ranges, the screen's own entries, the key help under its caption, the way out.
template <std::size_t Count = 0>
consteval auto MenusCon(const std::array<ui::MenuDesign, Count>& propios = {},
                        std::string_view teclas = "&Combinaciones de teclas...")
{
    constexpr std::array<ui::MenuDesign, 5> rangos{{
        {0, "MnuOpc", ui::noIndex, "&Opciones"},
        {1, "MnuOpcCan", ui::noIndex, "&Cantidades"},
        {2, "MnuOpcCanLis", 0, "Hasta &10", ui::Checking::Checked},
        {2, "MnuOpcCanLis", 1, "Hasta &20", ui::Checking::Unchecked},
        {2, "MnuOpcCanLis", 2, "Hasta &100", ui::Checking::Unchecked},
    }};
    const std::array<ui::MenuDesign, 2> finales{{
        {1, "MnuOpcTec", ui::noIndex, teclas},
        {1, "MnuOpcSal", ui::noIndex, "&Salir (Alt - F4)"},
    }};
    std::array<ui::MenuDesign, rangos.size() + Count + finales.size()> menus;
    std::ranges::copy(finales, std::ranges::copy(propios, std::ranges::copy(rangos, menus.begin()).out).out);
    return menus;
}

class FormOperacion : public comun::Ejercicio
{
protected:
    FormOperacion(const Operacion& operacion, ui::Menus menus);

    void Form_Load() override;
    ui::KeyResult Form_KeyDown(int KeyCode, int Shift) override;

    // By default Enter checks the answer.
    virtual ui::KeyResult Text1_KeyPress(int Index, int KeyAscii);

    // The result of the operation on what the operand boxes hold, not simplified.
    virtual Fraccion CalcularSolucion() const = 0;

    // New operands, of numbers up to `limite`; by default any from 2 on.
    virtual Operandos SortearOperandos(int limite) const;

    // What a wrong answer brings besides its verdict and its counting; by default the focus goes to the result.
    virtual void RespuestaIncorrecta();

    // Empty and fill the result boxes; by default they put the focus there too.
    void Borrar() override;
    void VerSolucion() override;

    // What the reading of the operation begins with: a blank, or none if the message line begins with one, so that
    // the same operation is a new text each time.
    virtual std::string_view BlancoInicial() const;

    // What the operand boxes hold, rounded to whole numbers.
    Operandos LeerOperandos() const;

    void VaciarResultado();
    void EscribirSolucion();

    ui::TextBox& Text3 = The<ui::TextBox>("Text3");

private:
    void Command1_Click();
    void MnuOpcCanLis_Click(int Index);
    void MnuOpcTec_Click();

    void NuevoEjercicio();
    void Continuar() final;
    bool EsCorrecto() const;
    void Contar(bool correcto);

    // The words of fraction 0, 1 or 2. With -1, writes those of the fraction that has the focus into the message line
    // and returns nothing.
    std::string LeerFraccion(int indice);
    std::string EnPalabras(int fraccion, lenguaje::Modo modo) const;
    void LeerOperacion();

    ui::KeyResult MoverDerecha();
    ui::KeyResult MoverIzquierda();
    ui::KeyResult MoverA(int indice);

    const ui::ControlArray<ui::TextBox> Text1 = All<ui::TextBox>("Text1");
    const ui::ControlArray<ui::TextBox> Text2 = All<ui::TextBox>("Text2");
    ui::TextBox& TbMensajes = The<ui::TextBox>("TbMensajes");
    ui::TextBox& tbResultados = The<ui::TextBox>("tbResultados");

    const Operacion m_operacion;

    int OpcionCantidad = 0;
    numeros::Entero16 Ejercicios;
    numeros::Entero16 Errores;
    bool Pendiente = true;
};

} // namespace operaciones
