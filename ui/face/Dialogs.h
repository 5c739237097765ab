// Message boxes and input boxes. While a box is open the rest of the program waits; afterwards the focus is
// where it was. Without a `title` a box bears the application's name.
#pragma once

#include <string>
#include <string_view>

namespace ui {

// Shows `text` with the button "Aceptar".
void MsgBox(std::string_view text, std::string_view title = {});

enum class Answer { Yes, No };

// Asks with "Sí" and "No" beside an exclamation mark. Escape and closing the box answer No.
Answer MsgBoxYesNo(std::string_view question, std::string_view title = {});

// Shows a critical message.
void FatalBox(std::string_view text);

// Asks for a text, beginning with `initial`. Empty where the pupil cancels.
std::string InputBox(std::string_view prompt, std::string_view title, std::string_view initial = {});

} // namespace ui
