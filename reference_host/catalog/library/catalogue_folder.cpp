#include "reference_host/catalog/library/catalogue_folder.h"

#include "platform/folder_name.h"
#include "platform/path.h"
#include "platform/system_error.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace reference_host {

namespace {
constexpr wchar_t kFileName[] = L"hk.tga";

// How long a listing holds, at least, and in parts of what it took: of a folder that takes longer
// to look through than to work with, nothing else would ever be done.
constexpr std::chrono::seconds kShortestLife(1);
constexpr int kLifePerEffort = 10;

CFileFault FaultOf(const std::filesystem::path& path, const std::error_code& error)
{
    return {0, L"non si può leggere: " + ReasonOf(error), TextFromPath(path)};
}

void TakeFolder(CManufacturerListing& listing, const CString& folder, CString name)
{
    const std::optional<std::filesystem::path> file = FindCatalogueFile(folder, name);
    if (!file) {
        return;
    }
    std::error_code error;
    const std::filesystem::file_type type = std::filesystem::status(*file, error).type();
    if (type == std::filesystem::file_type::regular) {
        listing.names.push_back(std::move(name));
    } else if (type == std::filesystem::file_type::none) {
        listing.unreadable.emplace(std::move(name), FaultOf(*file, error));
    }
}

void SortByName(std::vector<CString>& names)
{
    std::vector<std::pair<CString, CString>> keys;
    keys.reserve(names.size());
    for (CString& name : names) {
        CString lower = ToLower(name);
        keys.emplace_back(std::move(lower), std::move(name));
    }
    std::ranges::sort(keys);
    std::ranges::transform(keys, names.begin(), [](auto& key) { return std::move(key.second); });
}
} // namespace

CManufacturerListing ListManufacturers(const CString& folder)
{
    CManufacturerListing listing;
    if (folder.empty()) {
        return listing;
    }
    const std::filesystem::path path = ResolvePath(folder);
    std::error_code error;
    std::filesystem::directory_iterator entry(path, error);
    while (!error && entry != std::filesystem::directory_iterator()) {
        TakeFolder(listing, folder, TextFromPath(entry->path().filename()));
        entry.increment(error);
    }
    if (error) {
        listing.fault = FaultOf(path, error);
    }
    SortByName(listing.names);
    return listing;
}

const CManufacturerListing& CManufacturerCache::Get(const CString& folder)
{
    const std::optional<CFileState> state = StateOf(ResolvePath(folder));
    const bool holds =
        state && state == m_state && folder == m_strFolder && Clock::now() < m_outdatedAt;
    if (!holds) {
        m_strFolder = folder;
        const Clock::time_point start = Clock::now();
        m_listing = ListManufacturers(folder);
        const Clock::time_point end = Clock::now();
        m_outdatedAt =
            end + std::max<Clock::duration>(kShortestLife, kLifePerEffort * (end - start));
        const bool isSound = !m_listing.fault && m_listing.unreadable.empty();
        m_state = isSound ? state : std::nullopt;
    }
    return m_listing;
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
