#include "CommandLine.h"

#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace app {

namespace {

constexpr int wrongUse = 2;

constexpr const char* help = "Uso: kelvora [--help | --version]\n"
                             "\n"
                             "Ejercicios de fracciones, también con lector de pantalla. Sin opciones abre el menú.\n"
                             "\n"
                             "  --help     muestra esta ayuda y termina\n"
                             "  --version  muestra la versión y termina\n"
                             "\n"
                             "Más en el manual: " KELVORA_MANUAL "\n";

} // namespace

std::optional<int> AnswerCommandLine(std::span<const char* const> arguments)
{
    for (std::size_t i = 1; i < arguments.size(); ++i) {
        const std::string_view argument = arguments[i];
        if (argument == "--help") {
            std::fputs(help, stdout);
            return EXIT_SUCCESS;
        }
        if (argument == "--version") {
            std::puts("Kelvora " KELVORA_VERSION);
            return EXIT_SUCCESS;
        }
        if (argument == "-session") { // and which: so a desktop opens again what was open when somebody logged out
            ++i;
        } else if (argument.size() > 1 && argument.front() == '-') {
            std::fprintf(stderr, "kelvora: opción desconocida: «%s»; véase «kelvora --help»\n", arguments[i]);
            return wrongUse;
        }
    }
    return std::nullopt;
}

} // namespace app
