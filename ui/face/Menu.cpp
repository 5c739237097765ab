#include "Menu.h"

#include "Handlers.h"
#include "Strings.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QWindow>

namespace ui {

namespace {

// The group of the entry's array: that of the entry before it where both have one name.
QActionGroup* GroupOf(const MenuDesign& design, QActionGroup* previous, QMenuBar& bar)
{
    if (previous != nullptr && previous->objectName() == ToQString(design.name)) {
        return previous;
    }
    auto* group = new QActionGroup(&bar);
    group->setObjectName(ToQString(design.name));
    return group;
}

// An entry of the bar itself that opens a box finds the focus on the bar when the box has closed: the bar forgets where
// it came from as soon as the box takes it.
class FocusBefore final : public QObject
{
public:
    explicit FocusBefore(QMenuBar& bar) : QObject(&bar), m_bar(bar)
    {
        connect(qApp, &QApplication::focusChanged, this, [this](QWidget* old, const QWidget* now) {
            if (now == &m_bar && old != nullptr) {
                m_before = old;
            }
        });
    }

    void Restore() const
    {
        if (m_before && m_bar.window()->focusWidget() == &m_bar) {
            m_before->setFocus(Qt::MenuBarFocusReason);
        }
    }

private:
    QMenuBar& m_bar;
    QPointer<QWidget> m_before;
};

} // namespace

MenuItem::MenuItem(const MenuDesign& design, QAction& action) : m_design(design)
{
    QObject::connect(&action, &QAction::triggered, &action, [this] {
        if (OnClick) {
            Run([this] { OnClick(Index()); });
        }
    });
}

std::vector<std::unique_ptr<MenuItem>> BuildMenus(QMenuBar& bar, std::span<const MenuDesign> designs)
{
    std::vector<std::unique_ptr<MenuItem>> items;
    std::vector<QWidget*> parents{&bar}; // by depth
    QActionGroup* group = nullptr;
    for (std::size_t i = 0; i < designs.size(); ++i) {
        const MenuDesign& design = designs[i];
        const auto depth = static_cast<std::size_t>(design.depth);
        const bool hasEntries = i + 1 < designs.size() && designs[i + 1].depth > design.depth;
        parents.resize(depth + 1);
        QAction* action = nullptr;
        if (hasEntries) {
            auto* menu = new QMenu(ToQString(design.caption), parents[depth]);
            action = menu->menuAction();
            parents.push_back(menu);
        } else {
            action = new QAction(ToQString(design.caption), &bar);
        }
        action->setObjectName(ObjectName(design.name, design.index));
        action->setMenuRole(QAction::NoRole); // macOS would move "Salir" and "Acerca de..." elsewhere
        if (design.checking != Checking::None) {
            group = GroupOf(design, group, bar);
            action->setCheckable(true);
            action->setActionGroup(group);
            action->setChecked(design.checking == Checking::Checked);
        }
        if (design.functionKey != 0) {
            action->setShortcut(Qt::Key_F1 + design.functionKey - 1);
        }
        parents[depth]->addAction(action);
        if (!hasEntries) {
            items.push_back(std::make_unique<MenuItem>(design, *action));
            if (depth == 0) {
                QObject::connect(action, &QAction::triggered, new FocusBefore(bar), &FocusBefore::Restore);
            }
        }
    }
    return items;
}

void CloseMenus()
{
    while (QWidget* menu = QApplication::activePopupWidget()) {
        menu->close();
        if (auto* bar = qobject_cast<QMenuBar*>(menu->parentWidget())) { // it would keep the focus
            QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
            QCoreApplication::sendEvent(bar, &escape);
        }
    }
}

void OpenWithoutGrab(const QObject& shown)
{
    if (const auto* menu = qobject_cast<const QMenu*>(&shown)) {
        menu->windowHandle()->setFlags((menu->windowFlags() & ~Qt::WindowType_Mask) | Qt::ToolTip);
    }
}

} // namespace ui
