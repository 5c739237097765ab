// An entry of a screen's menus.
#pragma once

#include "Design.h"

#include <QAction>

#include <functional>
#include <memory>
#include <vector>

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

    bool Checked() const { return m_action.isChecked(); }

    // Checking an entry of an array unchecks the others.
    void Check() { m_action.setChecked(true); }

    // Handler, with the entry's index in its array.
    std::function<void(int Index)> OnClick;

private:
    const MenuDesign& m_design;
    QAction& m_action;
};

// Fills `bar` with the menus of `designs`, which outlive it.
std::vector<std::unique_ptr<MenuItem>> BuildMenus(QMenuBar& bar, std::span<const MenuDesign> designs);

} // namespace ui
