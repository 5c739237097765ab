// The main menu: a button for each exercise screen, one to end, and the credits. It holds no state but which screens
// are open.
#pragma once

#include "Form.h"

#include <map>
#include <memory>

namespace app {

class Form1 final : public ui::Form
{
public:
    Form1();

private:
    void Form_Resize() override;
    void Command1_Click(int Index);
    void MnuAce_Click();

    const ui::ControlArray<ui::Button> Command1 = All<ui::Button>("Command1");

    std::map<int, std::weak_ptr<ui::Form>> m_open; // by the button's index
};

} // namespace app
