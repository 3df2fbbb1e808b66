#include "connection/dialog/anschluss_bild.h"

#include "connection/anschluss_punkt.h"
#include "connection/bild_geometrie.h"
#include "uikit/dc.h"

namespace {

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

void ZeichnePunkt(CDC& dc, const CRect& front, const ConnValues& werte, Punkt punkt, COLORREF farbe)
{
    const CPunktFelder& felder = FelderVon(punkt);
    const CPoint ort = PunktAufBild(front, werte.*felder.position, werte.*felder.offset);
    const ConnVector& winkel = werte.*felder.winkel;
    ZeichneMarke(dc, ort);
    ZeichnePfeil(dc, Pfeilrichtung(winkel[0], winkel[1], punkt == Punkt::vorlauf), ort, farbe);
}

} // namespace

void ZeichneAnschlussBild(CWnd rahmen, const CRect& front, const ConnValues& werte)
{
    if (!rahmen.IsWindow()) {
        return;
    }
    // This erases the canvas at once; the user sees it again when the drawing below is complete.
    rahmen.Invalidate();
    CClientDC dc(rahmen);
    dc.SetPen(kSchwarz, 1);
    dc.Rectangle(front);
    ZeichnePunkt(dc, front, werte, Punkt::vorlauf, kVorlauf);
    ZeichnePunkt(dc, front, werte, Punkt::ruecklauf, kRuecklauf);
}
