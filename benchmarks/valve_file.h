#pragma once

#include "tests/support/temp_folder.h"

#include <cstddef>
#include <string>

/// A generated valve file of about the size asked for, under a valve directory of its own. As a
/// file is read from disk only once in a process, the same bytes are offered under ever new makers.
class CValveFile
{
public:
    explicit CValveFile(std::size_t bytes);

    /// The valve data directory.
    CString Directory() const { return m_folder.Path(); }

    /// Name of a maker whose file has not been read yet.
    CString NextMaker();

    std::size_t Bytes() const { return m_bytes; }

private:
    CTempFolder m_folder;
    std::size_t m_bytes;
    int m_makers = 0;
};

/// Peak of the resident memory while the file becomes nodes, in multiples of its widened text.
/// Measured in a process of its own.
double MeasurePeakMemory(CValveFile& file);

/// Seconds of CPU time that the file takes to become nodes.
double MeasureLoad(CValveFile& file);

/// Gives up what the host's cache holds of a file.
void ForgetLines(const CString& path);
