#pragma once

#include "workbench/building/json_reader.h"

#include <memory>
#include <string_view>
#include <vector>

namespace workbench {

/// A value of a JSON text, found by the way to it; null where nothing stands.
class CJsonAt
{
public:
    explicit CJsonAt(std::string_view bytes)
        : m_root(std::make_shared<const CJsonValue>(ReadJson(bytes))), m_value(m_root.get())
    {
    }

    CJsonAt operator[](const char* field) const
    {
        const CJsonObject* const object = m_value->GetObject();
        return {m_root, object ? object->Find(field) : nullptr};
    }
    CJsonAt operator[](int index) const { return All().at(static_cast<std::size_t>(index)); }

    /// What a list or an object holds.
    std::vector<CJsonAt> All() const
    {
        std::vector<CJsonAt> all;
        if (const CJsonList* const list = m_value->GetList()) {
            for (const CJsonValue& value : *list) {
                all.push_back({m_root, &value});
            }
        } else if (const CJsonObject* const object = m_value->GetObject()) {
            for (const auto& [name, value] : *object) {
                all.push_back({m_root, &value});
            }
        }
        return all;
    }

    double Number() const { return m_value->AsDouble(); }
    CString Text() const { return m_value->GetText() ? *m_value->GetText() : CString(); }
    bool IsObject() const { return m_value->GetObject() != nullptr; }

private:
    CJsonAt(std::shared_ptr<const CJsonValue> root, const CJsonValue* value)
        : m_root(std::move(root)), m_value(value ? value : &kNothing)
    {
    }

    static inline const CJsonValue kNothing;

    std::shared_ptr<const CJsonValue> m_root;
    const CJsonValue* m_value;
};

} // namespace workbench
