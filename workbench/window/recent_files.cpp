#include "workbench/window/recent_files.h"

#include "reference_host/prefs/host_settings.h"

#include <algorithm>

namespace workbench {

namespace {

constexpr wchar_t kSetting[] = L"WorkbenchRecent";
constexpr std::size_t kMostFiles = 8;
/// No path that a dialog gives has it.
constexpr wchar_t kSeparator = L'\t';

void Keep(const std::vector<CString>& paths)
{
    CString text;
    for (const CString& path : paths) {
        text += text.empty() ? path : kSeparator + path;
    }
    reference_host::StoreHostSetting(kSetting, text);
}

} // namespace

std::vector<CString> ReadRecentFiles()
{
    std::vector<CString> paths;
    const CString text = reference_host::GetHostSetting(kSetting, {});
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find(kSeparator, begin), text.size());
        if (end > begin) {
            paths.push_back(text.substr(begin, end - begin));
        }
        begin = end + 1;
    }
    return paths;
}

void KeepRecentFile(const CString& path)
{
    std::vector<CString> paths = ReadRecentFiles();
    if (path.empty() || path.find(kSeparator) != CString::npos ||
        (!paths.empty() && paths.front() == path)) {
        return;
    }
    std::erase(paths, path);
    paths.insert(paths.begin(), path);
    paths.resize(std::min(paths.size(), kMostFiles));
    Keep(paths);
}

void ForgetRecentFile(const CString& path)
{
    std::vector<CString> paths = ReadRecentFiles();
    if (std::erase(paths, path) > 0) {
        Keep(paths);
    }
}

} // namespace workbench
