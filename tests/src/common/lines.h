#pragma once

#include "platform/array.h"

#include <vector>

inline CStringArray Lines(const std::vector<CString>& lines)
{
    CStringArray array;
    for (const CString& line : lines) {
        array.Add(line);
    }
    return array;
}
