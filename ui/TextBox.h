// A text box. It holds its text exactly, and what the program writes to a spoken one is announced.
#pragma once

#include "Control.h"
#include "EditWidget.h"

#include <functional>
#include <string>
#include <utility>

namespace ui {

class TextBox final : public Control
{
public:
    TextBox(const ControlDesign& design, QWidget* parent);

    // UTF-8, a line end being CR and LF.
    std::string Text() const override;

    // Runs Change at once where the text is another one. A spoken box announces the text even if it is the same; an
    // empty text says nothing.
    void Text(std::string_view text);
    void Text(int number);

    // The number that the text begins with, 0 where it begins with none.
    double Number() const;

    bool IsLocked() const { return Design().typing == Typing::Locked; }

    // Start and length of the selection in characters from 0; the caret where nothing is selected.
    int SelStart() const { return m_edit.SelStart(); }
    int SelLength() const { return m_edit.SelLength(); }
    void Select(int start, int length);
    void SelectAll();

    // Announces the text, of a box that is not spoken whenever the program writes to it.
    void Say() const;

    // Announces that the box is locked: the pupil has just typed into it.
    void SayLocked() const;

    // Beeps and says the line of the caret: what the pupil has just tried is refused or put right, and this holds.
    void Refuse() const;

    // The text in UTF-16, of which SelStart and SelLength count the units; and another one, with the caret after
    // `caret` of its units, as if the pupil had typed what is different. Does not run Change.
    std::u16string Units() const;
    void Edit(std::u16string_view text, int caret);

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
    void PutInPlace() override;

private:
    TextBox(const ControlDesign& design, std::pair<QWidget*, EditWidget*> widget);
    template <class Change>
    void Alter(Change change);
    void Changed() const;

    EditWidget& m_edit;
};

} // namespace ui
