#include "selection/dialog/hk_auswahl_grid.h"

#include "platform/format.h"
#include "platform/message.h"
#include "platform/number_scan.h"
#include "radiator/size_queries.h"
#include "selection/dialog/hk_auswahl_dlg.h"

#include <string_view>

namespace {

constexpr int kKopfHoehe = 32;
constexpr int kTextTitel = 1;
constexpr int kTextNichtGefunden = 16;
constexpr wchar_t kEsc = 27;
constexpr COLORREF kWeiss = RGB(255, 255, 255);

const CFont kGitterFont = {L"Segoe UI", 15, 100};
const CFont kFesteSchrift = {.face = L"Courier New", .height = 15, .fixedPitch = true};
const CFont kSymbolSchrift = {.face = L"Symbol", .height = 15};

CErgebnisZelle Zelle(const CUGCell& cell)
{
    switch (cell.GetDataType()) {
    case GridDataType::text:
        return {ZellArt::text, cell.GetText()};
    case GridDataType::number:
        return {ZellArt::zahl, cell.GetText()};
    default:
        return {ZellArt::andere, cell.GetText()};
    }
}

/// Puts the two whole numbers into the places of the text that stand for them.
CString MitZahlen(CString text, double erste, double zweite)
{
    constexpr std::wstring_view kPlatz = L"%.0lf";
    for (const double zahl : {erste, zweite}) {
        text.replace(text.find(kPlatz), kPlatz.size(), FormatFixed(zahl, 0));
    }
    return text;
}

} // namespace

CHKAuswahlVdi3805Grid::CHKAuswahlVdi3805Grid(CHKAuswahlVdi3805Dlg& dialog)
    : m_pDialog(&dialog), m_strTitel(ErgebnisText(kTextTitel))
{
    m_Sortierung.fill(true);
    for (CUGCell& zelle : m_zeile) {
        zelle.SetDataType(GridDataType::number);
        zelle.SetAlignment(GridAlign::right);
    }
    m_zeile.front().Clear();
}

CHKAuswahlVdi3805Grid::~CHKAuswahlVdi3805Grid() = default;

void CHKAuswahlVdi3805Grid::OnSetup()
{
    SetDefaultFont(kGitterFont);
    m_festeSchrift = kFesteSchrift;
    m_symbolSchrift = kSymbolSchrift;
    SetColumnCount(kErgebnisSpalten);
    SetzeKopf();
    SetCurrentCellMode(currentCellHighlight);
    SetNarrowestColumn(kSchmalsteSpalte);
    ZeileWaehlen(0);
    SetzeSortPfeile();
    SpaltenAnpassen(0, kErgebnisSpalten, 0);
}

void CHKAuswahlVdi3805Grid::SetzeKopf()
{
    SetHeadingHeight(kKopfHoehe);
    for (int spalte = 0; spalte < kErgebnisSpalten; ++spalte) {
        CUGCell kopf;
        kopf.SetText(SpaltenTitel(spalte));
        kopf.SetAlignment(GridAlign::center);
        SetCell(spalte, kErgebnisKopf, kopf);
    }
}

/// Before the first sort the arrows tell what each column starts with.
void CHKAuswahlVdi3805Grid::SetzeSortPfeile()
{
    for (int spalte = 0; spalte < kErgebnisSpalten; ++spalte) {
        ZeigeRichtung(spalte, true);
    }
}

void CHKAuswahlVdi3805Grid::ZeigeRichtung(int spalte, bool aufsteigend)
{
    CUGCell kopf;
    GetCell(spalte, kErgebnisKopf, kopf);
    kopf.SetCellType(m_nSortPfeil);
    kopf.SetTypeFlag(aufsteigend ? kSortArrowAscending : kSortArrowDescending);
    SetCell(spalte, kErgebnisKopf, kopf);
}

void CHKAuswahlVdi3805Grid::OnRowChange(int /*oldRow*/, int newRow)
{
    const auto zahl = [&](int spalte) { return _wtof(GetCellText(spalte, newRow)); };
    Kriterien().m_pVdi->SelectRow(GetCellText(0, newRow), zahl(1), zahl(2), zahl(3));
    ZeileWaehlen(newRow);
}

void CHKAuswahlVdi3805Grid::OnDoubleClick(int /*column*/, int row)
{
    if (row >= 0 && row < m_nZeilen) {
        m_pDialog->Bestaetigen();
    }
}

void CHKAuswahlVdi3805Grid::OnHeadingClick(int column, int /*row*/, bool down)
{
    if (down || column < 0 || column >= m_nSpalten || m_nZeilen == 0) {
        return;
    }
    bool& aufsteigend = m_Sortierung[static_cast<std::size_t>(column)];
    aufsteigend = !aufsteigend;
    SortBy(column, aufsteigend ? kSortAscending : kSortDescending);
    ZeigeRichtung(column, aufsteigend);
    RedrawAll();
}

void CHKAuswahlVdi3805Grid::OnCharTyped(wchar_t* character, bool& processed)
{
    if (*character == kEsc) {
        processed = true;
        m_pDialog->Schliessen();
    }
}

bool CHKAuswahlVdi3805Grid::OnToolTip(int column, int /*row*/, GridSection /*section*/,
                                      CString& html)
{
    html = SpaltenTooltip(column);
    return true;
}

int CHKAuswahlVdi3805Grid::OnSortEvaluate(const CUGCell& first, const CUGCell& second, int flags)
{
    return VergleicheZellen(Zelle(first), Zelle(second), (flags & kSortDescending) != 0);
}

COLORREF CHKAuswahlVdi3805Grid::OnDefaultBackColor(GridSection /*section*/)
{
    return kWeiss;
}

void CHKAuswahlVdi3805Grid::OnDrawFocusRect(CDC& dc, const CRect& rect)
{
    dc.DrawFocusRect({rect.left, rect.top, rect.right - 1, rect.bottom - 1});
}

CAuswahlKriterien& CHKAuswahlVdi3805Grid::Kriterien() const
{
    return m_pDialog->Kriterien();
}

void CHKAuswahlVdi3805Grid::ZeilenAufbauen(bool bFiltern)
{
    ZeileWaehlen(0);
    SetRedraw(false);
    ZeilenLeeren();
    if (bFiltern) {
        Kriterien().m_pVdi->Filtern();
    }
    const int beste = BesteOderErweiterte();
    ZeilenEinfuegen();
    SpaltenAnpassen(0, m_nSpalten, m_nZeilen);
    SetRedraw(true);
    ZeileWaehlen(beste);
    RedrawAll();
}

int CHKAuswahlVdi3805Grid::BesteOderErweiterte()
{
    CAuswahlKriterien& kriterien = Kriterien();
    int beste = kriterien.m_pVdi->BesteAuswahl();
    kriterien.m_bTreffer = beste != -1;
    if (kriterien.m_bTreffer) {
        return beste;
    }
    if (!kriterien.m_bWarnen) {
        return 0;
    }
    Erweitern();
    beste = kriterien.m_pVdi->BesteAuswahl();
    kriterien.m_bTreffer = beste != -1;
    return beste;
}

void CHKAuswahlVdi3805Grid::Erweitern()
{
    HK_DATEN_VDI3805_UEBERGABE& uebergabe = Kriterien().m_pVdi->GetDaten();
    ShowMessage(
        {m_strTitel,
         MitZahlen(ErgebnisText(kTextNichtGefunden), uebergabe.LaengeMax, uebergabe.HoeheMax),
         MessageIcon::information});
    Kriterien().m_bWarnen = false;
    uebergabe.LaengeMin = 0.0;
    uebergabe.TiefeMax = MaxTiefe(uebergabe);
    uebergabe.TiefeMin = MinTiefe(uebergabe);
    Kriterien().m_pVdi->Filtern();
}

void CHKAuswahlVdi3805Grid::ZeilenEinfuegen()
{
    for (const HK_VDI3805_TYP* zeile = Kriterien().m_pVdi->GetErgebnis(); zeile != nullptr;
         zeile = zeile->pNext) {
        FuegeZeileHinzu(*zeile);
        ++m_nZeilen;
    }
}

/// Rows that follow each other mostly have the same sizes, whose texts stand in the cells already.
void CHKAuswahlVdi3805Grid::FuegeZeileHinzu(const HK_VDI3805_TYP& zeile)
{
    for (int spalte = 0; spalte < kErgebnisSpalten; ++spalte) {
        if (zeile.pPrev == nullptr || !HabenDenselbenWert(*zeile.pPrev, zeile, spalte)) {
            ZellText(zeile, spalte, m_zeile[static_cast<std::size_t>(spalte)].EditText());
        }
    }
    AppendRow(m_zeile);
}

void CHKAuswahlVdi3805Grid::ZeilenLeeren()
{
    while (DeleteRow(0)) {
    }
    m_nZeilen = 0;
}

void CHKAuswahlVdi3805Grid::ErgebnisEntfernen()
{
    SetRedraw(false);
    ZeilenLeeren();
    SetRedraw(true);
    RedrawAll();
}

void CHKAuswahlVdi3805Grid::ZeileWaehlen(int row)
{
    ClearSelection();
    GotoCell(0, row);
    m_nAktuelleZeile = row;
    RedrawAll();
    Kriterien().LeistungIstAnzeigen(GetCellText(kSpalteLeistung, row));
}

void CHKAuswahlVdi3805Grid::BesteZeileWaehlen()
{
    ZeileWaehlen(Kriterien().m_pVdi->BesteAuswahl());
}

void CHKAuswahlVdi3805Grid::SpaltenAnpassen(int first, int count, int rows)
{
    BestFit(first, count, rows, kSchmalsteSpalte);
}
