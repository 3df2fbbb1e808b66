#include "connection/dialog/anschluss_bild_control.h"

#include "connection/bild_geometrie.h"
#include "uikit/dc.h"

namespace {

constexpr int kRand = 12;
constexpr int kHalbeMarke = 6;
constexpr int kPfeilBreite = 3;
constexpr COLORREF kSchwarz = RGB(0, 0, 0);
constexpr COLORREF kMarke = RGB(10, 0, 0);
constexpr COLORREF kVorlauf = RGB(255, 0, 0);
constexpr COLORREF kRuecklauf = RGB(0, 0, 255);

void ZeichneMarke(CDC& dc, CPoint ort)
{
    dc.SetPen(kMarke, 1);
    dc.Rectangle(
        {ort.x - kHalbeMarke, ort.y - kHalbeMarke, ort.x + kHalbeMarke, ort.y + kHalbeMarke});
}

void ZeichnePfeil(CDC& dc, Pfeil richtung, CPoint ort, COLORREF farbe)
{
    dc.SetPen(farbe, kPfeilBreite);
    for (const CStrich& strich : PfeilStriche(richtung, ort)) {
        dc.Polyline(strich);
    }
}

void ZeichnePunkt(CDC& dc, CPoint ort, Pfeil richtung, COLORREF farbe)
{
    ZeichneMarke(dc, ort);
    ZeichnePfeil(dc, richtung, ort, farbe);
}

} // namespace

void ZeichneAnschlussBild(CWnd rahmen, const ConnValues& werte)
{
    if (!rahmen.IsWindow()) {
        return;
    }
    // What a canvas holds is erased at once; it shows when the drawing is complete.
    rahmen.Invalidate();
    CClientDC dc(rahmen);
    const CRect client = rahmen.GetClientRect();
    const CRect flaeche{client.left + kRand, client.top + kRand, client.right - kRand,
                        client.bottom - kRand};
    dc.SetPen(kSchwarz, 1);
    dc.Rectangle(flaeche);
    ZeichnePunkt(dc, PunktAufBild(flaeche, werte.PosAN, werte.OffsetAN),
                 Pfeilrichtung(werte.WinkelAN[0], werte.WinkelAN[1], true), kVorlauf);
    ZeichnePunkt(dc, PunktAufBild(flaeche, werte.PosRI, werte.OffsetRI),
                 Pfeilrichtung(werte.WinkelRI[0], werte.WinkelRI[1], false), kRuecklauf);
}
