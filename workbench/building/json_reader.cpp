#include "workbench/building/json_reader.h"

#include "platform/decimal.h"
#include "platform/encoding.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <system_error>

namespace workbench {

namespace {

/// More would be a danger to the stack, also of those who look at the value.
constexpr int kMostLevels = 1024;

constexpr std::string_view kByteOrderMark = "\xef\xbb\xbf";

constexpr const wchar_t* kNoJson = L"non è JSON valido";
constexpr const wchar_t* kUnterminated =
    L"il testo si interrompe: manca una chiusura o una virgola";
constexpr const wchar_t* kNoColon = L"mancano i due punti dopo il nome del campo";
constexpr const wchar_t* kNoComma = L"manca una virgola tra due valori";
constexpr const wchar_t* kBadNumber = L"numero scritto male";
constexpr const wchar_t* kBadEscape = L"sequenza di escape non valida";
constexpr const wchar_t* kNoUtf8 = L"il testo non è UTF-8";
constexpr const wchar_t* kNoValue = L"manca un valore";
constexpr const wchar_t* kTooDeep = L"troppi livelli annidati";
constexpr const wchar_t* kGarbage = L"testo in più dopo la fine";

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// Characters of one byte that a text holds as they stand.
bool IsPlain(char c)
{
    return static_cast<unsigned char>(c) < 0x80 && c != '"' && c != '\\';
}

/// Goes through a text once, from its beginning to its end or to its first fault.
class CJsonReader
{
public:
    explicit CJsonReader(std::string_view bytes)
        : m_start(bytes.data()), m_next(m_start), m_end(m_start + bytes.size())
    {
    }

    CJsonValue Read()
    {
        if (Rest().starts_with(kByteOrderMark)) {
            m_next += kByteOrderMark.size();
        }
        const char token = TakeToken();
        if (token != '{' && token != '[') {
            Fail(kNoJson);
        }
        CJsonValue value = token == '{' ? CJsonValue(ReadObject()) : CJsonValue(ReadList());
        if (!SkipBlanks()) {
            Fail(kGarbage);
        }
        return value;
    }

private:
    bool IsAtEnd() const { return m_next == m_end; }
    std::string_view Rest() const { return {m_next, m_end}; }

    [[noreturn]] void Fail(const wchar_t* message) const
    {
        throw CJsonException(message, static_cast<std::size_t>(m_next - m_start));
    }

    /// True if nothing else follows.
    bool SkipBlanks()
    {
        while (!IsAtEnd() &&
               (*m_next == ' ' || *m_next == '\n' || *m_next == '\r' || *m_next == '\t')) {
            ++m_next;
        }
        return IsAtEnd();
    }

    void RequireMore()
    {
        if (SkipBlanks()) {
            Fail(kUnterminated);
        }
    }

    /// The next character that is no blank; '\0' at the end.
    char TakeToken() { return SkipBlanks() ? '\0' : *m_next++; }

    bool TakeIf(char c)
    {
        const bool is = !IsAtEnd() && *m_next == c;
        m_next += is ? 1 : 0;
        return is;
    }

    void EnterLevel()
    {
        if (++m_nLevel > kMostLevels) {
            Fail(kTooDeep);
        }
    }

    CJsonObject ReadObject()
    {
        EnterLevel();
        std::vector<CJsonObject::Field> fields;
        char token = TakeToken();
        while (token == '"') {
            fields.push_back(ReadField());
            token = TakeToken();
            if (token != ',') {
                break;
            }
            token = TakeToken();
            if (token == '}') {
                Fail(kNoValue);
            }
        }
        if (token != '}') {
            Fail(kUnterminated);
        }
        --m_nLevel;
        return CJsonObject(std::move(fields));
    }

    CJsonObject::Field ReadField()
    {
        CString name = ReadText();
        if (TakeToken() != ':') {
            Fail(kNoColon);
        }
        RequireMore();
        return {std::move(name), ReadValue()};
    }

    CJsonList ReadList()
    {
        EnterLevel();
        CJsonList list;
        RequireMore();
        bool isOpen = !TakeIf(']');
        while (isOpen) {
            RequireMore();
            list.push_back(ReadValue());
            const char token = TakeToken();
            isOpen = token != ']';
            if (isOpen && token != ',') {
                Fail(SkipBlanks() ? kUnterminated : kNoComma);
            }
        }
        --m_nLevel;
        return list;
    }

    CJsonValue ReadValue()
    {
        switch (*m_next++) {
        case '{':
            return ReadObject();
        case '[':
            return ReadList();
        case '"':
            return ReadText();
        case 'n':
            return ReadWord("ull", {});
        case 't':
            return ReadWord("rue", true);
        case 'f':
            return ReadWord("alse", false);
        case ',':
            Fail(kNoJson);
        case '}':
        case ']':
            Fail(kNoValue);
        default:
            --m_next;
            return ReadNumber();
        }
    }

    /// `rest` is what is still to come of the word, behind which something has to follow.
    CJsonValue ReadWord(std::string_view rest, CJsonValue value)
    {
        if (Rest().size() <= rest.size()) {
            Fail(kNoJson);
        }
        for (const char c : rest) {
            if (*m_next++ != c) {
                Fail(kNoJson);
            }
        }
        return value;
    }

    void SkipDigits() { m_next = std::find_if_not(m_next, m_end, IsDigit); }

    CJsonValue ReadNumber()
    {
        const char* const first = m_next;
        TakeIf('-');
        if (!TakeIf('0')) {
            SkipDigits();
        }
        if (TakeIf('.')) {
            SkipDigits();
        }
        if (TakeIf('e') || TakeIf('E')) {
            if (!TakeIf('+')) {
                TakeIf('-');
            }
            SkipDigits();
        }
        if (IsAtEnd()) {
            Fail(kBadNumber);
        }
        return NumberOf(first);
    }

    /// The number that begins there and ends where reading stands.
    CJsonValue NumberOf(const char* first) const
    {
        std::int64_t integer = 0;
        const auto whole = std::from_chars(first, m_next, integer);
        if (whole.ec == std::errc() && whole.ptr == m_next) {
            return integer;
        }
        double number = 0.0;
        const auto read = FromChars(first, m_next, number);
        if (read.ec != std::errc() || read.ptr != m_next) {
            Fail(kBadNumber);
        }
        return number;
    }

    /// The rest of a text behind its quotation mark.
    CString ReadText()
    {
        CString text;
        while (!IsAtEnd() && *m_next != '"') {
            if (*m_next == '\\') {
                ReadEscape(text);
            } else if (IsPlain(*m_next)) {
                const char* const first = m_next;
                m_next = std::find_if_not(m_next, m_end, IsPlain);
                text.append(first, m_next);
            } else {
                ReadSequence(text);
            }
        }
        // A text is never the last thing of all.
        if (IsAtEnd() || ++m_next == m_end) {
            Fail(kUnterminated);
        }
        return text;
    }

    void ReadEscape(CString& text)
    {
        if (++m_next == m_end) {
            Fail(kUnterminated);
        }
        constexpr std::string_view kCodes = "bfnrt";
        const char code = *m_next++;
        if (code == 'u') {
            const char16_t unit = ReadCodeUnit();
            AppendUtf16(text, {&unit, 1});
        } else if (const std::size_t place = kCodes.find(code); place != kCodes.npos) {
            text += L"\b\f\n\r\t"[place];
        } else {
            text += static_cast<wchar_t>(static_cast<unsigned char>(code));
        }
    }

    char16_t ReadCodeUnit()
    {
        constexpr std::ptrdiff_t kDigits = 4;
        if (m_end - m_next < kDigits) {
            Fail(kBadEscape);
        }
        std::uint16_t unit = 0;
        const char* const end = m_next + kDigits;
        m_next = std::from_chars(m_next, end, unit, 16).ptr;
        if (m_next != end) {
            Fail(kBadEscape);
        }
        return unit;
    }

    /// A character of several bytes, in the shortest form that there is of it and no surrogate.
    void ReadSequence(CString& text)
    {
        const auto first = static_cast<std::uint8_t>(*m_next);
        const std::ptrdiff_t length = first < 0xe0 ? 2 : first < 0xf0 ? 3 : 4;
        if (first < 0xc2 || first > 0xf4 || m_end - m_next < length) {
            Fail(kNoUtf8);
        }
        char32_t code = first & (0xffU >> (length + 1));
        for (std::ptrdiff_t i = 1; i < length; ++i) {
            const auto next = static_cast<std::uint8_t>(m_next[i]);
            if ((next & 0xc0) != 0x80) {
                Fail(kNoUtf8);
            }
            code = code << 6 | (next & 0x3fU);
        }
        constexpr std::array<char32_t, 5> kSmallest = {0, 0, 0x80, 0x800, 0x10000};
        const bool isSurrogate = code >= 0xd800 && code < 0xe000;
        if (code < kSmallest[static_cast<std::size_t>(length)] || isSurrogate || code > 0x10ffff) {
            Fail(kNoUtf8);
        }
        m_next += length;
        AppendCharacter(text, code);
    }

    static void AppendCharacter(CString& text, char32_t code)
    {
        if (code < 0x10000) {
            text += static_cast<wchar_t>(code);
            return;
        }
        const char16_t units[] = {static_cast<char16_t>(0xd7c0 + (code >> 10)),
                                  static_cast<char16_t>(0xdc00 + (code & 0x3ff))};
        AppendUtf16(text, {units, 2});
    }

    const char* m_start;
    const char* m_next;
    const char* m_end;
    int m_nLevel = 0;
};

} // namespace

CJsonValue ReadJson(std::string_view bytes)
{
    return CJsonReader(bytes).Read();
}

} // namespace workbench
