#include "common/text_file.h"

#include "platform/encoding.h"
#include "platform/file_limits.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <limits>
#include <span>
#include <stdexcept>
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

/// Where the line ends of a chunk stand. The whole chunk is marked first, by a loop that compilers
/// turn into one of many characters at a time; what is then looked at is eight places a step.
class CLineEnds
{
public:
    template <class Char>
    explicit CLineEnds(std::span<const Char> chunk)
        : m_size(chunk.size()), m_marks(chunk.size() + sizeof(std::uint64_t))
    {
        // Into a place of its own, which the compiler knows to be none of the chunk's.
        std::array<std::uint8_t, 64> step;
        std::size_t start = 0;
        for (; start + step.size() <= m_size; start += step.size()) {
            const Char* const text = chunk.data() + start;
            for (std::size_t i = 0; i < step.size(); ++i) {
                step[i] = MarkOf(text[i]);
            }
            std::memcpy(m_marks.data() + start, step.data(), step.size());
        }
        std::transform(chunk.begin() + static_cast<std::ptrdiff_t>(start), chunk.end(),
                       m_marks.begin() + static_cast<std::ptrdiff_t>(start), MarkOf<Char>);
    }

    /// The first one from a place on; the size of the chunk if there is none.
    std::size_t Find(std::size_t from) const
    {
        for (; from < m_size; from += sizeof(std::uint64_t)) {
            std::uint64_t marks = 0;
            std::memcpy(&marks, m_marks.data() + from, sizeof marks);
            if (marks != 0) {
                return from + static_cast<std::size_t>(std::countr_zero(marks)) / 8;
            }
        }
        return m_size;
    }

    bool IsAt(std::size_t place) const { return m_marks[place] != 0; }

private:
    template <class Char>
    static std::uint8_t MarkOf(Char c)
    {
        return static_cast<std::uint8_t>((c == '\r') | (c == '\n'));
    }

    std::size_t m_size;
    std::vector<std::uint8_t> m_marks;
};

/// Hands the pieces of a chunk to `take`, and with each whether a line ends behind it. A pair of
/// line ends counts once. False if `take` gave false, which ends it.
template <class Char, class Take>
bool CutChunk(std::span<const Char> chunk, Take take)
{
    const CLineEnds ends(chunk);
    std::size_t position = 0;
    while (position < chunk.size()) {
        const std::size_t end = ends.Find(position);
        if (!take(chunk.subspan(position, end - position), end < chunk.size())) {
            return false;
        }
        position = end + 1;
        if (position < chunk.size() && ends.IsAt(position)) {
            ++position;
        }
    }
    return true;
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
        return CutChunk(chunk, [this](std::span<const Char> piece, bool isEnd) {
            AppendRun(m_line, piece);
            return !isEnd || EndLine();
        });
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

/// In a last chunk that is not full, a final blank stands for the line end that would save the last
/// line.
void RescueLastLine(std::span<std::uint8_t> bytes, std::size_t lastChunk)
{
    if (lastChunk > 0 && bytes.back() == ' ') {
        bytes.back() = '\n';
    }
}

void ReadNarrowLines(CFile& file, CLineCutter& cutter)
{
    std::vector<std::uint8_t> buffer(kNarrowChunk);
    bool more = true;
    while (more) {
        const std::size_t count = file.Read(buffer.data(), kNarrowChunk);
        RescueLastLine(std::span(buffer).first(count), count % kNarrowChunk);
        more = count > 0 && cutter.Take(std::span<const std::uint8_t>(buffer.data(), count));
    }
}

/// How many lines a whole file may have, to make room for them at once. Too much costs address
/// space only, since memory that is never touched is never there; too little makes the room grow
/// once more.
std::size_t ExpectedLines(std::uint64_t fileLength)
{
    constexpr std::uint64_t kShortLine = 32;
    constexpr std::uint64_t kMostLines = 1 << 24;
    return static_cast<std::size_t>(std::min(fileLength / kShortLine, kMostLines));
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

/// All bytes from the position of the file to its end, wherever that is by then.
std::vector<std::uint8_t> ReadBytes(CFile& file)
{
    // One more than there are, so that the end shows in the first reading.
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(file.GetLength()) + 1);
    std::size_t count = file.Read(bytes.data(), bytes.size());
    while (count == bytes.size()) {
        bytes.resize(count + kNarrowChunk);
        count += file.Read(bytes.data() + count, kNarrowChunk);
    }
    bytes.resize(count);
    return bytes;
}

/// Moves the lines together, so that nothing stands between them.
CLineBlock CutNarrowLines(std::vector<std::uint8_t> bytes)
{
    if (bytes.size() > std::numeric_limits<std::uint32_t>::max()) {
        throw std::length_error("more text than a block of lines holds");
    }
    RescueLastLine(bytes, bytes.size() % kNarrowChunk);
    std::vector<std::uint32_t> ends;
    ends.reserve(ExpectedLines(bytes.size()));
    std::size_t place = 0;
    for (std::size_t start = 0; start < bytes.size(); start += kNarrowChunk) {
        const std::span<const std::uint8_t> rest = std::span(bytes).subspan(start);
        CutChunk(rest.first(std::min(rest.size(), kNarrowChunk)), [&](auto piece, bool isEnd) {
            if (piece.data() != bytes.data() + place) {
                std::copy(piece.begin(), piece.end(),
                          bytes.begin() + static_cast<std::ptrdiff_t>(place));
            }
            place += piece.size();
            if (isEnd) {
                ends.push_back(static_cast<std::uint32_t>(place));
            }
            return true;
        });
    }
    return {std::move(bytes), std::move(ends)};
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
        lines.Reserve(lines.GetSize() + static_cast<int>(ExpectedLines(file.GetLength())));
    }
    CString dropped = ReadLines(file, lines, limit, -1);
    if (rest != nullptr) {
        *rest = std::move(dropped);
    }
    return lines.GetSize();
}

CLineBlock ReadLineBlock(CFile& file)
{
    if (!ReadByteOrderMark(file)) {
        return CutNarrowLines(ReadBytes(file));
    }
    CStringArray lines;
    ReadTextLines(file, lines, -1);
    return CLineBlock(lines);
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
