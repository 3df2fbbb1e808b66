#pragma once

#include "platform/file_state.h"
#include "platform/text.h"
#include "reference_host/catalog/reader/catalogue_file.h"

#include <filesystem>
#include <map>
#include <optional>
#include <variant>

namespace reference_host {

/// Catalogue files in parsed form. A file is read again only if its size, its identity or
/// one of its times has changed.
class CCatalogueCache
{
public:
    using CResult = std::variant<CCatalogue, CFileFault>;

    /// The model of the file or why there is none. Good until the next call for the same path.
    const CResult& Get(const std::filesystem::path& path);

private:
    struct CEntry
    {
        /// The file as it stood when it was read.
        std::optional<CFileState> state;
        CResult result;
    };

    std::map<std::filesystem::path, CEntry> m_entries;
};

} // namespace reference_host
