#include "Handlers.h"

#include "Dialogs.h"

#include <QCoreApplication>

#include <cstdlib>

namespace ui {

void EndOnOverflow()
{
    FatalBox("Un número se ha salido del intervalo permitido, de -32768 a 32767. El programa va a cerrarse.");
    QCoreApplication::exit(EXIT_FAILURE);
}

} // namespace ui
