#include "dialogs/brushed_dialog.h"

#include "dialogs/banner.h"
#include "dialogs/hilfe_schalter.h"
#include "dialogs/skin.h"
#include "host/host_catalog.h"
#include "host/host_prefs.h"
#include "uikit/application.h"

namespace {

constexpr int kHilfeSeite = 100;
constexpr int kHilfeBreite = 26;
constexpr int kHilfeHoehe = 40;
constexpr int kIconGroesse = 16;
constexpr int kIconOben = 4;

} // namespace

CBrushedDialog::CBrushedDialog(const DialogTemplate& dialogTemplate)
    : CDialog(dialogTemplate), m_nDialogId(static_cast<unsigned>(dialogTemplate.id))
{
    LeseSkin();
}

bool CBrushedDialog::OnInitDialog()
{
    const bool fokus = CDialog::OnInitDialog();
    bool erlaubt = false;
    HilfeErlaubt(m_nDialogId, erlaubt);
    m_bHilfe = erlaubt;
    return fokus;
}

bool CBrushedDialog::OnCommand(int id, ControlEvent event)
{
    lmGetAllowEnterAsTab(m_bEnterAlsTab);
    const bool istOk = id == kIdOk && event == ControlEvent::clicked;
    if (istOk && m_bEnterAlsTab && GetFocusId() != kIdOk) {
        PostNextControl();
        return true;
    }
    return CDialog::OnCommand(id, event);
}

bool CBrushedDialog::OnHelp()
{
    if (m_bHilfe) {
        ShowPDF(m_nDialogId, kHilfeSeite);
    }
    return true;
}

/// Painting the frame notes where on the screen the help icon lies, which a move has changed.
void CBrushedDialog::OnMove()
{
    CDialog::OnMove();
    RedrawFrame();
}

void CBrushedDialog::OnNcPaint(CDC& dc)
{
    if (!m_bHilfe) {
        return;
    }
    const unsigned rahmen = GetTemplate().frame;
    const int knoepfe =
        2 + ((rahmen & frameMaximizeBox) != 0 ? 1 : 0) + ((rahmen & frameMinimizeBox) != 0 ? 1 : 0);
    const CRect fenster = GetWindowRect();
    const int kante = dc.GetSize().cx - knoepfe * GetCaptionButtonWidth();
    m_rcHilfe =
        CRect{kante - kHilfeBreite, 0, kante, kHilfeHoehe}.MovedBy(fenster.left, fenster.top);
    dc.DrawBitmap({kante - kIconGroesse, kIconOben},
                  CImageLoader().LoadLumoIcon(iconHilfe, kIconGroesse, kIconGroesse));
}

void CBrushedDialog::OnNcLButtonDown(CPoint screen)
{
    if (m_bHilfe && m_rcHilfe.Contains(screen)) {
        ShowPDF(m_nDialogId, kHilfeSeite);
        RedrawFrame();
    }
    CDialog::OnNcLButtonDown(screen);
}

ControlColors CBrushedDialog::OnCtlColor(ColorKind kind)
{
    bool erlaubt = false;
    const bool gefaerbt =
        m_bSkin && AktuellerSkin().erlaubt && lmGetAllowLumoSkin(erlaubt) && erlaubt;
    return gefaerbt ? SkinFarbenFuer(kind) : CDialog::OnCtlColor(kind);
}

void CBrushedDialog::OnPaint()
{
    BannerZeichnen(GetDlgItem(kBannerId), false);
}
