#pragma once

#include "platform/text.h"

#include <utility>

/// What is wrong with the content of a file, and where.
struct CFileFault
{
    CFileFault(int line, CString message, CString file = {})
        : strFile(std::move(file)), nLine(line), strMessage(std::move(message))
    {
    }

    /// The file, as a system path; empty as long as only its bytes are known.
    CString strFile;
    /// Line number from 1; 0 if the file as a whole is at fault.
    int nLine = 0;
    /// Number of the character in the line from 1; 0 if the whole line is at fault.
    int nColumn = 0;
    /// What is wrong, in a sentence for the user.
    CString strMessage;
};

/// File, line, column and reason in one line, as messages show it.
CString FormatFileFault(const CFileFault& fault);
