#include "platform/object.h"

#include <ostream>

std::unique_ptr<CObject> CRuntimeClass::CreateObject() const
{
    return m_pfnCreateObject != nullptr ? m_pfnCreateObject() : nullptr;
}

bool CRuntimeClass::IsDerivedFrom(const CRuntimeClass& base) const
{
    for (const CRuntimeClass* current = this; current != nullptr; current = current->m_pBaseClass) {
        if (current == &base) {
            return true;
        }
    }
    return false;
}

CObject::~CObject() = default;

const CRuntimeClass& CObject::GetThisClass()
{
    static const CRuntimeClass description{"CObject", 0, nullptr, nullptr};
    return description;
}

const CRuntimeClass& CObject::GetRuntimeClass() const
{
    return GetThisClass();
}

void CObject::Serialize(CArchive& /*archive*/) {}

void CObject::AssertValid() const {}

void CObject::Dump(std::wostream& out) const
{
    out << GetRuntimeClass().m_lpszClassName << L'\n';
}

bool CObject::IsKindOf(const CRuntimeClass& other) const
{
    return GetRuntimeClass().IsDerivedFrom(other);
}
