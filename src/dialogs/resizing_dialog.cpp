#include "dialogs/resizing_dialog.h"

#include "dialogs/list_tree.h"
#include "host/host_prompts.h"
#include "uikit/application.h"

#include <algorithm>
#include <cmath>

namespace {

/// The low four bits of a system command belong to the window system.
constexpr unsigned kSysCommandMaske = 0xFFF0;

constexpr int kGriffId = 17733;
constexpr int kGriffKante = 14;

struct Strecke
{
    int von;
    int bis;
};

Strecke Folgen(int anker, Strecke alt, int wachstum, int neueMitte)
{
    const int laenge = alt.bis - alt.von;
    switch (anker) {
    case ankerStrecken:
        return {alt.von, alt.bis + wachstum};
    case ankerMitgehen:
        return {alt.von + wachstum, alt.bis + wachstum};
    case ankerMitte:
        return {neueMitte, neueMitte + laenge};
    default:
        return alt;
    }
}

} // namespace

CResizingDialog::CResizingDialog(const DialogTemplate& dialogTemplate)
    : CBrushedDialog(dialogTemplate)
{
}

bool CResizingDialog::OnInitDialog()
{
    m_anker.clear();
    m_bGeoeffnet = false;
    const bool fokus = CBrushedDialog::OnInitDialog();
    m_client = GetClientRect();
    const CRect fenster = GetWindowRect();
    m_kleinste = {fenster.Width(), fenster.Height()};
    GriffAnlegen();
    GetSystemMenu().AppendSeparator();
    GetSystemMenu().Append(kMenuTransparenz, L"Transparency...");
    m_bGeoeffnet = true;
    return fokus;
}

void CResizingDialog::GriffAnlegen()
{
    const int kante = static_cast<int>(std::lround(kGriffKante * GetDialogScale()));
    const CRect ecke = {m_client.right - kante, m_client.bottom - kante, m_client.right,
                        m_client.bottom};
    CreateControl({kGriffId, ControlKind::sizeGrip, L"", 0, 0, 0, 0}, ecke);
    AnkerSetzen(kGriffId, ankerMitgehen, ankerMitgehen, false);
}

void CResizingDialog::AnkerSetzen(int id, int x, int y, bool keinHintergrund)
{
    std::erase_if(m_anker, [id](const AnkerSatz& satz) { return satz.id == id; });
    AnkerSatz satz{id, x, y, GetDlgItem(id).GetPlace(), keinHintergrund};
    const CRect client = GetClientRect();
    satz.mitteX = satz.rect.left - client.Width() / 2;
    satz.mitteY = satz.rect.top - client.Height() / 2;
    m_anker.push_back(satz);
}

void CResizingDialog::GroesseErlauben(bool x, bool y)
{
    m_bGroesseX = x;
    m_bGroesseY = y;
    if (!x && !y && m_bGeoeffnet) {
        GetDlgItem(kGriffId).ShowWindow(false);
    }
}

bool CResizingDialog::AendereTransparenz(unsigned id, int& alpha)
{
    if ((id & kSysCommandMaske) != kMenuTransparenz) {
        return false;
    }
    if (ShowTransDlg(alpha)) {
        SetWindowAlpha(*this, alpha);
    }
    return true;
}

CRect CResizingDialog::NeuesRechteck(const AnkerSatz& satz, const CRect& client) const
{
    const Strecke x = Folgen(satz.x, {satz.rect.left, satz.rect.right},
                             client.Width() - m_client.Width(), client.Width() / 2 + satz.mitteX);
    const Strecke y =
        Folgen(satz.y, {satz.rect.top, satz.rect.bottom}, client.Height() - m_client.Height(),
               client.Height() / 2 + satz.mitteY);
    return {x.von, y.von, x.bis, y.bis};
}

void CResizingDialog::OnSize(SizeKind kind)
{
    CBrushedDialog::OnSize(kind);
    if (!m_bGeoeffnet || kind == SizeKind::minimized) {
        return;
    }
    const CRect client = GetClientRect();
    std::vector<Move> wege;
    for (AnkerSatz& satz : m_anker) {
        const CRect neu = NeuesRechteck(satz, client);
        if (neu != satz.rect) {
            wege.push_back({satz.id, neu});
            satz.rect = neu;
        }
    }
    MoveControls(wege);
    m_client = client;
    if (kind == SizeKind::normal) {
        const CRect fenster = GetWindowRect();
        m_letzteGroesse = {fenster.Width(), fenster.Height()};
    }
}

void CResizingDialog::OnMove()
{
    CBrushedDialog::OnMove();
    const CRect fenster = GetWindowRect();
    m_letzterOrt = {fenster.left, fenster.top};
}

void CResizingDialog::OnMinMaxInfo(MinMaxInfo& info)
{
    CBrushedDialog::OnMinMaxInfo(info);
    if (!m_bGeoeffnet) {
        return;
    }
    info.minTrackSize = m_kleinste;
    if (!m_bGroesseX) {
        info.maxSize.cx = m_kleinste.cx;
        info.maxTrackSize.cx = m_kleinste.cx;
    }
    if (!m_bGroesseY) {
        info.maxSize.cy = m_kleinste.cy;
        info.maxTrackSize.cy = m_kleinste.cy;
    }
}

void CResizingDialog::OnEraseBackground(CDC& dc)
{
    for (const AnkerSatz& satz : m_anker) {
        if (satz.keinHintergrund && satz.id != kGriffId) {
            dc.ExcludeClipRect(satz.rect);
        }
    }
    CBrushedDialog::OnEraseBackground(dc);
}

void CResizingDialog::OnDestroy()
{
    m_bGeoeffnet = false;
    CBrushedDialog::OnDestroy();
}
