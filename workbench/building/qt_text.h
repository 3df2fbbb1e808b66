#pragma once

#include "platform/text.h"

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

} // namespace workbench
