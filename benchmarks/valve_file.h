#pragma once

#include "tests/support/temp_folder.h"
#include "valve/ventil_katalog.h"

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

/// Which nodes of a loaded file somebody has looked at: they are made at that moment.
enum class NodesSeen
{
    groups,
    articles,
    all
};

/// Looks at nodes of the tree.
void LookAt(const CVentVdiKatalog& katalog, NodesSeen seen);

/// Peak of the resident memory while the file is loaded and looked at, in multiples of its own
/// size. Measured in a process of its own.
double MeasurePeakMemory(CValveFile& file, NodesSeen seen);

/// Seconds of CPU time that the file takes to become nodes, all of them.
double MeasureLoad(CValveFile& file);

/// Gives up what the host's cache holds of a file.
void ForgetLines(const CString& path);
