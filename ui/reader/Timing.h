// When something is told, and when better not.
#pragma once

#include <QAccessible>
#include <QPointer>
#include <QScopeGuard>
#include <QString>
#include <QWidget>

#include <functional>

class QDialog;
class QMessageBox;

namespace ui {

// Runs `change` on a box that is not in focus without a word to the screen reader. Qt tells of every caret and text;
// where the focus follows at once, the screen reader takes that for the arrival in the box and says nothing of it, or
// reads the new text as if it had been typed.
template <class Change>
void Silently(Change change)
{
    const auto handler = QAccessible::installUpdateHandler([](QAccessibleEvent*) {});
    const auto restore = qScopeGuard([handler] { QAccessible::installUpdateHandler(handler); });
    change();
}

// Runs `change` on `box`: in focus the screen reader follows it, elsewhere nobody does.
template <class Change>
void Alter(const QWidget& box, Change change)
{
    if (box.hasFocus()) {
        change();
    } else {
        Silently(change);
    }
}

// Runs `action` when the screen reader has been told of the focus that is coming to `widget`; not if that is gone by
// then.
void OnceFocusIsTold(QWidget& widget, std::function<void()> action);

// Says the new name of a control, where that has the focus and the screen reader does not read it by itself.
void SayNewName(QWidget& control, const QString& name);

// Says `more` of a control that has just got its name, and the name too, unless the screen reader reads that by itself.
void SayWithName(QWidget& control, const QString& name, const QString& more);

// To be made before an action that may leave the focus in the box where it was, perhaps by way of other controls: then
// a screen reader tells nothing, and the pupil would not know whether the action has done anything.
class FocusTrace
{
public:
    FocusTrace();
    ~FocusTrace();
    FocusTrace(const FocusTrace&) = delete;
    FocusTrace& operator=(const FocusTrace&) = delete;

    // What has the focus as before, and of which nobody will be told anything; null where the screen reader tells of
    // it. Coming back from another window is told.
    QWidget* Unheard() const;

private:
    QPointer<QWidget> m_before;
    bool m_wasElsewhere = false;
    QMetaObject::Connection m_look;
};

// Says `said` before the text of `box`, which is about to open before `screen`.
void SayBeforeBox(QMessageBox& box, QWidget& screen, const QString& said);

// To be called on Wayland before a key that has just been pressed takes effect. Where keys come to the screen reader
// beside the program, the desktop sends them there by way of a bus: on a busy machine the answer to a key is there
// before it, and the key cuts that off. So it gets a lead. Nothing is handled meanwhile, so that the order of all that
// happens stays the same.
void LetReaderHearKey();

// Opens the box and waits for its answer. Where keys come to the screen reader beside the program, it handles them with
// the program's help: a box that is there before that is cut off, unread, by the key that has opened it. So the screen
// reader gets a moment first, in which keys do nothing.
int OpenBox(QDialog& box);

} // namespace ui
