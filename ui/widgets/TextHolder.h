// What a text box needs of its widget, be it one line or several, and what the two have in common.
#pragma once

#include "Design.h"

#include <QPalette>
#include <QString>

#include <functional>

class QFont;
class QPainter;
class QWidget;

namespace ui {

class TextHolder
{
public:
    TextHolder() = default;
    virtual ~TextHolder() = default;
    TextHolder(const TextHolder&) = delete;
    TextHolder& operator=(const TextHolder&) = delete;

    // The text to the character: a line end is CR and LF, and either may stand alone.
    virtual QString ExactText() const = 0;

    // Does not call `edited`. The caret goes to the start.
    virtual void SetExactText(const QString& text) = 0;

    // Start of the selection, or the caret where nothing is selected, in characters of the exact text.
    virtual int SelStart() const = 0;
    virtual void Select(int start, int length) = 0;

    // The line of the text in which the caret is.
    virtual QString CaretLine() const = 0;

    // Takes the colours from the desktop's theme.
    virtual void TakeColors() = 0;

    // Takes the type that the box has when its text is short; one that always has that type need not do anything.
    virtual void SetFullFont(const QFont&) {}

    // Puts the caret at the start, but not before the screen reader has been told of the focus: a caret that moves
    // first is all that it would notice. A key that comes before that finds the caret there too (SettleCaret).
    void CaretToStart(QWidget& widget);
    void SettleCaret();

    // Called when the pupil, and not the program, has changed the text.
    std::function<void()> edited;

    // Called when the pupil has tried to change the text by a way that it is closed to.
    std::function<void()> refused;

protected:
    // Runs `change`, which is the program's own.
    template <class Change>
    void Write(Change change)
    {
        m_isWriting = true;
        change();
        m_isWriting = false;
    }

    // To be called when the text has become another one.
    void TextChanged()
    {
        if (!m_isWriting) {
            ChangedByPupil();
        }
    }
    virtual void ChangedByPupil()
    {
        if (edited) {
            edited();
        }
    }

    // The theme's colours for a box. A locked one is not white like those that wait for an answer.
    static QPalette Colors(Coloring coloring, bool locked);

    // Paints the edge of a box, thick where the box has the focus.
    static void PaintEdge(QPainter& painter, const QRect& area, const QPalette& colors, bool locked, bool focused);

private:
    bool m_caretIsMoving = false;
    bool m_isWriting = false;
};

} // namespace ui
