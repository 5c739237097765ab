// Text boxes. They hold their text exactly, and what the program writes to a spoken one is announced.
#pragma once

#include "Control.h"
#include "Entero16.h"

#include <functional>
#include <string>

namespace ui {

class MultiLineEdit;
class TextHolder;

class TextBox : public Control
{
public:
    // Of one line.
    TextBox(const ControlDesign& design, QWidget* parent);

    // UTF-8, a line end being CR and LF.
    std::string Text() const override;

    // Runs Change at once where the text is another one. A spoken box announces the text even if it is the same; an
    // empty text says nothing.
    void Text(std::string_view text);
    void Text(int number);
    void Text(numeros::Entero16 number) { Text(number.Valor()); }

    // The number that the text begins with, 0 where it begins with none.
    double Number() const;

    bool IsLocked() const { return Design().typing == Typing::Locked; }

    // Start of the selection, or the caret where nothing is selected, in characters from 0.
    int SelStart() const;
    void Select(int start, int length);
    void SelectAll();

    // Announces the text, of a box that is not spoken whenever the program writes to it.
    void Say() const;

    // Announces the name and the line of the caret, as where the focus comes.
    void SayWhereItIs() const;

    // Announces that the box is locked: the pupil has just typed into it.
    void SayLocked() const;

    // Beeps and says the line of the caret: what the pupil has just tried is refused or put right, and this holds.
    void Refuse() const;

    void TakeColors() override;
    void GotFocus() override;
    void Validate() override;
    KeyResult KeyDown(int keyCode, int shift) override;
    KeyResult KeyPressed(int keyAscii) override;

    // Handlers, with the box's index in its array.
    std::function<KeyResult(int Index, int KeyCode, int Shift)> OnKeyDown;
    std::function<KeyResult(int Index, int KeyAscii)> OnKeyPress;
    std::function<void(int Index)> OnChange;
    std::function<void(int Index)> OnGotFocus;
    std::function<void(int Index)> OnValidate;

protected:
    TextBox(const ControlDesign& design, QWidget& widget, TextHolder& holder);

    void PutInPlace() override;

private:
    template <class Widget>
    TextBox(const ControlDesign& design, Widget* widget) : TextBox(design, *widget, *widget)
    {
    }

    void Changed() const;

    TextHolder& m_holder;
};

// A text box of several lines.
class TextArea final : public TextBox
{
public:
    TextArea(const ControlDesign& design, QWidget* parent);

    // The text in UTF-16, of which SelStart counts the units; and another one, with the caret after `caret` of its
    // units, as if the pupil had typed what is different. Does not run Change.
    std::u16string Utf16Text() const;
    void Edit(std::u16string_view text, int caret);

private:
    TextArea(const ControlDesign& design, MultiLineEdit& edit);

    MultiLineEdit& m_edit;
};

} // namespace ui
