#include "reference_host/catalog/reader/catalogue_text.h"

#include "platform/encoding.h"
#include "platform/format.h"
#include "platform/number_scan.h"
#include "reference_host/catalog/reader/catalogue_file.h"

#include <algorithm>
#include <array>
#include <string>

namespace reference_host {

namespace {
// No record has as many. Without a limit a file of nothing but separators would take sixteen times
// its size.
constexpr std::size_t kMaxFields = 16;

constexpr std::wstring_view kDigits = L"0123456789";

bool StartsWith(std::span<const std::uint8_t> bytes, std::span<const std::uint8_t> mark)
{
    return bytes.size() >= mark.size() && std::ranges::equal(bytes.first(mark.size()), mark);
}

CString DecodeUtf16(std::span<const std::uint8_t> bytes)
{
    std::u16string units(bytes.size() / 2, u'\0');
    for (std::size_t i = 0; i < units.size(); ++i) {
        units[i] = static_cast<char16_t>(bytes[2 * i] | bytes[2 * i + 1] << 8);
    }
    CString text;
    AppendUtf16(text, units);
    return text;
}

/// What stands behind the number at the start of a field; nothing if no number stands there.
std::optional<std::wstring_view> BehindNumber(std::wstring_view field)
{
    field.remove_prefix(std::min(field.find_first_not_of(L" \t"), field.size()));
    if (!field.empty() && (field.front() == L'+' || field.front() == L'-')) {
        field.remove_prefix(1);
    }
    const std::size_t first = field.substr(0, 1) == L"." ? 1 : 0;
    if (first >= field.size() || kDigits.find(field[first]) == std::wstring_view::npos) {
        return std::nullopt;
    }
    field.remove_prefix(std::min(field.find_first_not_of(kDigits, first), field.size()));
    return field;
}
} // namespace

std::optional<CString> DecodeCatalogue(std::span<const std::uint8_t> bytes)
{
    constexpr std::array<std::uint8_t, 2> utf16Little = {0xFF, 0xFE};
    constexpr std::array<std::uint8_t, 2> utf16Big = {0xFE, 0xFF};
    constexpr std::array<std::uint8_t, 3> utf8 = {0xEF, 0xBB, 0xBF};
    if (StartsWith(bytes, utf16Little)) {
        return DecodeUtf16(bytes.subspan(utf16Little.size()));
    }
    if (StartsWith(bytes, utf16Big) || StartsWith(bytes, utf8)) {
        return std::nullopt;
    }
    CString text;
    AppendCp1252(text, bytes);
    return text;
}

std::wstring_view TakeLine(std::wstring_view& rest)
{
    const std::size_t end = std::min(rest.find(L'\n'), rest.size());
    std::wstring_view line = rest.substr(0, end);
    rest.remove_prefix(std::min(end + 1, rest.size()));
    if (line.ends_with(L'\r')) {
        line.remove_suffix(1);
    }
    return line;
}

CRecordLine::CRecordLine(std::wstring_view line, int nLine) : m_nLine(nLine)
{
    while (m_fields.size() < kMaxFields) {
        const std::size_t end = std::min(line.find(L';'), line.size());
        m_fields.push_back(line.substr(0, end));
        if (end == line.size()) {
            return;
        }
        line.remove_prefix(end + 1);
    }
}

std::wstring_view CRecordLine::Field(int field) const
{
    const auto index = static_cast<std::size_t>(field);
    return index < m_fields.size() ? m_fields[index] : std::wstring_view();
}

CString CRecordLine::ReadText(int field, const wchar_t* name) const
{
    if (IsEmpty(field)) {
        RefuseField(field, name, L"manca il testo.");
    }
    return GetText(field);
}

double CRecordLine::ReadNumber(int field, const wchar_t* name, double min, double max) const
{
    RequireNumber(field, name);
    const double value = _wtof(GetText(field));
    if (!(value >= min && value <= max)) {
        RefuseField(field, name,
                    GetText(field) + L" non è compreso tra " + FormatFixed(min, 1) + L" e " +
                        FormatFixed(max, 1) + L".");
    }
    return value;
}

double CRecordLine::ReadOptionalNumber(int field, const wchar_t* name, double min, double max,
                                       double fallback) const
{
    return IsEmpty(field) ? fallback : ReadNumber(field, name, min, max);
}

int CRecordLine::ReadInt(int field, const wchar_t* name, int min, int max) const
{
    RequireNumber(field, name);
    const int value = _wtoi(GetText(field));
    if (value < min || value > max) {
        RefuseField(field, name,
                    GetText(field) + L" non è compreso tra " + FormatInt(min) + L" e " +
                        FormatInt(max) + L".");
    }
    return value;
}

void CRecordLine::Refuse(const CString& message) const
{
    throw CFileFault{m_nLine, message};
}

void CRecordLine::RefuseField(int field, const wchar_t* name, const CString& message) const
{
    Refuse(L"Record " + GetText(0) + L", campo " + FormatInt(field) + L" (" + name + L"): " +
           message);
}

void CRecordLine::RequireNumber(int field, const wchar_t* name) const
{
    const std::optional<std::wstring_view> behind = BehindNumber(Field(field));
    if (!behind) {
        RefuseField(field, name, L"manca il numero.");
    }
    // Read as far as the comma, 1,30 would pass for 1 and nobody would notice.
    if (behind->starts_with(L',')) {
        RefuseField(field, name, L"i decimali si scrivono con il punto.");
    }
}

} // namespace reference_host
