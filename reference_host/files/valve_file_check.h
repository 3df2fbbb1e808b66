#pragma once

#include "platform/array.h"
#include "platform/file_fault.h"
#include "platform/text.h"

#include <optional>
#include <vector>

namespace reference_host {

/// Looks for the line that keeps the module from taking a valve out of a file, since the module
/// itself does not tell it. The rules are those of docs/valve-format.md.
class CValveFileCheck
{
public:
    /// Reads the file, unless it is beyond the limit for valve files. Raises CFileException if it
    /// cannot be read.
    explicit CValveFileCheck(const CString& path);

    /// Why the module does not begin to read the file: its size, or the head of another kind of
    /// file.
    std::optional<CFileFault> FindRefusal() const;

    /// What makes the module give up the whole file: that, or the first line with a record that
    /// lacks a field that the reader needs, or one that has no record above it to stand under.
    std::optional<CFileFault> FindReadingFault() const;

    /// The first data set or kv row that lacks a field. It spoils the valves of that data set only.
    std::optional<CFileFault> FindDataFault() const;

    /// The faults of all lines, those of the reading and those of data sets.
    std::vector<CFileFault> FindAllFaults() const;

    /// The lines as the reader cuts and counts them, and what stands behind the last line end,
    /// which it does not read.
    const CStringArray& GetLines() const { return m_lines; }
    const CString& GetLost() const { return m_strLost; }

    /// The line of an article that the module does not find although it is there, because it lacks
    /// its order number or its data set. Nothing if the file has no article of that number.
    std::optional<CFileFault> FindArticle(const CString& ventilNr) const;

private:
    CString m_strFile;
    CStringArray m_lines;
    CString m_strLost;
    bool m_bTooLarge = false;
};

} // namespace reference_host
