#include "Application.h"
#include "Form1.h"

int main(int argc, char** argv)
{
    ui::Application application(argc, argv);
    auto* menu = new app::Form1; // destroys itself when it is closed
    menu->Open(ui::Modality::Modeless);
    return ui::Application::exec();
}
