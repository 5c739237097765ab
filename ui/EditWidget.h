// What a text box needs of its widget, be it one line or several, and what the two have in common.
#pragma once

#include "Design.h"

#include <QObject>
#include <QPalette>
#include <QString>

#include <functional>
#include <utility>

class QPainter;

namespace ui {

class EditWidget
{
public:
    EditWidget() = default;
    virtual ~EditWidget() = default;
    EditWidget(const EditWidget&) = delete;
    EditWidget& operator=(const EditWidget&) = delete;

    // The text to the character: a line end is CR and LF, and either may stand alone.
    virtual QString ExactText() const = 0;

    // Does not call `edited`. The caret goes to the start.
    virtual void SetExactText(const QString& text) = 0;

    // Replaces what is different in `text`, and puts the caret after `caret` of its characters. Does not call `edited`.
    virtual void Edit(const QString& text, int caret) = 0;

    // Start and length of the selection (the caret where nothing is selected), in characters of the exact text.
    virtual int SelStart() const = 0;
    virtual int SelLength() const = 0;
    virtual void Select(int start, int length) = 0;

    // The line of the text in which the caret is.
    virtual QString CaretLine() const = 0;

    // Takes the colours from the desktop's theme.
    virtual void TakeColors() = 0;

    // Puts the caret at the start, but not before the screen reader has been told of the focus: a caret that moves
    // first is all that it would notice. A key that comes before that finds the caret there too (SettleCaret).
    void CaretToStart(QObject& widget)
    {
        m_caretIsMoving = true;
        QMetaObject::invokeMethod(
            &widget, [this] { SettleCaret(); }, Qt::QueuedConnection);
    }
    void SettleCaret()
    {
        if (std::exchange(m_caretIsMoving, false)) {
            Select(0, 0);
        }
    }

    // Called when the pupil, and not the program, has changed the text.
    std::function<void()> edited;

    // Called when the pupil has tried to change the text by a way that it is closed to.
    std::function<void()> refused;

protected:
    // The theme's colours for a box. A locked one is not white like those that wait for an answer.
    static QPalette Colors(Coloring coloring, bool locked);

    // Paints the edge of a box, thick where the box has the focus.
    static void PaintEdge(QPainter& painter, const QRect& area, const QPalette& colors, bool locked, bool focused);

private:
    bool m_caretIsMoving = false;
};

} // namespace ui
