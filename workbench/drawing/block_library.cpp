#include "workbench/drawing/block_library.h"

#include "platform/path.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

namespace workbench {

namespace {

bool IsDrawing(const std::filesystem::path& path)
{
    std::error_code error;
    return EqualNoCase(TextFromPath(path.extension()), L".dxf") &&
           std::filesystem::is_regular_file(path, error);
}

/// Paths of the drawings in a folder; of one that cannot be read, none.
std::vector<CString> DrawingsIn(const std::filesystem::path& folder)
{
    std::vector<CString> paths;
    std::error_code error;
    std::filesystem::directory_iterator entry(folder, error);
    while (!error && entry != std::filesystem::directory_iterator()) {
        if (IsDrawing(entry->path())) {
            paths.push_back(TextFromPath(entry->path()));
        }
        entry.increment(error);
    }
    std::ranges::sort(paths, {},
                      [](const CString& path) { return std::pair(ToLower(path), path); });
    return paths;
}

} // namespace

CBlockLibrary::CBlockLibrary(const CString& path)
{
    const std::filesystem::path resolved = ResolvePath(path);
    std::error_code error;
    if (!std::filesystem::is_directory(resolved, error)) {
        Read(path);
        return;
    }
    for (const CString& drawing : DrawingsIn(resolved)) {
        Read(drawing);
    }
}

void CBlockLibrary::Read(const CString& path)
{
    auto read = ReadDxfFile(path);
    if (auto* const error = std::get_if<CFileFault>(&read)) {
        m_errors.push_back(std::move(*error));
        return;
    }
    m_drawings.push_back(std::move(std::get<CDxfDrawing>(read)));
    const std::vector<CDxfBlock>& blocks = m_drawings.back().blocks;
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        const CPlace place{m_drawings.size() - 1, i};
        if (m_places.try_emplace(ToLower(blocks[i].strName), place).second) {
            m_names.push_back(blocks[i].strName);
        }
    }
}

CBlockLibrary::CFound CBlockLibrary::Find(std::wstring_view name) const
{
    const auto found = m_places.find(ToLower(CString(name)));
    if (found == m_places.end()) {
        return {};
    }
    const CDxfDrawing& drawing = m_drawings[found->second.nDrawing];
    return {&drawing.blocks[found->second.nBlock], &drawing.layers};
}

} // namespace workbench
