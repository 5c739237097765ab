// Prime factor decomposition by the division ladder that pupils write on paper. The ladder is typed over fixed bars,
// and of it only the divisors are read.
#pragma once

#include "Entero16.h"
#include "Escalera.h"
#include "Form.h"

#include <functional>

namespace ejercicios {

class FormFactores final : public ui::Form
{
public:
    FormFactores();

    // Finds the primes from 2 to 1000 and tells how many there are. Nothing in the program calls it.
    static void BuscarPrimos();

private:
    void Form_Load() override;
    std::string Exercise() const override;
    void Command1_Click();
    void Command2_Click(int Index);
    ui::KeyResult TbDesco_KeyDown(int KeyCode);
    ui::KeyResult TbDesco_KeyPress(int KeyAscii);
    void TbDesco_Validate();
    void TbValor_GotFocus();
    void Text1_Validate();
    void MnuOpcValLis_Click(int Index);
    void MnuOpcInt_Click();
    void MnuOpcSal_Click();

    // Reads the divisors of the ladder into Factores, and shows them unless `soloLeer`.
    void LeerEscalera(bool soloLeer);

    void NuevaEscalera();
    void SortearValor(int limite);
    void LeerValor();
    void Continuar();
    void Borrar();
    void VerSolucion();
    void Incorrecto(std::string_view motivo);
    void Veredicto(std::string_view veredicto);
    void MostrarResultados();

    // Lets a key do to the ladder what it does. Refused where a bar is in the way.
    ui::KeyResult Editar(const std::function<bool(Escalera&)>& tecla);

    ui::TextBox& TbValor = The<ui::TextBox>("TbValor");
    ui::TextBox& TbDesco = The<ui::TextBox>("TbDesco");
    ui::TextBox& TbFactores = The<ui::TextBox>("TbFactores");
    ui::TextBox& Text1 = The<ui::TextBox>("Text1");
    const ui::ControlArray<ui::Button> Command2 = All<ui::Button>("Command2");
    ui::TextBox& tbResultados = The<ui::TextBox>("tbResultados");
    const ui::ControlArray<ui::MenuItem> MnuOpcValLis = All<ui::MenuItem>("MnuOpcValLis");

    numeros::Entero16 Valor;
    numeros::Entero16 OpcionValores = 2;
    numeros::Entero16 Ejercicios;
    numeros::Entero16 Errores;
    bool puntuable = true; // the exercise still counts
    Divisores Factores;
};

} // namespace ejercicios
