#include "dialogs/banner.h"

#include "host/host_prefs.h"
#include "uikit/dc.h"

namespace {

constexpr COLORREF kBannerOben = 0xFDE061;
constexpr COLORREF kBannerUnten = 0xFFFFFF;
constexpr COLORREF kBannerSchrift = RGB(0, 0, 0);
constexpr int kSenkrecht = 900;
constexpr int kEinzug = 4;
constexpr int kAbstandUnten = 10;

const CFont kBannerFont = {L"Segoe UI", 14, 700, true};

/// The host may ask for a banner in the style of the system's theme. No system that the module runs
/// on has one, so that the module's own is drawn.
bool ZeichneThemenBanner(const CWnd& /*control*/)
{
    return false;
}

} // namespace

void BannerZeichnen(const CWnd& control, bool schlicht)
{
    if (!control.IsWindow()) {
        return;
    }
    bool themenBanner = false;
    if (!schlicht && lmGetUseVistaBanner(themenBanner) && themenBanner &&
        ZeichneThemenBanner(control)) {
        return;
    }
    const CRect flaeche = control.GetClientRect();
    CMemoryDC speicher({flaeche.Width(), flaeche.Height()});
    speicher.FillGradient(flaeche, kBannerOben, kBannerUnten);
    CString name;
    lmGetProductLongName(name);
    speicher.TextOut({kEinzug, flaeche.Height() - kAbstandUnten}, name, kBannerFont, kBannerSchrift,
                     kSenkrecht);
    CClientDC(control).BitBlt({0, 0}, speicher);
}

void FarbfeldZeichnen(const CWnd& control, COLORREF farbe)
{
    if (!control.IsWindow()) {
        return;
    }
    CClientDC dc(control);
    const CRect flaeche = control.GetClientRect();
    dc.FillRect(flaeche, farbe);
    dc.SetPen(kBannerSchrift, 1);
    dc.Rectangle(flaeche);
}
