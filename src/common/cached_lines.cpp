#include "common/cached_lines.h"

#include "common/text_file.h"
#include "host/line_block_cache.h"
#include "platform/file.h"

namespace {

using Block = std::shared_ptr<const CLineBlock>;

Block TakeFromCache(const CSettingsCache& cache, const CLineBlockCache* blocks, const CString& path)
{
    if (blocks != nullptr) {
        return blocks->GetCacheBlock(path);
    }
    CStringArray lines;
    cache.GetCacheArray(path, lines);
    return std::make_shared<const CLineBlock>(lines);
}

Block ReadIntoCache(CFile& file, CSettingsCache& cache, CLineBlockCache* blocks,
                    const CString& path)
{
    if (blocks != nullptr) {
        return blocks->AddBlockToCache(path, ReadLineBlock(file));
    }
    CStringArray lines;
    ReadTextLines(file, lines, -1);
    file.Close();
    cache.AddFileToCache(path, lines, false);
    return std::make_shared<const CLineBlock>(lines);
}

CLineBlockCache* BlocksOf(CSettingsCache& cache)
{
    return HOST_HAS(RadselLineBlocks) ? RadselLineBlocks(&cache) : nullptr;
}

} // namespace

Block ReadCachedLines(const CString& path, std::uint64_t largest, CSettingsCache& cache)
{
    CLineBlockCache* const blocks = BlocksOf(cache);
    if (cache.IsFileInCache(path)) {
        return TakeFromCache(cache, blocks, path);
    }
    CFile file;
    if (!file.Open(path, CFile::modeRead | CFile::shareDenyWrite) || file.GetLength() > largest) {
        return nullptr;
    }
    return ReadIntoCache(file, cache, blocks, path);
}
