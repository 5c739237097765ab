#include "Locale.h"

#include <QLocale>

namespace ui {

std::string DecimalSeparator()
{
    return QString(QLocale::system().decimalPoint()).toStdString();
}

} // namespace ui
