#pragma once

#include "workbench/building/user_text.h"

#include <QString>

namespace workbench {

/// A text of the system as one of the toolkit, and back.
inline QString ToQt(const CString& text)
{
    return QString::fromStdWString(text);
}

inline CString FromQt(const QString& text)
{
    return text.toStdWString();
}

inline QString WattText(double watts)
{
    return ToQt(FormatWatts(watts));
}

inline QString SystemText(const CHeatingSystem& system)
{
    return ToQt(FormatSystem(system));
}

} // namespace workbench
