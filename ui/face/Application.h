// The application: its Spanish surroundings and its event dispatch, which is where announcements go out.
#pragma once

#include <memory>

namespace ui {

class Application final
{
public:
    // Without a display it ends the program with a line on the standard error and status 1.
    Application(int& argc, char** argv);
    ~Application();
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    // Handles events until the program ends; its exit status.
    int Run();

private:
    class Dispatch;

    std::unique_ptr<Dispatch> m_dispatch;
};

// Closes every window and ends the program, at once and without a question.
void End();

} // namespace ui
