#include "Application.h"
#include "CommandLine.h"
#include "Form1.h"

int main(int argc, char** argv)
{
    if (const auto status = app::AnswerCommandLine({argv, static_cast<std::size_t>(argc)})) {
        return *status;
    }
    ui::Application application(argc, argv);
    ui::Form::Open(std::make_unique<app::Form1>(), ui::Modality::Modeless);
    return application.Run();
}
