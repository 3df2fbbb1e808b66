#include "reference_host/catalog/library/catalogue_cache.h"

#include "platform/exception.h"
#include "platform/file_limits.h"
#include "platform/path.h"
#include "platform/whole_file.h"

namespace reference_host {

namespace {
CCatalogueCache::CResult ReadCatalogue(const std::filesystem::path& path)
{
    try {
        const auto bytes = ReadWholeFile(TextFromPath(path), kLargestCatalogue);
        if (!bytes) {
            return CFileFault{0, DescribeTooLarge(kLargestCatalogue)};
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
    const std::optional<CFileState> state = StateOf(path);
    if (!state || state != entry.state) {
        entry.result = ReadCatalogue(path);
        entry.state = state;
    }
    return entry.result;
}

} // namespace reference_host
