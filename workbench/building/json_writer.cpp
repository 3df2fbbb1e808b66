#include "workbench/building/json_writer.h"

#include "platform/encoding.h"
#include "workbench/building/character.h"
#include "workbench/building/json_value.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <string_view>
#include <utility>

namespace workbench {

namespace {

/// Within these bounds numbers of a building are easier to read without an exponent.
constexpr double kSmallestPlain = 1e-6;
constexpr double kLargestPlain = 1e15;

bool IsWithin(wchar_t c, wchar_t first, wchar_t last)
{
    return c >= first && c <= last;
}

/// UTF-8 has no surrogates, control characters do not show, and the private ones stand for bytes of
/// file names, which the conversion would write as such.
bool NeedsCode(wchar_t c)
{
    return IsWithin(c, 0, 0x1f) || IsWithin(c, 0x7f, 0x9f) || IsWithin(c, 0xd800, 0xdfff) ||
           IsWithin(c, 0xf700, 0xf7ff);
}

void AppendCharacter(CString& text, wchar_t c)
{
    constexpr std::wstring_view shortCodes = L"\b\f\n\r\t";
    if (const std::size_t place = shortCodes.find(c); place != shortCodes.npos) {
        text += {L'\\', L"bfnrt"[place]};
    } else if (NeedsCode(c)) {
        std::array<wchar_t, 8> code;
        std::swprintf(code.data(), code.size(), L"\\u%04x", static_cast<unsigned>(c));
        text += code.data();
    } else {
        text += c;
    }
}

/// The characters with codes for those that no file may hold.
std::string Coded(const CString& text)
{
    CString coded;
    for (std::size_t i = 0; i < text.size();) {
        const std::size_t places = CharacterAt(text, i).nPlaces;
        if (places == 1) {
            AppendCharacter(coded, text[i]);
        } else {
            coded.append(text, i, places);
        }
        i += places;
    }
    return Utf8FromWide(coded);
}

std::string Quoted(const CString& text)
{
    CString marked;
    for (const wchar_t c : text) {
        if (c == L'"' || c == L'\\') {
            marked += L'\\';
        }
        marked += c;
    }
    return '"' + Coded(marked) + '"';
}

} // namespace

void CJsonWriter::BeginObject(const char* name, Layout layout)
{
    Lead(name);
    Begin(false, layout);
}

void CJsonWriter::BeginList(const char* name, Layout layout)
{
    Lead(name);
    Begin(true, layout);
}

void CJsonWriter::End()
{
    const CLevel level = m_levels.back();
    m_levels.pop_back();
    if (!level.bEmpty && level.bLine && !level.bList) {
        m_text += m_style.bDense ? "" : " ";
    } else if (!level.bLine && (!level.bEmpty || m_style.bOpenEmpty)) {
        BreakLine();
    }
    m_text += level.bList ? ']' : '}';
}

void CJsonWriter::Text(const char* name, const CString& text)
{
    Lead(name);
    m_text += Quoted(text);
}

void CJsonWriter::Number(const char* name, double number)
{
    Lead(name);
    AppendNumber(number);
}

void CJsonWriter::AppendNumber(double number)
{
    const double size = std::abs(number);
    if (size == 0.0 || !std::isfinite(number)) {
        m_text += '0';
        return;
    }
    const auto format = size >= kSmallestPlain && size < kLargestPlain
                            ? std::chars_format::fixed
                            : std::chars_format::scientific;
    std::array<char, 64> buffer;
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, format);
    m_text.append(buffer.data(), result.ptr);
}

void CJsonWriter::Null(const char* name)
{
    Lead(name);
    m_text += "null";
}

void CJsonWriter::Value(const char* name, const CJsonValue& value)
{
    Lead(name);
    Append(value);
}

void CJsonWriter::Append(const CJsonValue& value)
{
    if (const CJsonObject* const object = value.GetObject()) {
        Begin(false, Layout::lines);
        for (const auto& [name, field] : *object) {
            Lead();
            m_text += Quoted(name) + (m_style.bDense ? ":" : ": ");
            Append(field);
        }
        End();
    } else if (const CJsonList* const list = value.GetList()) {
        Begin(true, Layout::lines);
        for (const CJsonValue& item : *list) {
            Lead();
            Append(item);
        }
        End();
    } else if (const CString* const text = value.GetText()) {
        m_text += Quoted(*text);
    } else if (const std::int64_t* const integer = value.GetInteger()) {
        m_text += std::to_string(*integer);
    } else if (const double* const number = value.GetDouble()) {
        AppendNumber(*number);
    } else if (const bool* const truth = value.GetTruth()) {
        m_text += *truth ? "true" : "false";
    } else {
        m_text += "null";
    }
}

void CJsonWriter::Raw(const char* name, const CString& json)
{
    Lead(name);
    m_text += Coded(json);
}

std::string CJsonWriter::Take()
{
    m_text += '\n';
    return std::exchange(m_text, {});
}

void CJsonWriter::Begin(bool list, Layout layout)
{
    const bool line =
        m_style.bDense || layout == Layout::line || (!m_levels.empty() && m_levels.back().bLine);
    m_levels.push_back({list, line, true});
    m_text += list ? '[' : '{';
}

void CJsonWriter::BreakLine()
{
    m_text += '\n';
    m_text.append(m_style.nIndent * m_levels.size(), ' ');
}

/// Parts a value from what stands before it.
void CJsonWriter::Lead()
{
    if (!m_levels.empty()) {
        CLevel& level = m_levels.back();
        const bool first = std::exchange(level.bEmpty, false);
        if (!first) {
            m_text += ',';
        }
        if (!level.bLine) {
            BreakLine();
        } else if (!m_style.bDense && (!first || !level.bList)) {
            m_text += ' ';
        }
    }
}

void CJsonWriter::Lead(const char* name)
{
    Lead();
    if (name) {
        m_text += '"';
        m_text += name;
        m_text += m_style.bDense ? "\":" : "\": ";
    }
}

} // namespace workbench
