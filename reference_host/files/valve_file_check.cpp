#include "reference_host/files/valve_file_check.h"

#include "common/missing_fields.h"
#include "common/text_file.h"
#include "platform/file.h"
#include "platform/file_limits.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <set>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

namespace reference_host {

namespace {

using Fields = std::vector<std::wstring_view>;

constexpr std::wstring_view kNewHead = L"000";
constexpr std::wstring_view kArticle = L"800";

struct RecordRule
{
    std::wstring_view type;
    /// The record type that must have come before; empty: none.
    std::wstring_view parent;
    /// How many fields the line must have, the record type included.
    std::size_t nFields;
};

/// What the reader asks of a line.
constexpr RecordRule kReadingRules[] = {
    {L"010", L"", 4},       {L"100", L"", 3},       {L"110", L"100", 3},    {L"160", L"110", 2},
    {L"200", L"110", 2},    {L"400", L"110", 2},    {L"700", L"110", 1},    {L"710.01", L"110", 1},
    {L"710.02", L"110", 1}, {L"710.03", L"110", 1}, {L"710.04", L"110", 1}, {L"710.05", L"110", 1},
    {L"720.01", L"700", 9}, {L"720.02", L"700", 1}, {L"720.03", L"700", 1}, {kArticle, L"110", 2},
};

/// What fetching a valve asks of its data set, beyond the reader.
constexpr RecordRule kDataRules[] = {{L"700", L"110", 13}, {L"710.01", L"110", 9}};

Fields Split(const CString& line)
{
    Fields fields;
    SplitFields(fields, line, L';');
    return fields;
}

/// Hands the faults of the lines to `take`, until it gives false.
template <class Take>
void ForEachFault(const CString& file, const CStringArray& lines, std::span<const RecordRule> rules,
                  Take take)
{
    std::set<std::wstring_view> seen;
    int number = 0;
    for (const CString& line : lines) {
        ++number;
        const Fields fields = Split(line);
        if (fields.empty()) {
            continue;
        }
        const auto rule = std::find_if(rules.begin(), rules.end(), [&](const RecordRule& known) {
            return known.type == fields[0];
        });
        seen.insert(fields[0]);
        if (rule == rules.end()) {
            continue;
        }
        CString message;
        if (!rule->parent.empty() && !seen.contains(rule->parent)) {
            message = L"il record " + CString(rule->type) + L" non ha un record " +
                      CString(rule->parent) + L" sopra di sé";
        } else if (fields.size() < rule->nFields) {
            message = DescribeMissingFields(rule->type, fields.size(), rule->nFields);
        }
        if (!message.empty() && !take(CFileFault{number, message, file})) {
            return;
        }
    }
}

std::optional<CFileFault> FindFault(const CString& file, const CStringArray& lines,
                                    std::span<const RecordRule> rules)
{
    std::optional<CFileFault> first;
    ForEachFault(file, lines, rules, [&](CFileFault fault) {
        first = std::move(fault);
        return false;
    });
    return first;
}

} // namespace

CValveFileCheck::CValveFileCheck(const CString& path) : m_strFile(path)
{
    CFile file(path, CFile::modeRead | CFile::shareDenyWrite);
    m_bTooLarge = file.GetLength() > kLargestValveFile;
    if (!m_bTooLarge) {
        ReadTextLines(file, m_lines, -1, &m_strLost);
    }
}

std::optional<CFileFault> CValveFileCheck::FindRefusal() const
{
    if (m_bTooLarge) {
        return CFileFault{0, DescribeTooLarge(kLargestValveFile), m_strFile};
    }
    if (!m_lines.IsEmpty()) {
        const Fields head = Split(m_lines[0]);
        if (!head.empty() && head[0] == kNewHead) {
            return CFileFault{1, L"la testata 000 è di un altro tipo di file", m_strFile};
        }
    }
    return std::nullopt;
}

std::optional<CFileFault> CValveFileCheck::FindReadingFault() const
{
    if (auto refusal = FindRefusal()) {
        return refusal;
    }
    return FindFault(m_strFile, m_lines, kReadingRules);
}

std::optional<CFileFault> CValveFileCheck::FindDataFault() const
{
    return FindFault(m_strFile, m_lines, kDataRules);
}

std::vector<CFileFault> CValveFileCheck::FindAllFaults() const
{
    std::vector<CFileFault> faults;
    const auto keep = [&faults](CFileFault fault) {
        faults.push_back(std::move(fault));
        return true;
    };
    ForEachFault(m_strFile, m_lines, kReadingRules, keep);
    ForEachFault(m_strFile, m_lines, kDataRules, [&](CFileFault fault) {
        // What stops the reading of a line is told already.
        const bool known = std::ranges::any_of(
            faults, [&](const CFileFault& other) { return other.nLine == fault.nLine; });
        return known || keep(std::move(fault));
    });
    return faults;
}

std::optional<CFileFault> CValveFileCheck::FindArticle(const CString& ventilNr) const
{
    int number = 0;
    for (const CString& line : m_lines) {
        ++number;
        const Fields fields = Split(line);
        if (fields.size() > 1 && fields[0] == kArticle && fields[1] == ventilNr) {
            return CFileFault{number,
                              L"alla valvola " + ventilNr +
                                  L" manca il numero d'ordine o il record 700 a cui "
                                  L"rimanda",
                              m_strFile};
        }
    }
    return std::nullopt;
}

} // namespace reference_host
