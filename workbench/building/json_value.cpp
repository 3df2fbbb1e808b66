#include "workbench/building/json_value.h"

#include <algorithm>
#include <cmath>

namespace workbench {

namespace {

/// The first double beyond all whole numbers of 64 bits.
constexpr double kBeyondIntegers = 9223372036854775808.0;

bool IsInteger(double number)
{
    return number >= -kBeyondIntegers && number < kBeyondIntegers && std::trunc(number) == number;
}

/// Where the field of that name is, or would be.
template <class FIELDS>
auto PlaceOf(FIELDS& fields, std::string_view name)
{
    return std::lower_bound(fields.begin(), fields.end(), name,
                            [](const CJsonObject::Field& field, std::string_view other) {
                                return std::ranges::lexicographical_compare(field.first, other);
                            });
}

template <class FIELDS, class PLACE>
bool IsNamed(const FIELDS& fields, PLACE place, std::string_view name)
{
    return place != fields.end() && std::ranges::equal(place->first, name);
}

} // namespace

CJsonValue::CJsonValue() = default;

CJsonValue::CJsonValue(bool truth) : m_value(truth) {}

CJsonValue::CJsonValue(int number) : CJsonValue(std::int64_t{number}) {}

CJsonValue::CJsonValue(std::int64_t number) : m_value(number) {}

CJsonValue::CJsonValue(double number)
{
    if (IsInteger(number)) {
        m_value = static_cast<std::int64_t>(number);
    } else {
        m_value = number;
    }
}

CJsonValue::CJsonValue(CString text) : m_value(std::make_unique<const CString>(std::move(text))) {}

CJsonValue::CJsonValue(const wchar_t* text) : CJsonValue(CString(text)) {}

CJsonValue::CJsonValue(CJsonList list) : m_value(std::make_unique<const CJsonList>(std::move(list)))
{
}

CJsonValue::CJsonValue(CJsonObject object)
    : m_value(std::make_unique<const CJsonObject>(std::move(object)))
{
}

CJsonValue::~CJsonValue() = default;
CJsonValue::CJsonValue(CJsonValue&& other) noexcept = default;
CJsonValue& CJsonValue::operator=(CJsonValue&& other) noexcept = default;

double CJsonValue::AsDouble() const
{
    if (const std::int64_t* const integer = GetInteger()) {
        return static_cast<double>(*integer);
    }
    const double* const number = GetDouble();
    return number ? *number : 0.0;
}

CJsonObject::CJsonObject() = default;

CJsonObject::CJsonObject(std::vector<Field> fields)
{
    std::vector<Field*> order;
    order.reserve(fields.size());
    for (Field& field : fields) {
        order.push_back(&field);
    }
    // Of equal names the last one counts, which stands first then.
    std::ranges::sort(order, [](const Field* one, const Field* other) {
        return one->first != other->first ? one->first < other->first : other < one;
    });
    m_fields.reserve(fields.size());
    for (Field* const field : order) {
        if (m_fields.empty() || m_fields.back().first != field->first) {
            m_fields.push_back(std::move(*field));
        }
    }
}

void CJsonObject::Insert(std::string_view name, CJsonValue value)
{
    const auto place = PlaceOf(m_fields, name);
    if (IsNamed(m_fields, place, name)) {
        place->second = std::move(value);
    } else {
        m_fields.emplace(place, CString(name.begin(), name.end()), std::move(value));
    }
}

const CJsonValue* CJsonObject::Find(std::string_view name) const
{
    const auto place = PlaceOf(m_fields, name);
    return IsNamed(m_fields, place, name) ? &place->second : nullptr;
}

} // namespace workbench
