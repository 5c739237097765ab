// Prime factor decomposition by the division ladder that pupils write on paper. The ladder is typed over fixed bars,
// and of it only the divisors are read.
#pragma once

#include "Ejercicio.h"
#include "Escalera.h"

#include <functional>

namespace ejercicios {

class FormFactores final : public comun::Ejercicio
{
public:
    FormFactores();

    // Finds the primes from 2 to 1000 and tells how many there are. Nothing in the program calls it.
    static void BuscarPrimos();

private:
    void Form_Load() override;
    std::string Exercise() const override;
    void Command1_Click();
    void Command2_Click(int Index) override;
    ui::KeyResult TbDesco_KeyDown(int KeyCode, int Shift);
    ui::KeyResult TbDesco_KeyPress(int KeyAscii);
    void TbDesco_Validate();
    void TbValor_GotFocus();
    void Text1_Validate();
    void MnuOpcValLis_Click(int Index);
    void MnuOpcInt_Click();

    void Continuar() override;
    void Borrar() override;
    void VerSolucion() override;

    // Reads the divisors of the ladder into Factores, and shows them unless `soloLeer`.
    void LeerEscalera(bool soloLeer);

    void NuevaEscalera();
    void LeerValor();

    // Lets a key do to the ladder what it does.
    ui::KeyResult Editar(const std::function<reglas::Escalera::Efecto(reglas::Escalera&)>& tecla);

    ui::TextBox& TbValor = The<ui::TextBox>("TbValor");
    ui::TextArea& TbDesco = The<ui::TextArea>("TbDesco");
    ui::TextBox& TbFactores = The<ui::TextBox>("TbFactores");
    ui::TextBox& Text1 = The<ui::TextBox>("Text1");
    ui::TextBox& tbResultados = The<ui::TextBox>("tbResultados");

    numeros::Entero16 Valor;
    int OpcionValores = 2;
    numeros::Entero16 Ejercicios;
    numeros::Entero16 Errores;
    bool puntuable = true; // the exercise still counts
    reglas::Divisores Factores;
};

} // namespace ejercicios
