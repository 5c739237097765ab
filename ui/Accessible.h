// What the screen reader finds in the windows where Qt's own answer is missing or wrong.
#pragma once

#include <QString>

class QWidget;

namespace ui {

// Puts our accessible interfaces before Qt's. To be called once, before the first window.
void InstallAccessibleInterfaces();

// Sends `text` to the screen reader as a message of `source`, at once. Screens speak through the Announcer instead.
void Announce(QWidget& source, const QString& text);

} // namespace ui
