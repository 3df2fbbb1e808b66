#include "connection/vorschau.h"

#include "host/drawer.h"
#include "host/drawing_records.h"
#include "host/host_base.h"
#include "host/host_fittings.h"

#include <array>

namespace {

void SetzeAttribut(ALIST*& kopf, const CString& name, const CString& wert)
{
    ALIST** stelle = &kopf;
    while (*stelle != nullptr) {
        if ((*stelle)->Name == name) {
            (*stelle)->Wert = wert;
            return;
        }
        stelle = &(*stelle)->pNext;
    }
    *stelle = new ALIST{name, wert, nullptr};
}

void ZeichnePunkte(const TGA_LIST& objekt, CDrawer& drawer)
{
    std::array<LM_APUNKT, kMaxAnschlussPunkte> punkte;
    LM_TRAFO trafo(objekt.Trafo);
    const int anzahl =
        lmGet_K_APUNKT_BLOCK_Wc(objekt.Attribute, punkte.data(), &trafo, TgaGewerk(0), CString());
    // The points of the second half are the far ends of the pipes that begin at those of the first;
    // drawing a point draws its pipe as far as that.
    for (int i = 0; i < anzahl / 2; ++i) {
        const LM_APUNKT& punkt = punkte[static_cast<std::size_t>(i)];
        drawer.DrawConnectionPoint(punkt.Punkt, punkt.Richtung, punkt.Wert,
                                   lmGetGewerkColor(punkt.Gewerk),
                                   punkt.Gewerk == kGewerkRuecklauf);
    }
}

} // namespace

void ZeichneAnschlussVorschau(TGA_LIST* liste, CDrawer& drawer, const ConnValues& werte)
{
    drawer.ClearPreview();
    drawer.BeginPreview();
    for (TGA_LIST* objekt = liste; objekt != nullptr; objekt = objekt->pNext) {
        SetzeAttribut(objekt->Attribute, L"H_VL_PUNKT", werte.AnschlussAN);
        SetzeAttribut(objekt->Attribute, L"H_RL_PUNKT", werte.AnschlussRI);
        ZeichnePunkte(*objekt, drawer);
    }
    drawer.EndPreview();
}
