#include "host/host_prefs.h"

#include <cstddef>
#include <unordered_map>
#include <vector>

namespace {

/// The lines of a file in one block: catalogues have a million of them, and as many separate texts
/// would cost more than what stands in them.
class CLineBlock
{
public:
    explicit CLineBlock(const CStringArray& lines)
    {
        std::size_t length = 0;
        for (const CString& line : lines) {
            length += line.size();
        }
        m_text.reserve(length);
        m_ends.reserve(static_cast<std::size_t>(lines.GetSize()));
        for (const CString& line : lines) {
            m_text += line;
            m_ends.push_back(m_text.size());
        }
    }

    void CopyTo(CStringArray& lines) const
    {
        lines.RemoveAll();
        lines.Reserve(static_cast<int>(m_ends.size()));
        std::size_t start = 0;
        for (const std::size_t end : m_ends) {
            lines.AddMoved(m_text.substr(start, end - start));
            start = end;
        }
    }

private:
    CString m_text;
    std::vector<std::size_t> m_ends;
};

class CLinesByPath : public CSettingsCache
{
public:
    bool IsFileInCache(const CString& path) const override { return m_files.contains(path); }

    void GetCacheArray(const CString& path, CStringArray& lines) const override
    {
        const auto found = m_files.find(path);
        if (found == m_files.end()) {
            lines.RemoveAll();
        } else {
            found->second.CopyTo(lines);
        }
    }

    // This host has one project a process, so that no change of it ever comes.
    void AddFileToCache(const CString& path, const CStringArray& lines,
                        bool /*untilProjectChange*/) override
    {
        m_files.insert_or_assign(path, CLineBlock(lines));
    }

private:
    std::unordered_map<CString, CLineBlock> m_files;
};

} // namespace

CSettingsCache::~CSettingsCache() = default;

CSettingsCache* lmGetCacheObject()
{
    static CLinesByPath cache;
    return &cache;
}
