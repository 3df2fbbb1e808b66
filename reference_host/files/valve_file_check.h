#pragma once

#include "platform/array.h"
#include "platform/file_fault.h"
#include "platform/text.h"

#include <optional>

namespace reference_host {

/// Looks for the line that keeps the module from taking a valve out of a file, since the module
/// itself does not tell it. The rules are those of docs/valve-format.md.
class CValveFileCheck
{
public:
    /// Reads the file, unless it is beyond the limit for valve files. Raises CFileException if it
    /// cannot be read.
    explicit CValveFileCheck(const CString& path);

    /// What makes the module give up the whole file: its size, or the first line with a record that
    /// lacks a field that the reader needs, or one that has no record above it to stand under, or
    /// the head of another kind of file.
    std::optional<CFileFault> FindReadingFault() const;

    /// The first data set or kv row that lacks a field. It spoils the valves of that data set only.
    std::optional<CFileFault> FindDataFault() const;

    /// The line of an article that the module does not find although it is there, because it lacks
    /// its order number or its data set. Nothing if the file has no article of that number.
    std::optional<CFileFault> FindArticle(const CString& ventilNr) const;

private:
    CString m_strFile;
    CStringArray m_lines;
    bool m_bTooLarge = false;
};

} // namespace reference_host
