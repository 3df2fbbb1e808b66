#include "workbench/building/json_writer.h"

#include "platform/encoding.h"
#include "workbench/building/json_fields.h"

#include <QVariant>

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

std::string Quoted(const CString& text)
{
    CString quoted = L"\"";
    for (const wchar_t c : text) {
        if (c == L'"' || c == L'\\') {
            quoted += L'\\';
        }
        AppendCharacter(quoted, c);
    }
    return Utf8FromWide(quoted + L"\"");
}

} // namespace

void CJsonWriter::BeginObject(const char* name, Layout layout)
{
    Begin(name, false, layout);
}

void CJsonWriter::BeginList(const char* name, Layout layout)
{
    Begin(name, true, layout);
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

void CJsonWriter::Value(const char* name, const QJsonValue& value)
{
    switch (value.type()) {
    case QJsonValue::Object: {
        BeginObject(name);
        const QJsonObject object = value.toObject();
        for (auto field = object.begin(); field != object.end(); ++field) {
            Value(field.key().toUtf8().constData(), field.value());
        }
        End();
        break;
    }
    case QJsonValue::Array:
        BeginList(name);
        for (const auto& item : value.toArray()) {
            Value(nullptr, item);
        }
        End();
        break;
    case QJsonValue::String:
        Text(name, TextFromJson(value.toString()));
        break;
    case QJsonValue::Double:
        if (value.toVariant().metaType() == QMetaType::fromType<qlonglong>()) {
            // Not every whole number of a reader is a double.
            Lead(name);
            m_text += std::to_string(value.toInteger());
        } else {
            Number(name, value.toDouble());
        }
        break;
    case QJsonValue::Bool:
        Lead(name);
        m_text += value.toBool() ? "true" : "false";
        break;
    default:
        Null(name);
        break;
    }
}

void CJsonWriter::Raw(const char* name, const CString& json)
{
    Lead(name);
    CString text;
    for (const wchar_t c : json) {
        AppendCharacter(text, c);
    }
    m_text += Utf8FromWide(text);
}

std::string CJsonWriter::Take()
{
    m_text += '\n';
    return std::exchange(m_text, {});
}

void CJsonWriter::Begin(const char* name, bool list, Layout layout)
{
    Lead(name);
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

void CJsonWriter::Lead(const char* name)
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
    if (name) {
        m_text += '"';
        m_text += name;
        m_text += m_style.bDense ? "\":" : "\": ";
    }
}

} // namespace workbench
