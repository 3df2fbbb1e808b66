#pragma once

#include "platform/text.h"

#include <vector>

/// Entries added to a system menu, below the system's own.
class CMenu
{
public:
    struct Entry
    {
        /// 0 for a separator.
        unsigned id;
        CString text;
    };

    void AppendSeparator() { m_entries.push_back({0, {}}); }
    void Append(unsigned id, const CString& text) { m_entries.push_back({id, text}); }
    const std::vector<Entry>& GetEntries() const { return m_entries; }
    void Clear() { m_entries.clear(); }

private:
    std::vector<Entry> m_entries;
};
