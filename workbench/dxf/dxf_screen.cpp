#include "workbench/dxf/dxf_screen.h"

#include "platform/decimal.h"
#include "platform/encoding.h"
#include "platform/format.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <optional>
#include <string_view>

namespace workbench {

namespace {

/// Beyond this no drawing of a building goes, and no arithmetic on coordinates overflows.
constexpr double kMaxNumber = 1e9;

/// Longest name that the format allows.
constexpr std::size_t kMaxName = 255;

/// Texts may be longer, but no line of dxflib's reaches 1024 bytes.
constexpr std::size_t kMaxText = 1000;

/// First version of the format that writes its texts in UTF-8.
constexpr std::string_view kFirstUtf8Version = "AC1021";

constexpr int kCodeRecord = 0;
constexpr int kCodeText = 1;
constexpr int kCodeName = 2;
constexpr int kCodeLayer = 8;
constexpr int kCodeVariable = 9;
constexpr int kCodeX = 10;
constexpr int kCodeWidthFactor = 41;
constexpr int kCodeAngle = 50;
constexpr int kCodePaperSpace = 67;
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
    const auto [end, error] = FromChars(text.data(), text.data() + text.size(), value);
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
            throw CFileFault{m_nLine, L"Manca il codice di gruppo: il file non è un DXF di testo."};
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
            throw CFileFault{m_nLine, L"Il file finisce prima della riga EOF."};
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

bool IsOneOf(std::string_view record, std::initializer_list<std::string_view> records)
{
    return std::ranges::count(records, record) > 0;
}

bool IsShape(std::string_view record)
{
    return IsOneOf(record, {"LINE", "CIRCLE", "ARC", "LWPOLYLINE", "POLYLINE"});
}

/// True for records that belong to the one before them that is none of these.
bool IsPart(std::string_view record)
{
    return IsOneOf(record, {"VERTEX", "ATTRIB", "SEQEND"});
}

/// What a record without a name is called, of those that dxflib would pass over for it, leaving
/// what follows to nobody or to the one before; empty for all others.
CString NeedOfName(std::string_view record)
{
    if (record == "BLOCK") {
        return L"Un blocco";
    }
    if (record == "INSERT") {
        return L"L'inserimento di un blocco";
    }
    return IsOneOf(record, {"ATTDEF", "ATTRIB"}) ? L"Un attributo" : L"";
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
    CScreening(std::span<const std::uint8_t> bytes, DxfContent content)
        : m_reader(bytes), m_content(content)
    {
    }

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
        } else if (IsWanted(record)) {
            WriteRecord(record);
        }
        return group;
    }

    bool IsWanted(std::string_view record)
    {
        if (!IsPart(record)) {
            m_bWanted = IsWantedAlone(record);
        }
        return m_bWanted;
    }

    bool IsWantedAlone(std::string_view record)
    {
        if (m_section == "TABLES") {
            return record == "LAYER";
        }
        if (m_section == "BLOCKS") {
            const bool bounds = IsOneOf(record, {"BLOCK", "ENDBLK"});
            m_bInBlock = bounds ? record == "BLOCK" : m_bInBlock;
            return bounds || (m_bInBlock && (IsShape(record) || record == "ATTDEF"));
        }
        return m_section == "ENTITIES" && m_content == DxfContent::wholeDrawing &&
               (IsShape(record) || IsOneOf(record, {"INSERT", "TEXT"})) && !IsInPaperSpace();
    }

    /// Frames and legends of a printed sheet are in its scale, not in that of the drawing.
    bool IsInPaperSpace() const
    {
        return std::ranges::any_of(m_groups, [](const CGroup& group) {
            return group.nCode == kCodePaperSpace && Trimmed(group.value) == "1";
        });
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
        const CString needy = NeedOfName(record);
        if (!needy.empty() && std::ranges::count(m_groups, kCodeName, &CGroup::nCode) == 0) {
            throw CFileFault{m_nRecordLine, needy + L" non ha nome."};
        }
        Write(kCodeRecord, record == "ATTDEF" ? "ATTRIB" : record);
        if (record == "LWPOLYLINE") {
            // The stated count may be anything, and dxflib sizes its array by it.
            const auto count = std::ranges::count(m_groups, kCodeX, &CGroup::nCode);
            Write(kCodeVertexCount, std::to_string(count));
        }
        if (record == "TEXT") {
            Write(kCodeWidthFactor, "0");
            std::erase_if(m_groups,
                          [](const auto& group) { return group.nCode == kCodeWidthFactor; });
        }
        for (const CGroup& group : m_groups) {
            WriteGroup(record, group);
        }
    }

    void WriteGroup(std::string_view record, const CGroup& group)
    {
        if (group.nCode == kCodeName || group.nCode == kCodeLayer) {
            WriteText(group, 1, kMaxName);
        } else if (group.nCode == kCodeText && IsOneOf(record, {"TEXT", "ATTRIB", "ATTDEF"})) {
            WriteText(group, 0, kMaxText);
        } else if (group.nCode == kCodeAngle && record == "TEXT") {
            WriteReal(group, kCodeWidthFactor);
        } else if (IsReal(group.nCode)) {
            WriteReal(group, group.nCode);
        } else if (IsInt(group.nCode)) {
            WriteInt(group);
        }
    }

    void WriteText(const CGroup& group, std::size_t least, std::size_t most)
    {
        const bool hasControl = std::ranges::any_of(
            group.value, [](char c) { return static_cast<unsigned char>(c) < ' '; });
        if (group.value.size() < least || group.value.size() > most || hasControl) {
            throw CFileFault{group.nLine + 1,
                             L"Testo vuoto, troppo lungo o con caratteri illeciti."};
        }
        Write(group.nCode, group.value);
    }

    void WriteReal(const CGroup& group, int code)
    {
        const std::optional<double> value = ParseNumber<double>(group.value);
        if (!value || !(std::fabs(*value) <= kMaxNumber)) {
            RefuseNumber(group);
        }
        Write(code, Utf8FromWide(FormatExact(*value)));
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
        throw CFileFault{group.nLine + 1, L"Gruppo " + FormatInt(group.nCode) +
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
    DxfContent m_content;
    std::string_view m_section;
    bool m_bInBlock = false;
    /// Whether the last record that is no part of another was wanted.
    bool m_bWanted = false;
    std::vector<CGroup> m_groups;
    int m_nRecordLine = 0;
    CScreenedDxf m_screened;
};

} // namespace

CScreenedDxf ScreenDxf(std::span<const std::uint8_t> bytes, DxfContent content)
{
    return CScreening(bytes, content).Run();
}

} // namespace workbench
