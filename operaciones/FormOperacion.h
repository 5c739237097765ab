// What the screens of the four operations share: controls, exercise cycle, verdicts, score line, readings and keys. A
// screen adds its sign, its menus, how it draws the operands and what the solution is.
#pragma once

#include "Entero16.h"
#include "Form.h"

#include <array>

namespace operaciones {

// What a screen of this kind is, as data.
struct Operacion
{
    std::string_view name;
    std::string_view caption;
    std::string_view signo;
    std::span<const ui::MenuDesign> menus;
};

struct Fraccion
{
    numeros::Entero16 numerador;
    numeros::Entero16 denominador;
};

class FormOperacion : public ui::Form
{
protected:
    explicit FormOperacion(const Operacion& operacion);

    void Form_Load() override;
    ui::KeyResult Form_KeyDown(int KeyCode, int Shift) override;

    // Fills the four operand boxes with numbers from 2 to `limite`.
    virtual void NuevosOperandos(int limite) = 0;

    // The result of the operation on the operand boxes, not simplified.
    virtual Fraccion CalcularSolucion() const = 0;

    const ui::ControlArray<ui::TextBox> Text1 = All<ui::TextBox>("Text1");

private:
    void Command1_Click();
    void Command2_Click(int Index);
    ui::KeyResult Text1_KeyPress(int Index, int KeyAscii);
    void MnuOpcCanLis_Click(int Index);
    void MnuOpcTec_Click();

    void NuevoEjercicio();
    void Continuar();
    void Borrar();
    void VerSolucion();
    bool EsCorrecto() const;
    void Contar(bool correcto);
    void MostrarResultados();

    // The words of fraction 0, 1 or 2. With -1, writes those of the fraction that has the focus into the message line
    // and returns nothing.
    std::string LeerFraccion(int indice);
    void LeerOperacion();

    ui::KeyResult MoverDerecha();
    ui::KeyResult MoverIzquierda();
    ui::KeyResult MoverA(int indice);

    const ui::ControlArray<ui::TextBox> Text2 = All<ui::TextBox>("Text2");
    ui::TextBox& Text3 = The<ui::TextBox>("Text3");
    ui::TextBox& TbMensajes = The<ui::TextBox>("TbMensajes");
    ui::TextBox& tbResultados = The<ui::TextBox>("tbResultados");
    const ui::ControlArray<ui::Button> Command2 = All<ui::Button>("Command2");
    const ui::ControlArray<ui::MenuItem> MnuOpcCanLis = All<ui::MenuItem>("MnuOpcCanLis");

    numeros::Entero16 OpcionCantidad;
    numeros::Entero16 Ejercicios;
    numeros::Entero16 Errores;
    bool Pendiente = true;
};

} // namespace operaciones
