// An entry of a screen's menus.
#pragma once

#include "Design.h"

#include <functional>
#include <memory>
#include <span>
#include <vector>

class QAction;
class QMenuBar;

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

} // namespace ui
