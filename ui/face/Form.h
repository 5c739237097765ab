// A screen. It builds the controls and menus of its design, ties them to the screen's handlers, and sees every key
// press before the control that has the focus. Its window keeps the controls in place.
#pragma once

#include "Button.h"
#include "ControlArray.h"
#include "Label.h"
#include "Menu.h"
#include "Shapes.h"
#include "Tables.h"
#include "TextBox.h"

#include <algorithm>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

class QMainWindow;

namespace ui {

enum class Modality { Modal, Modeless };

class Form
{
public:
    virtual ~Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    // Loads the screen and shows it, with the focus on its first control. A modal one blocks all others until it is
    // closed, and belongs to the window of its `opener`. A closed screen is destroyed.
    static std::weak_ptr<Form> Open(std::unique_ptr<Form> screen, Modality modality, const Form* opener = nullptr);

    // Brings an open screen to the front, and back if it was minimised.
    void BringForward();

    void Close();

    QMainWindow& Window() const;

    // The window of the screen that was the active one last, which is behind an open box; null where there is none any
    // more.
    static QMainWindow* FrontWindow();

protected:
    explicit Form(const FormDesign& design);

    virtual void Form_Load() {}
    virtual KeyResult Form_KeyDown(int KeyCode, int Shift);

    // Places the controls of a screen that does so itself; runs before the screen is seen and whenever its size
    // changes.
    virtual void Form_Resize() {}

    // Size of the client area in twips.
    int InnerWidth() const;
    int InnerHeight() const;

    // The control that has the focus, or null.
    const Control* ActiveControl() const;

    // Has `text` announced in place of what was said before in the same event. It is written nowhere.
    void Tell(std::string_view text);

    // The exercise for the ear, of a screen that does not write it into a spoken box. It is told when the screen opens
    // and on F3; where there is a new one, the screen has it told.
    virtual std::string Exercise() const { return {}; }
    void TellExercise();

    // The control of this name; and the controls, or menu entries, of one name by their index. A name that the design
    // does not have ends the program, as does that of another kind of control.
    template <class T>
    T& The(std::string_view name)
    {
        return All<T>(name)[0];
    }
    template <class T>
    ControlArray<T> All(std::string_view name)
    {
        std::vector<std::reference_wrapper<T>> members;
        if constexpr (std::is_same_v<T, MenuItem>) {
            AddNamed(m_menuItems, name, members);
        } else {
            AddNamed(m_controls, name, members);
        }
        if (members.empty()) {
            EndOnName(name);
        }
        return ControlArray<T>(std::move(members));
    }

    // Tie the controls of this name, or the menu entries, to a handler of the screen. It takes what the event tells,
    // with or without the control's index before.
    template <class Handler>
    void OnClick(std::string_view name, Handler handler)
    {
        if (IsMenuItem(name)) {
            Tie(name, &MenuItem::OnClick, Bound<>(handler));
        } else {
            Tie(name, &Button::OnClick, Bound<>(handler));
        }
    }
    template <class Handler>
    void OnChange(std::string_view name, Handler handler)
    {
        Tie(name, &TextBox::OnChange, Bound<>(handler));
    }
    template <class Handler>
    void OnGotFocus(std::string_view name, Handler handler)
    {
        Tie(name, &TextBox::OnGotFocus, Bound<>(handler));
    }
    template <class Handler>
    void OnValidate(std::string_view name, Handler handler)
    {
        Tie(name, &TextBox::OnValidate, Bound<>(handler));
    }
    template <class Handler>
    void OnKeyDown(std::string_view name, Handler handler)
    {
        Tie(name, &TextBox::OnKeyDown, Bound<int, int>(handler));
    }
    template <class Handler>
    void OnKeyPress(std::string_view name, Handler handler)
    {
        Tie(name, &TextBox::OnKeyPress, Bound<int>(handler));
    }

private:
    class FormWindow;

    template <class... Told, class Screen, class Result, class... Taken>
    auto Bound(Result (Screen::*handler)(Taken...))
    {
        return [screen = static_cast<Screen*>(this), handler](int Index, Told... told) {
            if constexpr (sizeof...(Taken) == sizeof...(Told)) {
                return (screen->*handler)(told...);
            } else {
                return (screen->*handler)(Index, told...);
            }
        };
    }
    template <class T, class Slot, class Handler>
    void Tie(std::string_view name, Slot T::*slot, const Handler& handler)
    {
        for (T& member : All<T>(name)) {
            member.*slot = handler;
        }
    }

    template <class Owned, class T>
    void AddNamed(const std::vector<std::unique_ptr<Owned>>& all, std::string_view name,
                  std::vector<std::reference_wrapper<T>>& members) const
    {
        for (const std::unique_ptr<Owned>& one : all) {
            if (one->Name() == name) {
                auto* member = dynamic_cast<T*>(one.get());
                member != nullptr ? members.push_back(*member) : EndOnName(name);
            }
        }
        std::ranges::sort(members, {}, [](const T& member) { return member.Index(); });
    }
    bool IsMenuItem(std::string_view name) const;
    [[noreturn]] void EndOnName(std::string_view name) const;

    void BuildControls();
    void ChainTabOrder();
    void SayWhereItLeads(const std::function<void()>& action) const;
    Control* ControlOf(const QWidget* widget) const;
    Control* FirstThat(Speaking speaking) const;

    const FormDesign m_design;
    std::unique_ptr<FormWindow> m_unopened;
    FormWindow& m_window;
    std::vector<std::unique_ptr<Control>> m_controls;
    std::vector<std::unique_ptr<MenuItem>> m_menuItems;
    std::vector<Control*> m_tabStops;
};

// A screen that is not open yet.
template <class Screen>
std::unique_ptr<Form> Make()
{
    return std::make_unique<Screen>();
}

} // namespace ui
