#include "frame/entry_points.h"

#include "frame/ventil_kv.h"
#include "module/silent/host_check.h"
#include "module/silent/resource_context.h"
#include "valve/ventil_abruf.h"
#include "valve/ventil_erklaerung.h"

bool VDI3805GetVentilDaten(VDI3805_VENTIL_KV& ventil1, VDI3805_VENTIL_KV& ventil2)
{
    const CResourceContext context;
    if (!HostFits()) {
        return false;
    }
    const bool bSchluessel = HoleVentilDaten(ventil1, ventil2);
    if (!bSchluessel) {
        ErklaereSchluessel(ventil1.Hersteller, ventil1.VentilNr);
    }
    return bSchluessel;
}

void VDI3805GetVentil(const CString& hersteller1, const CString& ventilNr1,
                      const CString& hersteller2, const CString& ventilNr2,
                      VDI3805_VENTIL_KV& ventil1, VDI3805_VENTIL_KV& ventil2)
{
    ventil1.Hersteller = hersteller1;
    ventil1.VentilNr = ventilNr1;
    ventil2.Hersteller = hersteller2;
    ventil2.VentilNr = ventilNr2;
    VDI3805GetVentilDaten(ventil1, ventil2);
}
