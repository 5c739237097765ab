#include "Application.h"
#include "Form1.h"

int main(int argc, char** argv)
{
    ui::Application application(argc, argv);
    ui::Form::Open(std::make_unique<app::Form1>(), ui::Modality::Modeless);
    return application.Run();
}
