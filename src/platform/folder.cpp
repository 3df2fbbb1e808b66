#include "platform/folder.h"

#include "platform/path.h"

#include <algorithm>
#include <system_error>
#include <utility>

std::vector<CString> ListFolders(const CString& path)
{
    std::vector<CString> names;
    std::error_code error;
    for (std::filesystem::directory_iterator entry(ResolvePath(path), error), end;
         !error && entry != end; entry.increment(error)) {
        std::error_code ofEntry;
        if (entry->is_directory(ofEntry)) {
            names.push_back(TextFromPath(entry->path().filename()));
        }
    }
    std::ranges::sort(names, {},
                      [](const CString& name) { return std::pair(ToLower(name), name); });
    return names;
}

CString FileTitle(const CString& name)
{
    const std::size_t point = name.rfind(L'.');
    return point == CString::npos || point == 0 ? name : name.substr(0, point);
}
