// The desktop's bell. Not everybody hears it: what is refused with a beep is told in words too (TextBox::Refuse).
#pragma once

#include <functional>

namespace ui {

void Beep();

// Has `bell` ring in the desktop's place, for tests; an empty one gives it back.
void ReplaceBell(std::function<void()> bell);

} // namespace ui
