#include "KeyOrder.h"

#include <QGuiApplication>
#include <QWindow>

#include <algorithm>

// What Qt does with each key that a finger presses, before any window gets it: offers it to the control in focus, and,
// where that leaves it, to the access keys and menu entries. True where one of these has taken it. Declared here as in
// the headers of Qt Test, the only ones that have it.
Q_GUI_EXPORT bool qt_sendShortcutOverrideEvent(QObject* receiver, ulong timestamp, int key,
                                               Qt::KeyboardModifiers modifiers, const QString& text, bool autoRepeat,
                                               ushort count);

namespace ui {

bool IsModifier(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Meta:
    case Qt::Key_CapsLock:
        return true;
    default:
        return false;
    }
}

bool KeyOrder::Postpones(QObject& receiver, QEvent& event)
{
    const QEvent::Type type = event.type();
    const bool isKey = type == QEvent::ShortcutOverride || type == QEvent::KeyPress || type == QEvent::KeyRelease;
    if (!isKey || !receiver.isWindowType() || !event.spontaneous()) {
        return false;
    }
    const auto& key = static_cast<const QKeyEvent&>(event);
    NoteAlt(key);
    if (type == QEvent::ShortcutOverride) {
        m_isPostponed = std::ranges::any_of(m_waiting, [](const Key& waiting) { return !waiting.isModifier; });
        if (m_isPostponed) {
            event.accept(); // which keeps Qt from looking now
        }
        return m_isPostponed;
    }
    m_waiting.push_back({type, key.key(), IsModifier(key), std::exchange(m_isPostponed, false)});
    receiver.installEventFilter(this);
    return false;
}

bool KeyOrder::eventFilter(QObject* window, QEvent* event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease) {
        return false;
    }
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const std::optional<Key> turn = TakeTurn(key);
    if (!turn || event->type() == QEvent::KeyRelease) {
        return false;
    }
    // The menu bar looks at Alt when the finger moves, and not when its turn comes. It would take the Alt of an Alt+S
    // that has been done for one pressed alone, and one pressed alone for a second one.
    if (key.key() == Qt::Key_Alt && (!turn->isAlone || (turn->isOver && !turn->isPostponed))) {
        return true;
    }
    const QWindow* modal = QGuiApplication::modalWindow();
    const bool isBlocked = modal != nullptr && modal != window; // since the finger pressed the key
    return turn->isPostponed && !isBlocked &&
           qt_sendShortcutOverrideEvent(window, static_cast<ulong>(key.timestamp()), key.key(), key.modifiers(),
                                        key.text(), key.isAutoRepeat(), static_cast<ushort>(key.count()));
}

// What becomes of an Alt that waits.
void KeyOrder::NoteAlt(const QKeyEvent& key)
{
    for (Key& waiting : m_waiting) {
        if (waiting.key == Qt::Key_Alt) {
            waiting.isAlone = waiting.isAlone && key.key() == Qt::Key_Alt;
            waiting.isOver = waiting.isOver || key.type() == QEvent::KeyRelease;
        }
    }
}

// Takes the key off those that wait, with all that were pressed before it.
std::optional<KeyOrder::Key> KeyOrder::TakeTurn(const QKeyEvent& event)
{
    const auto found = std::ranges::find_if(
        m_waiting, [&event](const Key& key) { return key.type == event.type() && key.key == event.key(); });
    if (found == m_waiting.end()) {
        return std::nullopt;
    }
    const Key key = *found;
    m_waiting.erase(m_waiting.begin(), found + 1);
    return key;
}

} // namespace ui
