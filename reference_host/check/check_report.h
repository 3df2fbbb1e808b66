#pragma once

#include "platform/file_fault.h"

#include <utility>
#include <vector>

namespace reference_host {

/// What was looked at, and what is wrong in it.
struct CCheckReport
{
    /// Files of radiators, and the rows that they hold for all requirements together.
    int nCatalogues = 0;
    int nRows = 0;
    /// Files of valves, and their articles.
    int nValveFiles = 0;
    int nValves = 0;
    /// Short lists, and the connection types that the dialog offers of them.
    int nShortLists = 0;
    int nTypes = 0;
    std::vector<CFileFault> findings;
    /// Files and folders that the system does not let be read, each with the reason.
    std::vector<CString> unreadable;

    void Find(const CString& file, int line, CString message)
    {
        findings.emplace_back(line, std::move(message), file);
    }
};

} // namespace reference_host
