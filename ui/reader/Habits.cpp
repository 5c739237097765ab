#include "Habits.h"

#include <QtGlobal>

#if defined(Q_OS_LINUX) && QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
#include "Registry.h"
#endif

namespace ui {

namespace {

#if defined(Q_OS_WIN)
constexpr Habits ofWindows{.takesAnnouncements = true,
                           .newNamesAreRead = QT_VERSION >= QT_VERSION_CHECK(6, 11, 0),
                           .boxesCutMessagesOff = true,
                           .keysComeBesideTheProgram = false};
#elif defined(Q_OS_MACOS)
constexpr Habits ofMac{.takesAnnouncements = true,
                       .newNamesAreRead = false,
                       .boxesCutMessagesOff = true,
                       .keysComeBesideTheProgram = false};
#else
constexpr Habits ofOrca43{.takesAnnouncements = false,
                          .newNamesAreRead = QT_VERSION >= QT_VERSION_CHECK(6, 8, 0), // before, Qt tells of none
                          .boxesCutMessagesOff = false,
                          .keysComeBesideTheProgram = false};
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
constexpr Habits ofOrca48{
    .takesAnnouncements = true, .newNamesAreRead = true, .boxesCutMessagesOff = true, .keysComeBesideTheProgram = true};
#endif
#endif

} // namespace

const Habits& ReaderHabits()
{
#if defined(Q_OS_WIN)
    return ofWindows;
#elif defined(Q_OS_MACOS)
    return ofMac;
#elif QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    return Registry::Instance().IsListenedToInSilence() ? ofOrca43 : ofOrca48;
#else
    return ofOrca43;
#endif
}

} // namespace ui
