// A push button with a coloured face.
#pragma once

#include "Control.h"

#include <functional>
#include <string>

class QKeySequence;

namespace ui {

class FaceButton;

class Button final : public Control
{
public:
    Button(const ControlDesign& design, QWidget* parent);

    // UTF-8. "&" stands before the access key; line breaks are kept. A button that has the focus and gets another
    // caption is read again.
    std::string Caption() const;
    void Caption(std::string_view caption);

    // Without an accessible name of its own it has the caption's, without "&" and line breaks.
    void AccessibleName(std::string_view name);

    // Beeps and says the name: pressing the button has changed nothing.
    void Refuse() const;

    // Says the new name, where a screen reader does not read it by itself, and `more`: pressing the button has changed
    // both.
    void SayWith(std::string_view more) const;

    // Puts the focus on the button and presses it, at once.
    void Press();

    bool HasAccessKey(const QKeySequence& key) const;

    void BackColor(Color color);

    // Handler, with the button's index in its array.
    std::function<void(int Index)> OnClick;

    // Runs the handler where the button is pressed. The form puts its own in place.
    std::function<void(const std::function<void()>& handler)> around = [](const auto& handler) { handler(); };

private:
    Button(const ControlDesign& design, FaceButton* button);

    void NameChanged();

    FaceButton& m_button;
    std::string m_accessibleName;
    std::string m_name; // that a screen reader finds
};

} // namespace ui
