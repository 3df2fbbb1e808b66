#include "workbench/building/json_fields.h"

#include "platform/encoding.h"
#include "platform/file_fault.h"
#include "platform/file_limits.h"
#include "platform/format.h"
#include "platform/whole_file.h"
#include "workbench/building/character.h"
#include "workbench/building/json_reader.h"
#include "workbench/building/printable.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <limits>
#include <string>
#include <string_view>
#include <utility>

namespace workbench {

namespace {

/// A field longer than this is no name of anything.
constexpr std::size_t kLongestText = 200;

constexpr double kLargestNumber = std::numeric_limits<double>::max();

CString FromAscii(const char* text)
{
    return {text, text + std::string_view(text).size()};
}

bool IsFinite(const CJsonValue& value)
{
    return value.IsNumber() && std::isfinite(value.AsDouble());
}

[[noreturn]] void Raise(const CFileFault& fault)
{
    throw CContentException(FormatFileFault(fault));
}

/// The fault stands at an offset in bytes.
CFileFault FaultAt(const CString& path, std::string_view bytes, std::size_t offset,
                   const CString& message)
{
    const std::string_view before = bytes.substr(0, offset);
    const auto line = std::count(before.begin(), before.end(), '\n') + 1;
    const std::string_view start = before.substr(before.rfind('\n') + 1);
    CFileFault fault(static_cast<int>(line), message, path);
    fault.nColumn = static_cast<int>(LengthOf(WideFromUtf8(start))) + 1;
    return fault;
}

} // namespace

CJsonFields::CJsonFields(std::shared_ptr<const CJsonObject> object, const CString& file,
                         const CString& place)
    : m_object(std::move(object)), m_strFile(file), m_strPlace(place), m_known{"note"}
{
}

bool CJsonFields::Has(const char* name) const
{
    return m_object->Find(name) != nullptr;
}

bool CJsonFields::TakeNull(const char* name)
{
    return Has(name) && Take(name).IsNull();
}

CString CJsonFields::Text(const char* name)
{
    CString text = ForeignText(name);
    if (std::ranges::all_of(text, IsBlank)) {
        Fail(FromAscii(name), L"il testo è vuoto");
    }
    if (LengthOf(text) > kLongestText) {
        Fail(FromAscii(name), L"il testo è troppo lungo");
    }
    if (std::ranges::any_of(text, IsControl)) {
        Fail(FromAscii(name), L"il testo contiene caratteri di controllo");
    }
    return text;
}

CString CJsonFields::ForeignText(const char* name)
{
    const CString* const text = Take(name).GetText();
    if (!text) {
        Fail(FromAscii(name), L"atteso un testo");
    }
    return *text;
}

CString CJsonFields::ForeignTextOr(const char* name)
{
    return Has(name) ? ForeignText(name) : CString();
}

double CJsonFields::Number(const char* name, double min, double max)
{
    const CJsonValue& value = Take(name);
    if (!value.IsNumber()) {
        Fail(FromAscii(name), L"atteso un numero");
    }
    const double number = value.AsDouble();
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
    const CJsonList* const list = Take(name).GetList();
    std::array<double, 3> vector = {};
    if (!list || list->size() != vector.size() || !std::ranges::all_of(*list, IsFinite)) {
        Fail(FromAscii(name), L"atteso un elenco [ ] di tre numeri");
    }
    std::ranges::transform(*list, vector.begin(), &CJsonValue::AsDouble);
    return vector;
}

CJsonFields CJsonFields::Object(const char* name)
{
    const CJsonObject* const object = Take(name).GetObject();
    if (!object) {
        Fail(FromAscii(name), L"atteso un oggetto { }");
    }
    return Within(*object, m_strPlace);
}

std::vector<CJsonFields> CJsonFields::Objects(const char* name, const CString& what,
                                              bool mayBeEmpty)
{
    const CJsonList* const list = Take(name).GetList();
    if (!list || (list->empty() && !mayBeEmpty) ||
        !std::ranges::all_of(*list, &CJsonValue::GetObject)) {
        Fail(FromAscii(name), mayBeEmpty ? L"atteso un elenco [ ] di oggetti"
                                         : L"atteso un elenco [ ] di almeno un oggetto");
    }
    const CString place = m_strPlace.empty() ? what : m_strPlace + L", " + what;
    std::vector<CJsonFields> objects;
    objects.reserve(list->size());
    for (const CJsonValue& item : *list) {
        const auto number = static_cast<long long>(objects.size()) + 1;
        objects.push_back(Within(*item.GetObject(), place + L" " + FormatInt(number)));
    }
    return objects;
}

void CJsonFields::RefuseUnknown() const
{
    for (const CJsonObject::Field& field : *m_object) {
        const CString& name = field.first;
        if (std::ranges::none_of(m_known, [&name](std::string_view known) {
                return std::ranges::equal(name, known);
            })) {
            Fail(name, L"campo sconosciuto");
        }
    }
}

void CJsonFields::Fail(const CString& name, const CString& what) const
{
    const CString place = m_strPlace.empty() ? CString() : m_strPlace + L": ";
    Raise({0, place + L"campo \"" + name + L"\": " + what, m_strFile});
}

const CJsonValue& CJsonFields::Take(const char* name)
{
    const CJsonValue* const value = m_object->Find(name);
    if (!value) {
        Fail(FromAscii(name), L"manca");
    }
    m_known.emplace_back(name);
    return *value;
}

CJsonFields CJsonFields::Within(const CJsonObject& object, const CString& place) const
{
    return {std::shared_ptr<const CJsonObject>(m_object, &object), m_strFile, place};
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
    std::shared_ptr<const CJsonValue> value;
    try {
        value = std::make_shared<const CJsonValue>(ReadJson(bytes));
    } catch (const CJsonException& error) {
        Raise(FaultAt(path, bytes, error.GetOffset(), error.GetErrorMessage()));
    }
    const CJsonObject* const object = value->GetObject();
    if (!object) {
        Raise({0, L"atteso un oggetto { } al livello più alto", path});
    }
    return {std::shared_ptr<const CJsonObject>(value, object), path, {}};
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
