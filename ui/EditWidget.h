// What a text box needs of its widget, be it one line or several.
#pragma once

#include <QString>

#include <functional>

class QFont;

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

    // Start and length of the selection (the caret where nothing is selected), in characters of the exact text.
    virtual int SelStart() const = 0;
    virtual int SelLength() const = 0;
    virtual void Select(int start, int length) = 0;

    // Called when the pupil, and not the program, has changed the text.
    std::function<void()> edited;
};

} // namespace ui
