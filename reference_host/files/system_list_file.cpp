#include "reference_host/files/system_list_file.h"

#include "common/heizung_ordner.h"
#include "common/text_file.h"
#include "platform/exception.h"
#include "platform/number_scan.h"
#include "platform/path.h"

#include <algorithm>

namespace reference_host {

namespace {

CStringArray ReadLines()
{
    CStringArray lines;
    try {
        if (const auto root = FindeDatenWurzel()) {
            ReadTextFile(HeizungPfad(L"CmbData.txt"), lines, CFile::modeRead, -1);
        }
    } catch (const CFileException&) {
        // A list that cannot be read offers nothing.
        lines.RemoveAll();
    }
    return lines;
}

/// The line behind the head of the list; empty if there is none.
CString EntriesIn(const CStringArray& lines)
{
    for (int i = 0; i + 1 < lines.GetSize(); ++i) {
        if (lines[i] == L"[VDI6030_HS]") {
            return lines[i + 1];
        }
    }
    return {};
}

/// Takes "Standard (75/65)" apart.
CStoredSystem SystemOf(const CString& entry)
{
    const std::size_t open = entry.find(L'(');
    const std::size_t slash = entry.rfind(L'/');
    if (open == CString::npos || slash == CString::npos || slash < open) {
        return {entry, 0.0, 0.0};
    }
    return {entry.substr(0, open > 0 ? open - 1 : 0),
            _wtof(entry.substr(open + 1, slash - open - 1)), _wtof(entry.substr(slash + 1))};
}

} // namespace

std::vector<CStoredSystem> ReadStoredSystems()
{
    CStringArray entries;
    SplitString(entries, EntriesIn(ReadLines()), L'|');
    std::vector<CStoredSystem> systems;
    for (int i = 0; i < entries.GetSize(); ++i) {
        CString entry = entries[i];
        std::erase(entry, L'*'); // marks the one that was chosen last
        if (!entry.empty()) {
            systems.push_back(SystemOf(entry));
        }
    }
    return systems;
}

} // namespace reference_host
