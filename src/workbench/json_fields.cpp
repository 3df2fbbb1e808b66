#include "workbench/json_fields.h"

#include "platform/encoding.h"
#include "platform/file.h"
#include "platform/format.h"

#include <QJsonDocument>

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>

namespace {

/// A field longer than this is no name of anything.
constexpr std::size_t kLongestText = 200;

/// A building with its rooms is a few kilobytes; reading a wrong file must not fill the memory.
constexpr std::uint64_t kLargestFile = 16ULL << 20;

CString FromAscii(const char* text)
{
    return {text, text + std::string_view(text).size()};
}

bool IsControl(wchar_t c)
{
    return c < L' ' || (c >= 0x7f && c < 0xa0);
}

std::string ReadWholeFile(const CString& path)
{
    try {
        CFile file(path, CFile::modeRead);
        if (file.GetLength() > kLargestFile) {
            throw CContentException(path + L": il file è troppo grande");
        }
        std::string bytes(static_cast<std::size_t>(file.GetLength()), '\0');
        bytes.resize(file.Read(bytes.data(), bytes.size()));
        return bytes;
    } catch (const CFileException& error) {
        throw CContentException(L"file non leggibile: " + error.GetErrorMessage());
    }
}

CString LineAndColumn(const std::string& bytes, int offset)
{
    const std::string_view before(bytes.data(),
                                  std::min(bytes.size(), static_cast<std::size_t>(offset)));
    const auto line = std::count(before.begin(), before.end(), '\n') + 1;
    const std::size_t start = before.rfind('\n') + 1;
    const std::size_t column = WideFromUtf8(before.substr(start)).size() + 1;
    return L"riga " + FormatInt(line) + L", colonna " + FormatInt(static_cast<long long>(column));
}

CString DescribeParseError(QJsonParseError::ParseError error)
{
    switch (error) {
    case QJsonParseError::UnterminatedObject:
    case QJsonParseError::UnterminatedArray:
    case QJsonParseError::UnterminatedString:
        return L"il testo si interrompe: manca una chiusura o una virgola";
    case QJsonParseError::MissingNameSeparator:
        return L"mancano i due punti dopo il nome del campo";
    case QJsonParseError::MissingValueSeparator:
        return L"manca una virgola tra due valori";
    case QJsonParseError::IllegalNumber:
    case QJsonParseError::TerminationByNumber:
        return L"numero scritto male";
    case QJsonParseError::IllegalEscapeSequence:
        return L"sequenza di escape non valida";
    case QJsonParseError::IllegalUTF8String:
        return L"il testo non è UTF-8";
    case QJsonParseError::MissingObject:
        return L"manca un valore";
    case QJsonParseError::DeepNesting:
        return L"troppi livelli annidati";
    case QJsonParseError::GarbageAtEnd:
        return L"testo in più dopo la fine";
    default:
        return L"non è JSON valido";
    }
}

} // namespace

CJsonFields::CJsonFields(const QJsonObject& object, const CString& file, const CString& place)
    : m_object(object), m_strFile(file), m_strPlace(place), m_known(QStringLiteral("note"))
{
}

bool CJsonFields::TakeNull(const char* name)
{
    return Has(name) && Take(name).isNull();
}

CString CJsonFields::Text(const char* name)
{
    const QJsonValue value = Take(name);
    if (!value.isString()) {
        Fail(FromAscii(name), L"atteso un testo");
    }
    CString text = value.toString().toStdWString();
    if (value.toString().trimmed().isEmpty()) {
        Fail(FromAscii(name), L"il testo è vuoto");
    }
    if (text.size() > kLongestText) {
        Fail(FromAscii(name), L"il testo è troppo lungo");
    }
    if (std::any_of(text.begin(), text.end(), IsControl)) {
        Fail(FromAscii(name), L"il testo contiene caratteri di controllo");
    }
    return text;
}

double CJsonFields::Number(const char* name, double min, double max)
{
    const QJsonValue value = Take(name);
    if (!value.isDouble()) {
        Fail(FromAscii(name), L"atteso un numero");
    }
    const double number = value.toDouble();
    if (!(number >= min && number <= max)) {
        Fail(FromAscii(name), FormatExact(number) + L" è fuori dall'intervallo da " +
                                  FormatExact(min) + L" a " + FormatExact(max));
    }
    return number;
}

double CJsonFields::NumberOr(const char* name, double min, double max, double fallback)
{
    return Has(name) ? Number(name, min, max) : fallback;
}

CJsonFields CJsonFields::Object(const char* name)
{
    const QJsonValue value = Take(name);
    if (!value.isObject()) {
        Fail(FromAscii(name), L"atteso un oggetto { }");
    }
    return {value.toObject(), m_strFile, m_strPlace};
}

QJsonArray CJsonFields::Objects(const char* name)
{
    const QJsonValue value = Take(name);
    QJsonArray list = value.toArray();
    if (list.isEmpty() || !std::all_of(list.begin(), list.end(),
                                       [](const QJsonValue& item) { return item.isObject(); })) {
        Fail(FromAscii(name), L"atteso un elenco [ ] di almeno un oggetto");
    }
    return list;
}

void CJsonFields::RefuseUnknown() const
{
    for (const QString& name : m_object.keys()) {
        if (!m_known.contains(name)) {
            Fail(name.toStdWString(), L"campo sconosciuto");
        }
    }
}

void CJsonFields::Fail(const CString& name, const CString& what) const
{
    throw CContentException(m_strFile + L": " + (m_strPlace.empty() ? L"" : m_strPlace + L": ") +
                            L"campo \"" + name + L"\": " + what);
}

QJsonValue CJsonFields::Take(const char* name)
{
    if (!Has(name)) {
        Fail(FromAscii(name), L"manca");
    }
    m_known.append(QLatin1String(name));
    return m_object.value(QLatin1String(name));
}

CJsonFields ReadJsonFile(const CString& path)
{
    const std::string bytes = ReadWholeFile(path);
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(
        QByteArray::fromRawData(bytes.data(), qsizetype(bytes.size())), &error);
    if (error.error != QJsonParseError::NoError) {
        throw CContentException(path + L": " + LineAndColumn(bytes, error.offset) + L": " +
                                DescribeParseError(error.error));
    }
    if (!document.isObject()) {
        throw CContentException(path + L": atteso un oggetto { } al livello più alto");
    }
    return {document.object(), path, {}};
}
