#include "host_defaults/answers.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <unordered_map>
#include <variant>
#include <vector>

namespace host_defaults {

namespace {

/// The largest character of all lines.
std::uint32_t LargestCharacter(const CStringArray& lines)
{
    std::uint32_t all = 0;
    for (const CString& line : lines) {
        for (const wchar_t c : line) {
            all = std::max(all, static_cast<std::uint32_t>(c));
        }
    }
    return all;
}

/// The lines of a file in one block of the narrowest characters that hold them all: catalogues have
/// a million lines of plain letters, and as many separate wide texts would cost several times what
/// stands in them.
class CLineBlock
{
public:
    explicit CLineBlock(const CStringArray& lines)
    {
        const std::uint32_t largest = LargestCharacter(lines);
        if (largest > std::numeric_limits<std::uint16_t>::max()) {
            m_text.emplace<std::vector<std::uint32_t>>();
        } else if (largest > std::numeric_limits<std::uint8_t>::max()) {
            m_text.emplace<std::vector<std::uint16_t>>();
        }
        std::visit([&](auto& text) { Fill(text, lines); }, m_text);
    }

    void CopyTo(CStringArray& lines) const
    {
        lines.RemoveAll();
        lines.Reserve(static_cast<int>(m_ends.size()));
        std::visit([&](const auto& text) { Copy(text, lines); }, m_text);
    }

private:
    template <class Char>
    void Fill(std::vector<Char>& text, const CStringArray& lines)
    {
        std::size_t length = 0;
        m_ends.reserve(static_cast<std::size_t>(lines.GetSize()));
        for (const CString& line : lines) {
            length += line.size();
            m_ends.push_back(length);
        }
        text.resize(length);
        auto place = text.begin();
        for (const CString& line : lines) {
            place = std::transform(line.begin(), line.end(), place,
                                   [](wchar_t c) { return static_cast<Char>(c); });
        }
    }

    template <class Char>
    void Copy(const std::vector<Char>& text, CStringArray& lines) const
    {
        auto start = text.begin();
        for (const std::size_t end : m_ends) {
            const auto stop = text.begin() + static_cast<std::ptrdiff_t>(end);
            lines.AddMoved(CString(start, stop));
            start = stop;
        }
    }

    std::variant<std::vector<std::uint8_t>, std::vector<std::uint16_t>, std::vector<std::uint32_t>>
        m_text;
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

CSettingsCache* lmGetCacheObject()
{
    static CLinesByPath cache;
    return &cache;
}

} // namespace host_defaults

CSettingsCache::~CSettingsCache() = default;

CSettingsCache* lmGetCacheObject()
{
    return host_defaults::lmGetCacheObject();
}
