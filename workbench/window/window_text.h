#pragma once

#include "platform/text.h"

#include <QString>

namespace workbench {

/// Text between the module's strings and the toolkit's.
inline QString ToQt(const CString& text)
{
    return QString::fromStdWString(text);
}

inline CString FromQt(const QString& text)
{
    return text.toStdWString();
}

} // namespace workbench
