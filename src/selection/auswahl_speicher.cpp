#include "selection/auswahl_speicher.h"

#include "common/layer_text.h"
#include "common/startwerte.h"
#include "frame/hkauswahl_uebergabe.h"
#include "host/host_catalog.h"
#include "host/host_prefs.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

namespace {

constexpr wchar_t kAuswahlDatei[] = L"HkAuswahl.def";

std::int32_t GanzeGrade(double temperatur)
{
    using Grenzen = std::numeric_limits<std::int32_t>;
    if (std::isnan(temperatur)) {
        return 0;
    }
    return static_cast<std::int32_t>(
        std::clamp<double>(temperatur, Grenzen::min(), Grenzen::max()));
}

} // namespace

bool LayerVorgabe(const CString& raumname, CString& layer, int& farbe)
{
    const auto* const letzte = static_cast<const HKAUSWAHL_UEBERGABE*>(
        ReadDefFile(&HKAUSWAHL_UEBERGABE::GetThisClass(), kAuswahlDatei));
    if (letzte == nullptr || !layer.empty()) {
        return false;
    }
    layer = letzte->Layer;
    farbe = letzte->LayerFarbe;
    if (layer.empty()) {
        CString vorlage;
        lmGetHKLayer(vorlage);
        layer = LayerAusVorlage(vorlage, CRoomTools::GetFloorName(raumname));
        lmGetHKLayerColor(farbe);
    }
    return true;
}

void LayerMerken(const CString& layer, int farbe)
{
    HKAUSWAHL_UEBERGABE auswahl;
    auswahl.Layer = layer;
    auswahl.LayerFarbe = farbe;
    WriteDefFile(&auswahl, &HKAUSWAHL_UEBERGABE::GetThisClass(), kAuswahlDatei);
}

void AuswahlMerken(const HK_DATEN_VDI3805_UEBERGABE& uebergabe, const CString& systemName,
                   double vorlauf, double ruecklauf)
{
    VDI6030START start = LeseStartwerte();
    start.SystemVorlauf = GanzeGrade(vorlauf);
    start.SystemRuecklauf = GanzeGrade(ruecklauf);
    start.SystemName = systemName;
    start.Hersteller = uebergabe.Hersteller;
    start.Produkt = uebergabe.Produkt;
    start.Art = uebergabe.Art;
    WriteDefFile_VDI6030START(&start, false);
}
