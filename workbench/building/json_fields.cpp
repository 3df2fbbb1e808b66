#include "workbench/building/json_fields.h"

#include "platform/encoding.h"
#include "platform/file_fault.h"
#include "platform/file_limits.h"
#include "platform/format.h"
#include "platform/whole_file.h"
#include "workbench/building/printable.h"

#include <QJsonDocument>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <limits>
#include <string>
#include <string_view>

namespace workbench {

namespace {

/// A field longer than this is no name of anything.
constexpr std::size_t kLongestText = 200;

constexpr double kLargestNumber = std::numeric_limits<double>::max();

CString FromAscii(const char* text)
{
    return {text, text + std::string_view(text).size()};
}

bool IsBlank(wchar_t c)
{
    return QChar::isSpace(static_cast<char32_t>(c));
}

bool IsFinite(const QJsonValue& value)
{
    return value.isDouble() && std::isfinite(value.toDouble());
}

[[noreturn]] void Raise(const CFileFault& fault)
{
    throw CContentException(FormatFileFault(fault));
}

/// The fault stands at an offset in bytes.
CFileFault FaultAt(const CString& path, const std::string& bytes, int offset,
                   const CString& message)
{
    const std::string_view before(bytes.data(),
                                  std::min(bytes.size(), static_cast<std::size_t>(offset)));
    const auto line = std::count(before.begin(), before.end(), '\n') + 1;
    const std::string_view start = before.substr(before.rfind('\n') + 1);
    CFileFault fault(static_cast<int>(line), message, path);
    fault.nColumn = static_cast<int>(WideFromUtf8(start).size()) + 1;
    return fault;
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

CString TextFromJson(const QString& text)
{
    const std::u16string units = text.toStdU16String();
    CString wide;
    AppendUtf16(wide, units);
    return wide;
}

CJsonFields::CJsonFields(const QJsonObject& object, const CString& file, const CString& place)
    : m_object(object), m_strFile(file), m_strPlace(place), m_known{"note"}
{
}

bool CJsonFields::TakeNull(const char* name)
{
    return Has(name) && Take(name).isNull();
}

CString CJsonFields::Text(const char* name)
{
    CString text = ForeignText(name);
    if (std::ranges::all_of(text, IsBlank)) {
        Fail(FromAscii(name), L"il testo è vuoto");
    }
    if (text.size() > kLongestText) {
        Fail(FromAscii(name), L"il testo è troppo lungo");
    }
    if (std::ranges::any_of(text, IsControl)) {
        Fail(FromAscii(name), L"il testo contiene caratteri di controllo");
    }
    return text;
}

CString CJsonFields::ForeignText(const char* name)
{
    const QJsonValue value = Take(name);
    if (!value.isString()) {
        Fail(FromAscii(name), L"atteso un testo");
    }
    return TextFromJson(value.toString());
}

CString CJsonFields::ForeignTextOr(const char* name)
{
    return Has(name) ? ForeignText(name) : CString();
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
                                  FormatPlain(min) + L" a " + FormatPlain(max));
    }
    return number;
}

double CJsonFields::NumberOr(const char* name, double min, double max, double fallback)
{
    return Has(name) ? Number(name, min, max) : fallback;
}

double CJsonFields::Number(const char* name)
{
    return Number(name, -kLargestNumber, kLargestNumber);
}

int CJsonFields::Integer(const char* name, int min, int max)
{
    const double number = Number(name, min, max);
    if (number != std::trunc(number)) {
        Fail(FromAscii(name), L"atteso un numero intero");
    }
    return static_cast<int>(number);
}

std::array<double, 3> CJsonFields::Vector(const char* name)
{
    const QJsonArray list = Take(name).toArray();
    std::array<double, 3> vector = {};
    if (list.size() != static_cast<qsizetype>(vector.size()) ||
        !std::all_of(list.begin(), list.end(), IsFinite)) {
        Fail(FromAscii(name), L"atteso un elenco [ ] di tre numeri");
    }
    std::transform(list.begin(), list.end(), vector.begin(),
                   [](const QJsonValue& value) { return value.toDouble(); });
    return vector;
}

CJsonFields CJsonFields::Object(const char* name)
{
    const QJsonValue value = Take(name);
    if (!value.isObject()) {
        Fail(FromAscii(name), L"atteso un oggetto { }");
    }
    return {value.toObject(), m_strFile, m_strPlace};
}

std::vector<CJsonFields> CJsonFields::Objects(const char* name, const CString& what,
                                              bool mayBeEmpty)
{
    const QJsonValue value = Take(name);
    const QJsonArray list = value.toArray();
    if (!value.isArray() || (list.isEmpty() && !mayBeEmpty) ||
        !std::all_of(list.begin(), list.end(),
                     [](const QJsonValue& item) { return item.isObject(); })) {
        Fail(FromAscii(name), mayBeEmpty ? L"atteso un elenco [ ] di oggetti"
                                         : L"atteso un elenco [ ] di almeno un oggetto");
    }
    const CString place = m_strPlace.empty() ? what : m_strPlace + L", " + what;
    std::vector<CJsonFields> objects;
    objects.reserve(static_cast<std::size_t>(list.size()));
    for (qsizetype i = 0; i < list.size(); ++i) {
        objects.emplace_back(list[i].toObject(), m_strFile, place + L" " + FormatInt(i + 1));
    }
    return objects;
}

void CJsonFields::RefuseUnknown() const
{
    for (auto field = m_object.begin(); field != m_object.end(); ++field) {
        const QString name = field.key();
        if (std::ranges::none_of(m_known, [&name](std::string_view known) {
                return name == QLatin1String(known.data(), qsizetype(known.size()));
            })) {
            Fail(TextFromJson(name), L"campo sconosciuto");
        }
    }
}

void CJsonFields::Fail(const CString& name, const CString& what) const
{
    const CString place = m_strPlace.empty() ? CString() : m_strPlace + L": ";
    Raise({0, place + L"campo \"" + name + L"\": " + what, m_strFile});
}

QJsonValue CJsonFields::Take(const char* name)
{
    const auto field = m_object.constFind(QLatin1String(name));
    if (field == m_object.constEnd()) {
        Fail(FromAscii(name), L"manca");
    }
    m_known.emplace_back(name);
    return field.value();
}

std::string ReadJsonBytes(const CString& path)
{
    auto bytes = ReadWholeFile(path, kLargestBuilding);
    if (!bytes) {
        Raise({0, DescribeTooLarge(kLargestBuilding), path});
    }
    return *std::move(bytes);
}

void WriteJsonBytes(const CString& path, const std::string& bytes)
{
    if (bytes.size() > kLargestBuilding) {
        throw CFileException::FromErrno(EFBIG, path);
    }
    WriteWholeFile(path, bytes);
}

CJsonFields ParseJson(const std::string& bytes, const CString& path)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(
        QByteArray::fromRawData(bytes.data(), qsizetype(bytes.size())), &error);
    if (error.error != QJsonParseError::NoError) {
        Raise(FaultAt(path, bytes, error.offset, DescribeParseError(error.error)));
    }
    if (!document.isObject()) {
        Raise({0, L"atteso un oggetto { } al livello più alto", path});
    }
    return {document.object(), path, {}};
}

CJsonFields ReadJsonFile(const CString& path)
{
    try {
        return ParseJson(ReadJsonBytes(path), path);
    } catch (const CFileException& error) {
        throw CContentException(L"file non leggibile: " + error.GetErrorMessage());
    }
}

} // namespace workbench
