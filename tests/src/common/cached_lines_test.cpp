#include "common/cached_lines.h"

#include "host/line_block_cache.h"
#include "tests/src/common/lines.h"
#include "tests/support/temp_folder.h"

#include <gtest/gtest.h>

#include <map>

namespace {

/// The cache of a host that knows of arrays only.
class CArrayCache : public CSettingsCache
{
public:
    bool IsFileInCache(const CString& path) const override { return m_files.contains(path); }
    void GetCacheArray(const CString& path, CStringArray& lines) const override
    {
        lines = m_files.at(path);
    }
    void AddFileToCache(const CString& path, const CStringArray& lines, bool flag) override
    {
        EXPECT_FALSE(flag);
        m_files[path] = lines;
    }

private:
    std::map<CString, CStringArray> m_files;
};

CStringArray LinesOf(const std::shared_ptr<const CLineBlock>& block)
{
    CStringArray lines;
    block->CopyTo(lines);
    return lines;
}

} // namespace

TEST(CachedLines, AFileIsReadOnceWhateverTheHostsCacheKeeps)
{
    constexpr std::uint64_t kLargest = 8;
    const CTempFolder folder;
    const CString path = folder.Path("file.txt");
    CArrayCache arrays;
    ASSERT_NE(RadselLineBlocks(lmGetCacheObject()), nullptr);
    ASSERT_EQ(RadselLineBlocks(&arrays), nullptr);
    for (CSettingsCache* const cache :
         {static_cast<CSettingsCache*>(&arrays), lmGetCacheObject()}) {
        folder.WriteBytes("file.txt", "nine bytes");
        EXPECT_EQ(ReadCachedLines(path, kLargest, *cache), nullptr);
        EXPECT_EQ(ReadCachedLines(folder.Path("none"), kLargest, *cache), nullptr);
        EXPECT_FALSE(cache->IsFileInCache(path));

        folder.WriteBytes("file.txt", "\x80;a\r\nb\n");
        const CStringArray first = Lines({L"\u20AC;a", L"b"});
        EXPECT_EQ(LinesOf(ReadCachedLines(path, kLargest, *cache)), first);
        folder.WriteBytes("file.txt", "c\n");
        EXPECT_EQ(LinesOf(ReadCachedLines(path, kLargest, *cache)), first);

        CStringArray held;
        cache->GetCacheArray(path, held);
        EXPECT_EQ(held, first);
        const auto block = ReadCachedLines(path, kLargest, *cache);
        cache->AddFileToCache(path, Lines({L"d"}), false);
        EXPECT_EQ(LinesOf(ReadCachedLines(path, kLargest, *cache)), Lines({L"d"}));
        EXPECT_EQ(LinesOf(block), first) << "what was lent stays";
    }
}
