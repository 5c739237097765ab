// The screens write UTF-8; the toolkit has a string of its own.
#pragma once

#include <QString>

#include <string_view>

namespace ui {

inline QString ToQString(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// "Text1(4)" for a member of a control array, "TbMensajes" for a control of its own (`index` below 0).
inline QString ObjectName(std::string_view name, int index)
{
    return index < 0 ? ToQString(name) : QString("%1(%2)").arg(ToQString(name)).arg(index);
}

} // namespace ui
