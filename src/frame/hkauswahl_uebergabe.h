#pragma once

#include "platform/export.h"
#include "platform/object.h"
#include "platform/text.h"

#include <cstdint>

/// Layer that the radiator selection used last. Constructor, assignment and archive form live in
/// HostPrefs.
class HOST_API HKAUSWAHL_UEBERGABE : public CObject
{
public:
    /// Empty layer, colour 0.
    HKAUSWAHL_UEBERGABE();
    HKAUSWAHL_UEBERGABE(const HKAUSWAHL_UEBERGABE&);
    HKAUSWAHL_UEBERGABE& operator=(const HKAUSWAHL_UEBERGABE&);

    const CRuntimeClass& GetRuntimeClass() const override;
    ~HKAUSWAHL_UEBERGABE() override;

    /// The whole record. A loading that fails leaves it as it was.
    void Serialize(CArchive& archive) override;

    static const CRuntimeClass& GetThisClass();

    CString Layer;
    /// Colour index of the layer.
    std::int32_t LayerFarbe;
};
