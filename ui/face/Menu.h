// An entry of a screen's menus.
#pragma once

#include "Design.h"

#include <functional>
#include <memory>
#include <span>
#include <vector>

class QAction;
class QMenuBar;
class QObject;

namespace ui {

class MenuItem final
{
public:
    MenuItem(const MenuDesign& design, QAction& action);
    MenuItem(const MenuItem&) = delete;
    MenuItem& operator=(const MenuItem&) = delete;

    std::string_view Name() const { return m_design.name; }
    int Index() const { return m_design.index; }

    // Handler, with the entry's index in its array. An entry of an array that is chosen is the one that is checked by
    // then.
    std::function<void(int Index)> OnClick;

private:
    const MenuDesign& m_design;
};

// Fills `bar` with the menus of `designs`, which outlive it.
std::vector<std::unique_ptr<MenuItem>> BuildMenus(QMenuBar& bar, std::span<const MenuDesign> designs);

// Closes the menus that are open.
void CloseMenus();

// To be told, on Wayland, of what is about to be shown (QEvent::Show), when it has a window and that is not shown yet.
// A menu grabs the keyboard, and a Wayland desktop lets only who asks with the key that was pressed last: where the
// finger on the next key is quicker, it takes the menu away, and that key goes into the screen. So the desktop is told
// of a tool tip, which grabs nothing. The menu's keys come all the same, to the window that it belongs to; and so do
// clicks, but for those outside the program's windows.
void OpenWithoutGrab(const QObject& shown);

} // namespace ui
