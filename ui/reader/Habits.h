// What is to be reckoned with of the screen reader that listens.
#pragma once

namespace ui {

struct Habits
{
    bool takesAnnouncements;       // or else is told by a notification
    bool newNamesAreRead;          // of the control in focus, by itself
    bool boxesCutMessagesOff;      // that were said before they open
    bool keysComeBesideTheProgram; // and not by way of it
};

// On Linux those of its generation: Orca 43 came with Qt 6.4, Orca 48 with 6.8, and a Qt that the program has brought
// may meet either. Where nobody listens, the newer one's. macOS has not been tried.
const Habits& ReaderHabits();

} // namespace ui
