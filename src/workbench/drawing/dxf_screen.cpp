#include "workbench/drawing/dxf_screen.h"

#include "platform/encoding.h"
#include "platform/format.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>
#include <string_view>

namespace {

/// Beyond this no drawing of a building goes, and no arithmetic on coordinates overflows.
constexpr double kMaxNumber = 1e9;

/// Longest name that the format allows.
constexpr std::size_t kMaxName = 255;

/// First version of the format that writes its texts in UTF-8.
constexpr std::string_view kFirstUtf8Version = "AC1021";

constexpr int kCodeRecord = 0;
constexpr int kCodeText = 1;
constexpr int kCodeName = 2;
constexpr int kCodeLayer = 8;
constexpr int kCodeVariable = 9;
constexpr int kCodeX = 10;
constexpr int kCodeVertexCount = 90;

struct CGroup
{
    int nCode = 0;
    std::string_view value;
    int nLine = 0;
};

std::string_view Trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t";
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

/// The number that the whole text is.
template <class NUMBER>
std::optional<NUMBER> ParseNumber(std::string_view text)
{
    text = Trimmed(text);
    if (text.starts_with('+')) {
        text.remove_prefix(1);
    }
    NUMBER value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return value;
}

/// Cuts a file into groups: a line with a code, a line with its value.
class CGroupReader
{
public:
    explicit CGroupReader(std::span<const std::uint8_t> bytes)
        : m_rest(reinterpret_cast<const char*>(bytes.data()), bytes.size())
    {
    }

    CGroup Next()
    {
        CGroup group;
        const std::string_view code = TakeLine();
        group.nLine = m_nLine;
        const std::optional<int> number = ParseNumber<int>(code);
        if (!number) {
            throw CDxfFault{m_nLine, L"Manca il codice di gruppo: il file non è un DXF di testo."};
        }
        group.nCode = *number;
        group.value = TakeLine();
        return group;
    }

private:
    std::string_view TakeLine()
    {
        ++m_nLine;
        if (m_rest.empty()) {
            throw CDxfFault{m_nLine, L"Il file finisce prima della riga EOF."};
        }
        const std::size_t end = std::min(m_rest.find('\n'), m_rest.size());
        std::string_view line = m_rest.substr(0, end);
        m_rest.remove_prefix(std::min(end + 1, m_rest.size()));
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        return line;
    }

    std::string_view m_rest;
    int m_nLine = 0;
};

bool IsWanted(std::string_view section, std::string_view record)
{
    constexpr std::string_view blockRecords[] = {
        "BLOCK", "ENDBLK", "LINE", "CIRCLE", "ARC", "LWPOLYLINE", "POLYLINE", "VERTEX", "SEQEND"};
    if (section == "TABLES") {
        return record == "LAYER";
    }
    return section == "BLOCKS" && std::ranges::count(blockRecords, record) > 0;
}

bool IsReal(int code)
{
    return code >= kCodeX && code < 60;
}

bool IsInt(int code)
{
    return code >= 60 && code < 80;
}

/// Goes over the records of a file and writes down the wanted ones.
class CScreening
{
public:
    explicit CScreening(std::span<const std::uint8_t> bytes) : m_reader(bytes) {}

    CScreenedDxf Run()
    {
        CGroup group = m_reader.Next();
        while (group.nCode != kCodeRecord || Trimmed(group.value) != "EOF") {
            group = group.nCode == kCodeRecord ? TakeRecord(group) : m_reader.Next();
        }
        m_nRecordLine = group.nLine;
        Write(kCodeRecord, "EOF");
        return std::move(m_screened);
    }

private:
    /// Reads a record to its end and returns the group behind it.
    CGroup TakeRecord(const CGroup& head)
    {
        m_nRecordLine = head.nLine;
        const std::string_view record = Trimmed(head.value);
        m_groups.clear();
        CGroup group = m_reader.Next();
        for (; group.nCode != kCodeRecord; group = m_reader.Next()) {
            m_groups.push_back(group);
        }
        if (record == "SECTION") {
            EnterSection();
        } else if (IsWanted(m_section, record)) {
            WriteRecord(record);
        }
        return group;
    }

    void EnterSection()
    {
        m_section = m_groups.empty() ? std::string_view() : Trimmed(m_groups.front().value);
        // The variables of the header follow its name without a record of their own.
        for (std::size_t i = 1; i < m_groups.size(); ++i) {
            if (m_groups[i - 1].nCode == kCodeVariable &&
                Trimmed(m_groups[i - 1].value) == "$ACADVER" && m_groups[i].nCode == kCodeText) {
                m_screened.bUtf8 = Trimmed(m_groups[i].value) >= kFirstUtf8Version;
            }
        }
    }

    void WriteRecord(std::string_view record)
    {
        // dxflib would pass over it and leave its entities to nobody.
        if (record == "BLOCK" && std::ranges::count(m_groups, kCodeName, &CGroup::nCode) == 0) {
            throw CDxfFault{m_nRecordLine, L"Un blocco non ha nome."};
        }
        Write(kCodeRecord, record);
        if (record == "LWPOLYLINE") {
            // The stated count may be anything, and dxflib sizes its array by it.
            const auto count = std::ranges::count(m_groups, kCodeX, &CGroup::nCode);
            Write(kCodeVertexCount, std::to_string(count));
        }
        for (const CGroup& group : m_groups) {
            if (group.nCode == kCodeName || group.nCode == kCodeLayer) {
                WriteName(group);
            } else if (IsReal(group.nCode)) {
                WriteReal(group);
            } else if (IsInt(group.nCode)) {
                WriteInt(group);
            }
        }
    }

    void WriteName(const CGroup& group)
    {
        const bool hasControl = std::ranges::any_of(
            group.value, [](char c) { return static_cast<unsigned char>(c) < ' '; });
        if (group.value.empty() || group.value.size() > kMaxName || hasControl) {
            throw CDxfFault{group.nLine + 1, L"Nome vuoto, troppo lungo o con caratteri illeciti."};
        }
        Write(group.nCode, group.value);
    }

    void WriteReal(const CGroup& group)
    {
        const std::optional<double> value = ParseNumber<double>(group.value);
        if (!value || !(std::fabs(*value) <= kMaxNumber)) {
            RefuseNumber(group);
        }
        Write(group.nCode, Utf8FromWide(FormatExact(*value)));
    }

    void WriteInt(const CGroup& group)
    {
        const std::optional<int> value = ParseNumber<int>(group.value);
        if (!value) {
            RefuseNumber(group);
        }
        Write(group.nCode, std::to_string(*value));
    }

    [[noreturn]] static void RefuseNumber(const CGroup& group)
    {
        throw CDxfFault{group.nLine + 1, L"Gruppo " + FormatInt(group.nCode) +
                                             L": il valore non è un numero ammesso."};
    }

    void Write(int code, std::string_view value)
    {
        m_screened.strText += std::to_string(code);
        m_screened.strText += '\n';
        m_screened.strText += value;
        m_screened.strText += '\n';
        m_screened.lines.push_back(m_nRecordLine);
    }

    CGroupReader m_reader;
    std::string_view m_section;
    std::vector<CGroup> m_groups;
    int m_nRecordLine = 0;
    CScreenedDxf m_screened;
};

} // namespace

CScreenedDxf ScreenDxf(std::span<const std::uint8_t> bytes)
{
    return CScreening(bytes).Run();
}
