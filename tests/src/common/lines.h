#pragma once

#include "common/text_file.h"
#include "platform/file.h"

#include <vector>

inline CStringArray Lines(const std::vector<CString>& lines)
{
    CStringArray array;
    for (const CString& line : lines) {
        array.Add(line);
    }
    return array;
}

/// The lines of a file; none if it cannot be read.
inline CStringArray LinesIn(const CString& path)
{
    CStringArray lines;
    ReadTextFile(path, lines, CFile::modeRead, -1);
    return lines;
}

/// The same, read as a block.
inline CStringArray BlockIn(const CString& path)
{
    CStringArray lines;
    CFile file;
    if (file.Open(path, CFile::modeRead)) {
        ReadLineBlock(file).CopyTo(lines);
    }
    return lines;
}
