#include "common/text_file.h"

#include "platform/encoding.h"
#include "platform/file_limits.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <functional>
#include <iterator>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

// The chunks are part of the format: a CR LF that a border cuts in two counts as two line ends.
constexpr std::size_t kNarrowChunk = 65536;
constexpr std::size_t kWideChunk = 131072 / sizeof(char16_t);

constexpr char16_t kByteOrderMark = 0xFEFF;

static_assert(std::endian::native == std::endian::little,
              "UTF-16 is read and written as it lies in memory");

template <class Char>
bool IsLineEnd(Char c)
{
    return c == '\r' || c == '\n';
}

void AppendRun(CString& line, std::span<const std::uint8_t> run)
{
    AppendCp1252(line, run);
}

void AppendRun(CString& line, std::span<const char16_t> run)
{
    AppendUtf16(line, {run.data(), run.size()});
}

/// Cuts the chunks of a file into lines. A line may go on from chunk to chunk.
class CLineCutter
{
public:
    CLineCutter(CStringArray& lines, int limit) : m_lines(lines), m_limit(limit) {}

    /// Takes the next chunk; false if the limit was reached.
    template <class Char>
    bool Take(std::span<const Char> chunk)
    {
        auto position = chunk.begin();
        while (position != chunk.end()) {
            const auto end = std::find_if(position, chunk.end(), IsLineEnd<Char>);
            AppendRun(m_line, std::span<const Char>(position, end));
            if (end == chunk.end()) {
                break;
            }
            position = std::next(end);
            if (position != chunk.end() && IsLineEnd(*position)) {
                ++position;
            }
            if (!EndLine()) {
                return false;
            }
        }
        return true;
    }

    /// What stands behind the last line end.
    CString TakeRest() { return std::move(m_line); }

private:
    bool EndLine()
    {
        m_lines.AddMoved(std::exchange(m_line, {}));
        return m_limit == -1 || m_lines.GetSize() != m_limit;
    }

    CStringArray& m_lines;
    int m_limit;
    CString m_line;
};

bool ReadByteOrderMark(CFile& file)
{
    char16_t mark = 0;
    file.Seek(0);
    if (file.Read(&mark, sizeof mark) == sizeof mark && mark == kByteOrderMark) {
        return true;
    }
    file.Seek(0);
    return false;
}

void ReadWideLines(CFile& file, CLineCutter& cutter)
{
    std::vector<char16_t> buffer(kWideChunk);
    bool more = true;
    while (more) {
        const std::size_t bytes = file.Read(buffer.data(), kWideChunk * sizeof(char16_t));
        const std::size_t count = bytes / sizeof(char16_t);
        more = count > 0 && cutter.Take(std::span<const char16_t>(buffer.data(), count));
    }
}

void ReadNarrowLines(CFile& file, CLineCutter& cutter)
{
    std::vector<std::uint8_t> buffer(kNarrowChunk);
    bool more = true;
    while (more) {
        const std::size_t count = file.Read(buffer.data(), kNarrowChunk);
        // A final blank stands for the line end that would save the last line.
        if (count > 0 && count < kNarrowChunk && buffer[count - 1] == ' ') {
            buffer[count - 1] = '\n';
        }
        more = count > 0 && cutter.Take(std::span<const std::uint8_t>(buffer.data(), count));
    }
}

/// Makes room for the lines of a whole file at once. Too much costs address space only, since
/// memory that is never touched is never there; too little makes the array grow once more.
void ReserveFor(const CFile& file, CStringArray& lines)
{
    constexpr std::uint64_t kShortLine = 32;
    constexpr std::uint64_t kMostLines = 1 << 24;
    const std::uint64_t expected = std::min(file.GetLength() / kShortLine, kMostLines);
    lines.Reserve(lines.GetSize() + static_cast<int>(expected));
}

/// Returns what stands behind the last line end.
CString ReadLines(CFile& file, CStringArray& lines, int wideLimit, int narrowLimit)
{
    const bool isWide = ReadByteOrderMark(file);
    CLineCutter cutter(lines, isWide ? wideLimit : narrowLimit);
    if (isWide) {
        ReadWideLines(file, cutter);
    } else {
        ReadNarrowLines(file, cutter);
    }
    return cutter.TakeRest();
}

/// Collects text for a file, so that short lines do not cost a system call each.
class CWideWriter
{
public:
    explicit CWideWriter(CFile& file) : m_file(file) {}

    void Put(std::u16string_view units)
    {
        m_pending += units;
        if (m_pending.size() >= kWideChunk) {
            Flush();
        }
    }

    void Flush()
    {
        m_file.Write(m_pending.data(), m_pending.size() * sizeof(char16_t));
        m_pending.clear();
    }

private:
    CFile& m_file;
    std::u16string m_pending;
};

template <class Take>
void ForEachField(std::wstring_view text, wchar_t separator, Take take)
{
    const bool runsCountOnce = separator == L' ' || separator == L'\t';
    const std::wstring_view content = separator == L'\n' ? text : text.substr(0, text.find(L'\n'));
    std::size_t start = 0;
    while (start < content.size()) {
        const std::size_t end = std::min(content.find(separator, start), content.size());
        take(content.substr(start, end - start));
        start = end + 1;
        while (runsCountOnce && start < content.size() && content[start] == separator) {
            ++start;
        }
    }
}

bool IsElementOf(const CStringArray& array, const CString& text)
{
    const std::less<const CString*> before;
    const CString* const first = array.GetData();
    return !before(&text, first) && before(&text, first + array.GetSize());
}

} // namespace

int ReadTextLines(CFile& file, CStringArray& lines, int limit, CString* rest)
{
    if (limit == -1) {
        ReserveFor(file, lines);
    }
    CString dropped = ReadLines(file, lines, limit, -1);
    if (rest != nullptr) {
        *rest = std::move(dropped);
    }
    return lines.GetSize();
}

int ReadTextFile(const CString& path, CStringArray& lines, unsigned flags, int limit)
{
    CFile file;
    if (!file.Open(path, flags) || file.GetLength() > kLargestList) {
        return 0;
    }
    const int count = ReadTextLines(file, lines, limit);
    file.Close();
    return count;
}

bool ReadFirstLine(const CString& path, CString& line, std::uint64_t largest)
{
    CFile file;
    if (!file.Open(path, CFile::modeRead) || file.GetLength() > largest) {
        return false;
    }
    CStringArray lines;
    ReadLines(file, lines, 1, 1);
    if (lines.IsEmpty()) {
        return false;
    }
    line = lines[0];
    return true;
}

bool WriteTextFile(const CString& path, const CStringArray& lines, bool cut, bool append,
                   unsigned flags)
{
    CFile file;
    if (!file.Open(path, flags)) {
        return false;
    }
    if (cut) {
        file.SetLength(0);
    }
    if (append) {
        file.SeekToEnd();
    }

    CWideWriter writer(file);
    if (file.GetPosition() == 0) {
        writer.Put({&kByteOrderMark, 1});
    }
    for (const CString& line : lines) {
        writer.Put(Utf16FromWide(line));
        writer.Put(u"\r\n");
    }
    writer.Flush();
    file.Close();
    return true;
}

int SplitString(CStringArray& fields, const CString& text, wchar_t separator)
{
    if (IsElementOf(fields, text)) {
        // The array may move its elements while it grows.
        return SplitString(fields, CString(text), separator);
    }
    ForEachField(text, separator,
                 [&fields](std::wstring_view field) { fields.AddMoved(CString(field)); });
    return fields.GetSize();
}

void SplitFields(std::vector<std::wstring_view>& fields, std::wstring_view text, wchar_t separator)
{
    ForEachField(text, separator, [&fields](std::wstring_view field) { fields.push_back(field); });
}
