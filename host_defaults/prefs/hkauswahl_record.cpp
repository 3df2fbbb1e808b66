#include "frame/hkauswahl_uebergabe.h"

#include "host_defaults/prefs/record_transfer.h"

#include <utility>

using namespace host_defaults;

HKAUSWAHL_UEBERGABE::HKAUSWAHL_UEBERGABE() : LayerFarbe(0) {}
HKAUSWAHL_UEBERGABE::HKAUSWAHL_UEBERGABE(const HKAUSWAHL_UEBERGABE&) = default;
HKAUSWAHL_UEBERGABE& HKAUSWAHL_UEBERGABE::operator=(const HKAUSWAHL_UEBERGABE&) = default;
HKAUSWAHL_UEBERGABE::~HKAUSWAHL_UEBERGABE() = default;

const CRuntimeClass& HKAUSWAHL_UEBERGABE::GetThisClass()
{
    static const CRuntimeClass description{
        "HKAUSWAHL_UEBERGABE", 1, &CObject::GetThisClass(),
        []() -> std::unique_ptr<CObject> { return std::make_unique<HKAUSWAHL_UEBERGABE>(); }};
    return description;
}

const CRuntimeClass& HKAUSWAHL_UEBERGABE::GetRuntimeClass() const
{
    return GetThisClass();
}

void HKAUSWAHL_UEBERGABE::Serialize(CArchive& archive)
{
    CString layer = Layer;
    std::int32_t farbe = LayerFarbe;
    TransferAll(archive, layer, farbe);
    Layer = std::move(layer);
    LayerFarbe = farbe;
}
