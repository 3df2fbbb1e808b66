#include "workbench/drawing/block_library.h"

#include "platform/path.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <unordered_set>
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
    } else {
        m_drawings.push_back(std::move(std::get<CDxfDrawing>(read)));
    }
}

std::vector<CString> CBlockLibrary::GetNames() const
{
    std::vector<CString> names;
    std::unordered_set<CString> known;
    for (const CDxfDrawing& drawing : m_drawings) {
        for (const CDxfBlock& block : drawing.blocks) {
            if (known.insert(ToLower(block.strName)).second) {
                names.push_back(block.strName);
            }
        }
    }
    return names;
}

CBlockLibrary::CFound CBlockLibrary::Find(std::wstring_view name) const
{
    for (const CDxfDrawing& drawing : m_drawings) {
        if (const CDxfBlock* const block = FindBlock(drawing, name)) {
            return {block, &drawing.layers};
        }
    }
    return {};
}

} // namespace workbench
