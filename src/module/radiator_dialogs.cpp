#include "frame/entry_points.h"

#include "module/radsel_app.h"
#include "module/silent/handover_check.h"
#include "module/silent/host_check.h"
#include "module/silent/module_windows.h"
#include "module/silent/resource_context.h"
#include "radiator/hk_vdi3805.h"
#include "selection/dialog/hk_auswahl_dlg.h"
#include "selection/dialog/hk_auswahl_tree_dlg.h"

namespace {

constexpr int kNothingChosen = -1;
constexpr int kCancelled = -2;
constexpr int kTreeCancelled = -1;

class CDialogs final : public CModuleWindows
{
public:
    CWinApp* Enter() override { return CWinApp::MakeCurrent(&theApp); }

    void Leave(CWinApp* previous) override { CWinApp::MakeCurrent(previous); }

    /// Layer and colour go back to the caller even on cancel, as the criteria do.
    int ShowSelection(CHKVdi3805& katalog, CDrawer* drawer, CString& layer, int& layerColor,
                      bool warnAndWiden) override
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
};

CDialogs g_dialogs;

} // namespace

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
