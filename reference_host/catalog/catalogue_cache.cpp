#include "reference_host/catalog/catalogue_cache.h"

#include "platform/exception.h"
#include "platform/path.h"
#include "platform/whole_file.h"

namespace reference_host {

namespace {
std::optional<struct stat> StatusOf(const std::filesystem::path& path)
{
    struct stat status = {};
    if (stat(path.c_str(), &status) != 0) {
        return std::nullopt;
    }
    return status;
}

bool IsSameTime(const timespec& a, const timespec& b)
{
    return a.tv_sec == b.tv_sec && a.tv_nsec == b.tv_nsec;
}

/// The time of the last change of state counts as well: copying tools set the other one back.
bool IsSameState(const struct stat& a, const struct stat& b)
{
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino && a.st_size == b.st_size &&
           IsSameTime(a.st_mtim, b.st_mtim) && IsSameTime(a.st_ctim, b.st_ctim);
}

CCatalogueCache::CResult ReadCatalogue(const std::filesystem::path& path)
{
    try {
        const auto bytes = ReadWholeFile(TextFromPath(path), kMaxCatalogueBytes);
        if (!bytes) {
            return CFileFault{0, L"Il file è troppo grande per un catalogo."};
        }
        return ParseCatalogue(BytesOf(*bytes));
    } catch (const CFileException& error) {
        return CFileFault{0, L"Il catalogo non si può leggere: " + error.GetErrorMessage()};
    }
}
} // namespace

const CCatalogueCache::CResult& CCatalogueCache::Get(const std::filesystem::path& path)
{
    CEntry& entry = m_entries[path];
    // Taken before the reading, so that a change during it shows next time.
    const std::optional<struct stat> status = StatusOf(path);
    if (!status || !entry.status || !IsSameState(*status, *entry.status)) {
        entry.result = ReadCatalogue(path);
        entry.status = status;
    }
    return entry.result;
}

} // namespace reference_host
