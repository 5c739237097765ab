#include "Keys.h"

#include <QKeyEvent>

namespace ui {

int KeyCodeOf(const QKeyEvent& event)
{
    const int key = event.key();
    if ((key >= Qt::Key_0 && key <= Qt::Key_9) || (key >= Qt::Key_A && key <= Qt::Key_Z)) {
        return key;
    }
    if (key >= Qt::Key_F1 && key <= Qt::Key_F12) {
        return KeyCode::F1 + key - Qt::Key_F1;
    }
    switch (key) {
    case Qt::Key_Left:
        return KeyCode::Left;
    case Qt::Key_Up:
        return KeyCode::Up;
    case Qt::Key_Right:
        return KeyCode::Right;
    case Qt::Key_Down:
        return KeyCode::Down;
    case Qt::Key_Delete:
        return KeyCode::Delete;
    default:
        return 0;
    }
}

int ShiftMaskOf(const QKeyEvent& event)
{
    const Qt::KeyboardModifiers held = event.modifiers();
    return (held.testFlag(Qt::ShiftModifier) ? ShiftMask::Shift : 0) +
           (held.testFlag(Qt::ControlModifier) ? ShiftMask::Control : 0) +
           (held.testFlag(Qt::AltModifier) ? ShiftMask::Alt : 0);
}

int KeyAsciiOf(const QKeyEvent& event)
{
    const bool control = event.modifiers().testFlag(Qt::ControlModifier);
    const bool alt = event.modifiers().testFlag(Qt::AltModifier);
    if (alt && !control) {
        return 0;
    }
    switch (event.key()) {
    case Qt::Key_Backspace:
        return KeyAscii::Backspace;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return KeyAscii::Enter;
    case Qt::Key_Escape:
        return KeyAscii::Escape;
    default:
        break;
    }
    if (control && !alt && event.key() >= Qt::Key_A && event.key() <= Qt::Key_Z) {
        return event.key() - Qt::Key_A + 1;
    }
    return TypesText(event) ? event.text().front().unicode() : 0;
}

bool TypesText(const QKeyEvent& event)
{
    const QString text = event.text();
    return !text.isEmpty() && text.front().isPrint();
}

} // namespace ui
