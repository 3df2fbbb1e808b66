#include "frame/entry_points.h"

#include "module/silent/handover_check.h"
#include "module/silent/host_check.h"
#include "module/silent/module_windows.h"
#include "module/silent/resource_context.h"
#include "radiator/hk_vdi3805.h"
#include "radiator/leere_antwort.h"
#include "radiator/size_queries.h"

namespace {

constexpr int kNothingChosen = -1;
constexpr int kCancelled = -2;

} // namespace

int HeizkoerperauswahlVDI3805(CDrawer* drawer, HK_DATEN_VDI3805_UEBERGABE* uebergabe,
                              CString& layer, int& layerColor, bool showDialog, bool warnAndWiden)
{
    const CResourceContext context;
    if (!HostFits() || !HasHandover(uebergabe)) {
        return kNothingChosen;
    }
    CHKVdi3805 katalog(uebergabe);
    katalog.SetLeistungFilter(0);
    katalog.Filtern();
    if (showDialog) {
        CModuleWindows* const windows = GetModuleWindows();
        return windows ? windows->ShowSelection(katalog, drawer, layer, layerColor, warnAndWiden)
                       : kCancelled;
    }
    const int chosen = katalog.BesteAuswahlMinLeistung(uebergabe);
    if (chosen == kNothingChosen) {
        ErklaereLeereAuswahl(katalog);
    }
    return chosen;
}

void Read_HK_Masse(HK_DATEN_VDI3805_UEBERGABE& uebergabe, OCArray<double>& hoehen,
                   OCArray<double>& tiefen)
{
    const CResourceContext context;
    if (HostFits()) {
        LeseMasse(uebergabe, hoehen, tiefen);
    }
}

void Read_HK_Masse(HK_DATEN_VDI3805_UEBERGABE& uebergabe, short* hoehen, short* tiefen,
                   short* laengen, double* inhalte, int capacity)
{
    const CResourceContext context;
    if (HostFits()) {
        LeseMasse(uebergabe, hoehen, tiefen, laengen, inhalte, capacity);
    } else {
        LeereMasse(hoehen, tiefen, laengen, inhalte, capacity);
    }
}

double HKGetMinTiefe(HK_DATEN_VDI3805_UEBERGABE& uebergabe)
{
    const CResourceContext context;
    return HostFits() ? MinTiefe(uebergabe) : -1.0;
}

double HKGetMaxTiefe(HK_DATEN_VDI3805_UEBERGABE& uebergabe)
{
    const CResourceContext context;
    return HostFits() ? MaxTiefe(uebergabe) : -1.0;
}

double GetHK_Inhalt(HK_DATEN_VDI3805_UEBERGABE& uebergabe, double hoehe, double tiefe,
                    double laenge)
{
    const CResourceContext context;
    return HostFits() ? Inhalt(uebergabe, hoehe, tiefe, laenge) : 0.0;
}

void DummyCall() {}
