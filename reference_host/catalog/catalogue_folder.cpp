#include "reference_host/catalog/catalogue_folder.h"

#include "platform/path.h"

#include <algorithm>
#include <string_view>
#include <system_error>
#include <utility>

namespace reference_host {

namespace {
constexpr wchar_t kFileName[] = L"hk.tga";

bool IsFolderName(const CString& name)
{
    constexpr std::wstring_view separators(L"\\/\0", 3);
    return !name.empty() && name != L"." && name != L".." &&
           name.find_first_of(separators) == CString::npos;
}

bool HasCatalogue(const CString& folder, const CString& hersteller)
{
    const std::optional<std::filesystem::path> file = FindCatalogueFile(folder, hersteller);
    std::error_code error;
    return file && std::filesystem::is_regular_file(*file, error);
}

bool ComesBefore(const CString& a, const CString& b)
{
    return std::pair(ToLower(a), a) < std::pair(ToLower(b), b);
}
} // namespace

std::vector<CString> ListManufacturers(const CString& folder)
{
    std::vector<CString> names;
    if (folder.empty()) {
        return names;
    }
    std::error_code error;
    std::filesystem::directory_iterator entry(ResolvePath(folder), error);
    while (!error && entry != std::filesystem::directory_iterator()) {
        CString name = TextFromPath(entry->path().filename());
        if (HasCatalogue(folder, name)) {
            names.push_back(std::move(name));
        }
        entry.increment(error);
    }
    std::ranges::sort(names, ComesBefore);
    return names;
}

std::optional<std::filesystem::path> FindCatalogueFile(const CString& folder,
                                                       const CString& hersteller)
{
    if (folder.empty() || !IsFolderName(hersteller)) {
        return std::nullopt;
    }
    return ResolvePath(JoinPath(JoinPath(folder, hersteller), kFileName));
}

} // namespace reference_host
