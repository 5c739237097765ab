// Screens that ask for what their design does not have. The argument says what.
#include "Application.h"
#include "Form.h"

#include <string_view>

namespace {

constexpr ui::ControlDesign controls[]{{.name = "Text1", .accessibleName = "Caja", .tab = 0}};

class Misspelt final : public ui::Form
{
public:
    explicit Misspelt(std::string_view what) : Form({.name = "Muestra", .controls = controls})
    {
        if (what == "control") {
            The<ui::TextBox>("Text2");
        } else if (what == "array") {
            (void)All<ui::Button>("Command1");
        } else if (what == "kind") {
            The<ui::Button>("Text1");
        } else if (what == "menu") {
            The<ui::MenuItem>("MnuOpcSal");
        } else if (what == "handler") {
            OnChange("Text3", &Misspelt::Text3_Change);
        }
    }

private:
    void Text3_Change() {}
};

} // namespace

int main(int argc, char** argv)
{
    const ui::Application application(argc, argv);
    const Misspelt screen(argv[argc - 1]);
    return EXIT_SUCCESS;
}
