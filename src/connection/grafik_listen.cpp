#include "connection/grafik_listen.h"

#include "host/drawer.h"
#include "host/host_prefs.h"

namespace {

constexpr int kAlleBloecke = 0;

CStringArray LeseGrafiken(CDrawer& drawer)
{
    CString zeichnung;
    lmGetDWGDefPath(LumoDWGDefsNames::ventile, zeichnung);
    CStringArray namen;
    drawer.GetBlockNames(zeichnung, namen, kAlleBloecke);
    return namen;
}

/// Selects by the last place of the graphic among the names.
void Fuelle(CAuswahlListe& liste, const CStringArray& namen, const CString& grafik)
{
    liste.Fuellen(namen);
    int stelle = -1;
    for (int i = 0; i < namen.GetSize(); ++i) {
        stelle = namen[i] == grafik ? i : stelle;
    }
    liste.Waehlen(stelle);
}

void WaehleBlock(CAuswahlListe& liste)
{
    CString block;
    if (!lmGetHKBlock(block)) {
        liste.Waehlen(0);
    } else if (const int stelle = SucheAnfang(liste, block); stelle >= 0) {
        liste.Waehlen(stelle);
    }
}

} // namespace

void FuelleGrafikListen(CDrawer& drawer, const ConnValues& anschluss, CAuswahlListe& vorlauf,
                        CAuswahlListe& ruecklauf)
{
    const CStringArray namen = LeseGrafiken(drawer);
    Fuelle(vorlauf, namen, anschluss.GrafikAN);
    Fuelle(ruecklauf, namen, anschluss.GrafikRI);
    WaehleBlock(vorlauf);
}
