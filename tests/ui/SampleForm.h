// A small screen with one control of every kind, whose handlers a test sets.
#pragma once

#include "Form.h"

#include <QMainWindow>
#include <QPointer>

namespace sample {

using enum ui::Kind;

constexpr ui::ControlDesign controls[]{
    {.kind = Label, .name = "Label1", .text = "&Partes:", .place = {100, 100, 1000, 400}, .tab = 1},
    {.name = "Text1",
     .index = 0,
     .text = "uno",
     .accessibleName = "Primera caja",
     .place = {1200, 100, 1500, 400},
     .tab = 2,
     .typing = ui::Typing::Editable},
    {.name = "Text1",
     .index = 1,
     .text = "dos",
     .accessibleName = "Segunda caja",
     .place = {1200, 600, 1500, 400},
     .tab = 0},
    {.kind = TextArea,
     .name = "TbDesco",
     .text = "a\r\nb",
     .accessibleName = "Escalera",
     .place = {1200, 1100, 1500, 900},
     .tab = 3,
     .typing = ui::Typing::Editable},
    {.kind = Frame, .name = "Frame1", .text = "ROJO", .place = {100, 2100, 2600, 1200}, .color = ui::Color::Red},
    {.name = "TBFrac",
     .accessibleName = "Numerador rojo",
     .place = {200, 400, 600, 400},
     .tab = 4,
     .inside = "Frame1",
     .typing = ui::Typing::Editable},
    {.kind = Line, .name = "Line1", .place = {200, 850, 600, 30}, .inside = "Frame1"},
    {.kind = Picture, .name = "Picture1", .place = {1600, 200, 1000, 500}, .inside = "Frame1"},
    {.kind = Label,
     .name = "LbCuenta",
     .place = {1600, 800, 1000, 350},
     .inside = "Frame1",
     .speaking = ui::Speaking::Spoken},
    {.name = "TbMensajes",
     .accessibleName = "Mensajes",
     .place = {100, 3400, 2600, 400},
     .tab = 5,
     .speaking = ui::Speaking::Spoken},
    {.name = "Text3",
     .accessibleName = "Resultado",
     .place = {100, 3900, 2600, 400},
     .tab = 6,
     .speaking = ui::Speaking::Spoken,
     .coloring = ui::Coloring::Selection},
    {.kind = Button, .name = "Command2", .index = 0, .text = "&Continuar", .place = {100, 4400, 1200, 500}, .tab = 7},
    {.kind = Button, .name = "Command2", .index = 1, .text = "7\r\n-\r\n9", .place = {1400, 4400, 1200, 900}, .tab = 8},
    {.kind = Button, .name = "CbUno", .text = "&Doble", .place = {100, 5400, 1200, 500}, .tab = 9},
    {.kind = Button, .name = "CbDos", .text = "Otro &doble", .place = {1400, 5400, 1200, 500}, .tab = 10},
    {.name = "tbResultados",
     .text = "Ejercicios:  0",
     .accessibleName = "Marcador",
     .place = {100, 5900, 2600, 100},
     .tab = 11,
     .speaking = ui::Speaking::Score},
};

constexpr ui::MenuDesign menus[]{
    {0, "MnuOpc", ui::noIndex, "&Opciones"},
    {1, "MnuOpcDen", ui::noIndex, "Denominador"},
    {2, "MnuOpcDenLis", 0, "&Hasta 10", ui::Checking::Checked},
    {2, "MnuOpcDenLis", 1, "&Hasta 20", ui::Checking::Unchecked},
    {1, "MnuOpcTip", ui::noIndex, "Tipos"},
    {2, "MnuOpcTipLis", 0, "Uno", ui::Checking::Checked},
    {2, "MnuOpcTipLis", 1, "Dos", ui::Checking::Unchecked},
    {1, "MnuOpcLee", ui::noIndex, "&Leer fracción", ui::Checking::None, 1},
    {0, "MnuAce", ui::noIndex, "Acerca de..."},
};

class SampleForm final : public ui::Form
{
public:
    explicit SampleForm(ui::Menus entries = menus)
        : Form({.name = "Muestra",
                .caption = "Muestra",
                .width = 3300,
                .height = 6000,
                .controls = {controls, ui::Controls::AccessKeys::Shared},
                .menus = entries})
    {
    }

    using Form::ActiveControl;
    using Form::All;
    using Form::Tell;
    using Form::The;

    std::string exercise;
    std::function<void()> OnLoad;
    std::function<ui::KeyResult(int, int)> OnKeyDown;

private:
    void Form_Load() override
    {
        if (OnLoad) {
            OnLoad();
        }
    }
    std::string Exercise() const override { return exercise; }
    ui::KeyResult Form_KeyDown(int KeyCode, int Shift) override
    {
        return OnKeyDown ? OnKeyDown(KeyCode, Shift) : ui::KeyResult::Pass;
    }
};

// One that is not open yet; it is closed at the latest where it ends.
class Sample final
{
public:
    explicit Sample(ui::Menus entries = menus)
        : m_unopened(std::make_unique<SampleForm>(entries)), m_form(*m_unopened), m_window(&m_form.Window())
    {
    }
    ~Sample()
    {
        if (!m_unopened) {
            delete m_window.data();
        }
    }
    Sample(const Sample&) = delete;
    Sample& operator=(const Sample&) = delete;

    void Open(ui::Modality modality = ui::Modality::Modeless, const ui::Form* opener = nullptr)
    {
        ui::Form::Open(std::move(m_unopened), modality, opener);
    }
    SampleForm& Form() const { return m_form; }
    QMainWindow* Window() const { return m_window; }

private:
    std::unique_ptr<SampleForm> m_unopened;
    SampleForm& m_form;
    QPointer<QMainWindow> m_window;
};

} // namespace sample
