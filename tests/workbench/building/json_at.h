#pragma once

#include "workbench/building/json_reader.h"

#include <algorithm>
#include <memory>
#include <string_view>
#include <vector>

namespace workbench {

/// A value of a JSON text, found by the way to it; null where nothing stands.
class CJsonAt
{
public:
    explicit CJsonAt(std::string_view bytes)
        : m_value(std::make_shared<const CJsonValue>(ReadJson(bytes)))
    {
    }

    CJsonAt operator[](const char* field) const
    {
        const CJsonObject* const object = m_value->GetObject();
        return Part(object ? object->Find(field) : nullptr);
    }
    CJsonAt operator[](int index) const { return All().at(static_cast<std::size_t>(index)); }

    /// What a list or an object holds.
    std::vector<CJsonAt> All() const
    {
        std::vector<CJsonAt> all;
        const auto take = [&](const CJsonValue& value) { all.push_back(Part(&value)); };
        if (const CJsonList* const list = m_value->GetList()) {
            std::ranges::for_each(*list, take);
        } else if (const CJsonObject* const object = m_value->GetObject()) {
            std::ranges::for_each(*object, take, &CJsonObject::Field::second);
        }
        return all;
    }

    double Number() const { return m_value->AsDouble(); }
    CString Text() const { return m_value->GetText() ? *m_value->GetText() : CString(); }

private:
    CJsonAt Part(const CJsonValue* part) const
    {
        static const CJsonValue nothing;
        CJsonAt at = *this;
        at.m_value = {m_value, part ? part : &nothing}; // owned by the whole
        return at;
    }

    std::shared_ptr<const CJsonValue> m_value;
};

} // namespace workbench
