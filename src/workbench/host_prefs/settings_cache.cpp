#include "host/host_prefs.h"

#include <unordered_map>

namespace {

class CLinesByPath : public CSettingsCache
{
public:
    bool IsFileInCache(const CString& path) const override { return m_files.contains(path); }

    void GetCacheArray(const CString& path, CStringArray& lines) const override
    {
        const auto found = m_files.find(path);
        lines = found == m_files.end() ? CStringArray() : found->second;
    }

    // This host has one project a process, so that no change of it ever comes.
    void AddFileToCache(const CString& path, const CStringArray& lines,
                        bool /*untilProjectChange*/) override
    {
        m_files[path] = lines;
    }

private:
    std::unordered_map<CString, CStringArray> m_files;
};

} // namespace

CSettingsCache::~CSettingsCache() = default;

CSettingsCache* lmGetCacheObject()
{
    static CLinesByPath cache;
    return &cache;
}
