#include "frame/handover.h"

#include "host_defaults/prefs/record_transfer.h"

using namespace host_defaults;

HK_VDI3805_TYP::HK_VDI3805_TYP() : pNext(nullptr), pPrev(nullptr) {}

HK_VDI3805_TYP::HK_VDI3805_TYP(const HK_VDI3805_TYP& other)
    : CObject(other), Name(other.Name), Daten(other.Daten), pNext(nullptr), pPrev(nullptr)
{
}

HK_VDI3805_TYP& HK_VDI3805_TYP::operator=(const HK_VDI3805_TYP& other)
{
    if (this != &other) {
        Name = other.Name;
        Daten = other.Daten;
    }
    return *this;
}

HK_VDI3805_TYP::~HK_VDI3805_TYP() = default;

const CRuntimeClass& HK_VDI3805_TYP::GetThisClass()
{
    static const CRuntimeClass description{
        "HK_VDI3805_TYP", 1, &CObject::GetThisClass(),
        []() -> std::unique_ptr<CObject> { return std::make_unique<HK_VDI3805_TYP>(); }};
    return description;
}

const CRuntimeClass& HK_VDI3805_TYP::GetRuntimeClass() const
{
    return GetThisClass();
}

void HK_VDI3805_TYP::Serialize(CArchive& archive)
{
    Transfer(archive, Name);
    Daten.Serialize(archive);
}
