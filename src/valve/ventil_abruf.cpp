#include "valve/ventil_abruf.h"

#include "valve/ventil_erklaerung.h"
#include "valve/ventil_katalog.h"

namespace {

VDI3805_VENTIL_KV VentilCache1;
/// Written and never read: a second valve with another key than the first is searched at each call.
VDI3805_VENTIL_KV VentilCache2;

/// False if the search for the first of them failed.
bool g_ersterGefunden = true;

bool HatSchluessel(const VDI3805_VENTIL_KV& ventil)
{
    return ventil.VentilNr.size() >= kShortestVentilNr && !ventil.Hersteller.empty();
}

bool GleicherSchluessel(const VDI3805_VENTIL_KV& a, const VDI3805_VENTIL_KV& b)
{
    return a.Hersteller == b.Hersteller && a.VentilNr == b.VentilNr;
}

/// Leaves the record as it is if the valve is not found; callers see that by its tables.
bool Suche(VDI3805_VENTIL_KV& ventil)
{
    CVentVdiKatalog katalog;
    const bool gefunden = katalog.SucheVentil(ventil.Hersteller, ventil.VentilNr, ventil);
    if (!gefunden) {
        ErklaereFehlendesVentil(ventil.Hersteller, ventil.VentilNr);
    }
    return gefunden;
}

void NimmAusCache(VDI3805_VENTIL_KV& ventil)
{
    ventil = VentilCache1;
    if (!g_ersterGefunden) {
        ErklaereFehlendesVentil(ventil.Hersteller, ventil.VentilNr);
    }
}

} // namespace

bool HoleVentilDaten(VDI3805_VENTIL_KV& ventil1, VDI3805_VENTIL_KV& ventil2)
{
    if (!HatSchluessel(ventil1)) {
        return false;
    }
    if (GleicherSchluessel(ventil1, VentilCache1)) {
        NimmAusCache(ventil1);
    } else {
        const bool gefunden = Suche(ventil1);
        VentilCache1 = ventil1;
        g_ersterGefunden = gefunden;
    }
    if (GleicherSchluessel(ventil2, VentilCache1)) {
        NimmAusCache(ventil2);
    } else if (HatSchluessel(ventil2)) {
        Suche(ventil2);
        VentilCache2 = ventil2;
    }
    return true;
}
