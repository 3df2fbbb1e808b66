#include "platform/object.h"

#include <cstring>
#include <ostream>

std::unique_ptr<CObject> CRuntimeClass::CreateObject() const
{
    return m_pfnCreateObject != nullptr ? m_pfnCreateObject() : nullptr;
}

bool CRuntimeClass::IsDerivedFrom(const CRuntimeClass& base) const
{
    for (const CRuntimeClass* current = this; current != nullptr; current = current->m_pBaseClass) {
        // By name: every library that links this code statically has a description of CObject of
        // its own.
        if (std::strcmp(current->m_lpszClassName, base.m_lpszClassName) == 0) {
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
