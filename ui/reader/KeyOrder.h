// Keys take effect in the order in which they were pressed. With a screen reader on, Qt asks it about each key and
// delivers the key when the answer is there, up to 0.1 s later; but access keys and those of menu entries it looks for
// at once. Behind a key that waits, these wait too.
#pragma once

#include <QKeyEvent>

#include <optional>
#include <vector>

namespace ui {

// Whether the key is only held beside others: Shift, Control, Alt and the like.
bool IsModifier(const QKeyEvent& event);

class KeyOrder final : public QObject
{
    Q_OBJECT

public:
    // To be asked before an event is delivered. True: it is not to be, its turn will come.
    bool Postpones(QObject& receiver, QEvent& event);

    // The turn of a key: it has come to its window, by itself or with the screen reader's answer.
    bool eventFilter(QObject* window, QEvent* event) override;

private:
    struct Key
    {
        QEvent::Type type;
        int key;
        bool isModifier;
        bool isPostponed;    // an access key or a menu entry is still to be looked for
        bool isAlone = true; // of Alt: no other key has moved since
        bool isOver = false; // of Alt: it has been released
    };

    void NoteAlt(const QKeyEvent& key);
    std::optional<Key> TakeTurn(const QKeyEvent& event);

    std::vector<Key> m_waiting; // a key that the screen reader keeps for itself stays until one behind it has its turn
    bool m_isPostponed = false; // of the key press that comes next
};

} // namespace ui
