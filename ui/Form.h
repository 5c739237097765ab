// A screen's window. It builds the controls and menus of its design, keeps them in place, shows every key press to the
// screen before the control that has the focus gets it, and opens with the focus on the first control.
#pragma once

#include "Button.h"
#include "ControlArray.h"
#include "Labels.h"
#include "Menu.h"
#include "TextBox.h"

#include <QMainWindow>
#include <QShortcutEvent>

#include <algorithm>
#include <memory>
#include <vector>

namespace ui {

enum class Modality { Modal, Modeless };

class Form : public QMainWindow
{
    Q_OBJECT

public:
    ~Form() override;

    // Loads the screen and shows it. A modal one blocks all others until it is closed. A closed screen is destroyed.
    void Open(Modality modality);

    // Brings an open screen to the front, and back if it was minimised.
    void BringForward();

    // The screen that was the active window last, which is behind an open box; null where there is none any more.
    static Form* Front();

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

    // The control of this name; the design must have it.
    template <class T>
    T& The(std::string_view name) const
    {
        return All<T>(name)[0];
    }

    // The controls or menu entries of this name in the order of their index.
    template <class T>
    ControlArray<T> All(std::string_view name) const
    {
        std::vector<std::reference_wrapper<T>> members;
        if constexpr (std::is_same_v<T, MenuItem>) {
            AddNamed(m_menuItems, name, members);
        } else {
            AddNamed(m_controls, name, members);
        }
        return ControlArray<T>(std::move(members));
    }

    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    template <class Owned, class T>
    static void AddNamed(const std::vector<std::unique_ptr<Owned>>& all, std::string_view name,
                         std::vector<std::reference_wrapper<T>>& members)
    {
        for (const std::unique_ptr<Owned>& one : all) {
            if (one->Name() == name) {
                members.push_back(dynamic_cast<T&>(*one));
            }
        }
        std::ranges::sort(members, {}, [](const T& member) { return member.Index(); });
    }

    void BuildControls();
    void ChainTabOrder();
    double TextScale() const;
    QSize OpeningSize() const;
    void Arrange();
    KeyResult Handle(QObject* watched, QEvent& event);
    KeyResult HandleKey(Control& control, QEvent& event);
    void AccessKey(Button& button, const QShortcutEvent& event);
    KeyResult KeyPressed(Control& control, const QKeyEvent& event);
    KeyResult Offer(Control& control, const QKeyEvent& event);
    static void Commit(Control& control, QInputMethodEvent& event);
    Control* ControlOf(const QObject* widget) const;
    Control* FirstThat(Speaking speaking) const;

    const FormDesign m_design;
    std::vector<std::unique_ptr<Control>> m_controls;
    std::vector<std::unique_ptr<MenuItem>> m_menuItems;
    std::vector<QWidget*> m_tabStops;
    bool m_lockedIsSaid = false; // of the box in focus, since the pupil began to type into it
};

} // namespace ui
