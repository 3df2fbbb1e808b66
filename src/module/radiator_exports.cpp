#include "frame/entry_points.h"

#include "common/diagnosis.h"
#include "module/host_check.h"
#include "module/resource_context.h"
#include "radiator/hk_vdi3805.h"
#include "radiator/leere_antwort.h"
#include "radiator/size_queries.h"
#include "selection/dialog/hk_auswahl_dlg.h"
#include "selection/dialog/hk_auswahl_tree_dlg.h"

namespace {

constexpr int kNothingChosen = -1;
constexpr int kCancelled = -2;
constexpr int kTreeCancelled = -1;

bool HasHandover(const HK_DATEN_VDI3805_UEBERGABE* uebergabe)
{
    if (uebergabe == nullptr) {
        TellDiagnosis(HostDiagnosis::noCall, L"La chiamata non porta alcun record.");
    }
    return uebergabe != nullptr;
}

/// Layer and colour go back to the caller even on cancel, as the criteria do.
int RunSelectionDialog(CHKVdi3805& katalog, CDrawer* drawer, CString& layer, int& layerColor,
                       bool warnAndWiden)
{
    const bool treffer = katalog.BesteAuswahl() != -1;
    CHKAuswahlVdi3805Dlg dialog(katalog, treffer, warnAndWiden);
    dialog.LayerSetzen(layer, layerColor);
    dialog.DrawerSetzen(drawer);
    const int result = dialog.DoModal();
    dialog.LayerHolen(layer, layerColor);
    if (result != kIdOk) {
        return kCancelled;
    }
    return dialog.HatTreffer() ? 0 : kNothingChosen;
}

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
        return RunSelectionDialog(katalog, drawer, layer, layerColor, warnAndWiden);
    }
    const int chosen = katalog.BesteAuswahlMinLeistung(uebergabe);
    if (chosen == kNothingChosen) {
        ErklaereLeereAuswahl(katalog);
    }
    return chosen;
}

int HeizkoerperauswahlVDI3805Tree(HK_DATEN_VDI3805_UEBERGABE* uebergabe)
{
    const CResourceContext context;
    if (!HostFits() || !HasHandover(uebergabe)) {
        return kTreeCancelled;
    }
    CHKVdi3805 katalog(uebergabe);
    katalog.Filtern();
    CHKAuswahlVdi3805TreeDlg dialog(&katalog);
    return dialog.DoModal() == kIdOk ? 0 : kTreeCancelled;
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
