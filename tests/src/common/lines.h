#pragma once

#include "platform/array.h"

#include <initializer_list>

inline CStringArray Lines(std::initializer_list<CString> lines)
{
    CStringArray array;
    for (const CString& line : lines) {
        array.Add(line);
    }
    return array;
}
