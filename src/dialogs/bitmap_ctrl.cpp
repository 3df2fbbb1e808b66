#include "dialogs/bitmap_ctrl.h"

#include "dialogs/bild_rollen.h"
#include "uikit/picture_file.h"

#include <utility>

namespace {

constexpr COLORREF kGrau = RGB(128, 128, 128);
constexpr COLORREF kSchrift = RGB(0, 0, 0);
constexpr wchar_t kNichtGefunden[] = L"File not found.";

} // namespace

bool CBitmapCtrl::Create(unsigned style, const CRect& rect, const CWnd& parent)
{
    if (!CreateCanvas(style, rect, parent)) {
        return false;
    }
    m_balkenBreite = GetScrollBarWidth();
    if (!Leere()) {
        return false;
    }
    Show(*m_speicher);
    return true;
}

/// Makes everything grey and takes the scroll bars away. False if there is no memory for the
/// picture.
bool CBitmapCtrl::Leere()
{
    m_ScrollX = 0;
    m_ScrollY = 0;
    SetScrollBar(ScrollAxis::horizontal, 0, 0);
    SetScrollBar(ScrollAxis::vertical, 0, 0);
    m_client = GetClientRect();
    const CSize groesse{m_client.Width(), m_client.Height()};
    if (!m_speicher || m_speicher->GetSize() != groesse) {
        m_speicher.emplace(groesse);
    }
    if (!m_speicher->IsReady()) {
        m_speicher.reset();
        return false;
    }
    m_speicher->FillRect(m_client, kGrau);
    return true;
}

void CBitmapCtrl::SetBitmap(const CBitmap* bitmap)
{
    m_pBitmap = bitmap;
    if (!IsWindow() || !Leere()) {
        return;
    }
    if (bitmap == nullptr) {
        const CFont schrift = {L"Tahoma", 13};
        m_speicher->TextOut({0, 0}, kNichtGefunden, schrift, kSchrift);
        Show(*m_speicher);
        return;
    }
    m_BildBreite = bitmap->GetWidth();
    m_BildHoehe = bitmap->GetHeight();
    const CScrollBedarf bedarf = ScrollbalkenFuer(m_client.Width(), m_client.Height(), m_BildBreite,
                                                  m_BildHoehe, m_balkenBreite);
    m_client.right = m_client.left + bedarf.breite;
    m_client.bottom = m_client.top + bedarf.hoehe;
    if (bedarf.horizontal) {
        SetScrollBar(ScrollAxis::horizontal, m_BildBreite, bedarf.breite);
    }
    if (bedarf.vertikal) {
        SetScrollBar(ScrollAxis::vertical, m_BildHoehe, bedarf.hoehe);
    }
    Zeichne();
}

void CBitmapCtrl::LoadFile(const CString& path)
{
    CBitmap bild = LoadPictureFile(path);
    const bool gelesen = !bild.IsEmpty();
    m_geladen = std::move(bild);
    SetBitmap(gelesen ? &m_geladen : nullptr);
}

void CBitmapCtrl::Zeichne()
{
    // Transparent parts of the picture must show grey, not the picture at its former place.
    m_speicher->FillRect(m_client, kGrau);
    m_speicher->DrawBitmap({-m_ScrollX, -m_ScrollY}, *m_pBitmap);
    Show(*m_speicher);
}

int CBitmapCtrl::OnScroll(ScrollAxis axis, ScrollAction action, int position)
{
    if (m_pBitmap == nullptr || !m_speicher) {
        return position;
    }
    const bool quer = axis == ScrollAxis::horizontal;
    int& stand = quer ? m_ScrollX : m_ScrollY;
    stand = quer ? NeueScrollPosition(stand, action, position, m_BildBreite, m_client.Width())
                 : NeueScrollPosition(stand, action, position, m_BildHoehe, m_client.Height());
    Zeichne();
    return stand;
}
