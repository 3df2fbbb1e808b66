#pragma once

#include "platform/text.h"

#include <cstdint>
#include <memory>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace workbench {

class CJsonObject;
class CJsonValue;

using CJsonList = std::vector<CJsonValue>;

/// A value of a JSON text with all that is in it: nothing, a truth value, a number, a text, a list
/// or an object. It can be moved, not copied. Whole numbers are kept digit by digit as far as 64
/// bits go, since not every one of them is a double.
class CJsonValue
{
public:
    /// Nothing, "null".
    CJsonValue();
    CJsonValue(bool truth);
    CJsonValue(int number);
    CJsonValue(std::int64_t number);
    CJsonValue(double number);
    CJsonValue(CString text);
    CJsonValue(const wchar_t* text);
    CJsonValue(CJsonList list);
    CJsonValue(CJsonObject object);

    ~CJsonValue();
    CJsonValue(CJsonValue&& other) noexcept;
    CJsonValue& operator=(CJsonValue&& other) noexcept;
    CJsonValue(const CJsonValue&) = delete;
    CJsonValue& operator=(const CJsonValue&) = delete;

    bool IsNull() const { return std::holds_alternative<std::monostate>(m_value); }
    bool IsNumber() const { return GetInteger() != nullptr || GetDouble() != nullptr; }

    /// The number as a double; 0 for any other value.
    double AsDouble() const;

    // What the value holds; null for one of another kind.
    const bool* GetTruth() const { return std::get_if<bool>(&m_value); }
    const std::int64_t* GetInteger() const { return std::get_if<std::int64_t>(&m_value); }
    const double* GetDouble() const { return std::get_if<double>(&m_value); }
    const CString* GetText() const { return GetBoxed<CString>(); }
    const CJsonList* GetList() const { return GetBoxed<CJsonList>(); }
    const CJsonObject* GetObject() const { return GetBoxed<CJsonObject>(); }

private:
    /// A list of numbers takes up little more room than they do: what is larger lies apart.
    template <class T>
    using Boxed = std::unique_ptr<const T>;

    template <class T>
    const T* GetBoxed() const
    {
        const auto* const boxed = std::get_if<Boxed<T>>(&m_value);
        return boxed ? boxed->get() : nullptr;
    }

    std::variant<std::monostate, bool, std::int64_t, double, Boxed<CString>, Boxed<CJsonList>,
                 Boxed<CJsonObject>>
        m_value;
};

/// The fields of an object, in the order of their names.
class CJsonObject
{
public:
    using Field = std::pair<CString, CJsonValue>;

    CJsonObject();

    /// Of fields of one name the last counts.
    explicit CJsonObject(std::vector<Field> fields);

    // These take names in plain ASCII.

    /// Gives a field its value, whether there is one of that name or not.
    void Insert(std::string_view name, CJsonValue value);

    /// Null if there is no field of that name.
    const CJsonValue* Find(std::string_view name) const;

    bool IsEmpty() const { return m_fields.empty(); }

    auto begin() const { return m_fields.begin(); }
    auto end() const { return m_fields.end(); }

private:
    std::vector<Field> m_fields;
};

} // namespace workbench
