// What the program answers on the command line, without a window.
#pragma once

#include <optional>
#include <span>

namespace app {

// Answers --help and --version on the standard output, and any other option with a line on the standard error. Of the
// program's `arguments`, of which the first is its name, those that are no options mean nothing. The exit status, or
// nothing where the program is to open its menu.
std::optional<int> AnswerCommandLine(std::span<const char* const> arguments);

} // namespace app
