// What the desktop's regional settings say; the program's own language is Spanish whatever they are.
#pragma once

#include <string>

namespace ui {

// What stands between a whole number and its decimals, UTF-8.
std::string DecimalSeparator();

} // namespace ui
