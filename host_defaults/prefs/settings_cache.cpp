#include "host/line_block_cache.h"
#include "host_defaults/answers.h"

#include <memory>
#include <unordered_map>
#include <utility>

namespace host_defaults {

namespace {

class CLinesByPath : public CSettingsCache, public CLineBlockCache
{
public:
    bool IsFileInCache(const CString& path) const override { return m_files.contains(path); }

    void GetCacheArray(const CString& path, CStringArray& lines) const override
    {
        if (const auto block = GetCacheBlock(path)) {
            block->CopyTo(lines);
        } else {
            lines.RemoveAll();
        }
    }

    // This host has one project a process, so that no change of it ever comes.
    void AddFileToCache(const CString& path, const CStringArray& lines,
                        bool /*untilProjectChange*/) override
    {
        AddBlockToCache(path, CLineBlock(lines));
    }

    std::shared_ptr<const CLineBlock> GetCacheBlock(const CString& path) const override
    {
        const auto found = m_files.find(path);
        return found == m_files.end() ? nullptr : found->second;
    }

    std::shared_ptr<const CLineBlock> AddBlockToCache(const CString& path,
                                                      CLineBlock lines) override
    {
        auto block = std::make_shared<const CLineBlock>(std::move(lines));
        m_files.insert_or_assign(path, block);
        return block;
    }

private:
    std::unordered_map<CString, std::shared_ptr<const CLineBlock>> m_files;
};

CLinesByPath& TheCache()
{
    static CLinesByPath cache;
    return cache;
}

} // namespace

CSettingsCache* lmGetCacheObject()
{
    return &TheCache();
}

} // namespace host_defaults

CSettingsCache::~CSettingsCache() = default;

CSettingsCache* lmGetCacheObject()
{
    return host_defaults::lmGetCacheObject();
}

CLineBlockCache* RadselLineBlocks(CSettingsCache* cache)
{
    auto& own = host_defaults::TheCache();
    return cache == &own ? &own : nullptr;
}
