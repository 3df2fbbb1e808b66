#include "selection/dialog/hk_auswahl_grid.h"

#include "selection/dialog/hk_auswahl_dlg.h"

namespace {

constexpr int kKopfHoehe = 32;
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

} // namespace

CHKAuswahlVdi3805Grid::CHKAuswahlVdi3805Grid(CHKAuswahlVdi3805Dlg& dialog)
    : m_pDialog(&dialog), m_zeilen(*this, dialog.Kriterien())
{
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
    m_zeilen.ZeileWaehlen(0);
    SetzeSortPfeile();
    m_zeilen.SpaltenAnpassen(0, kErgebnisSpalten, 0);
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
    m_zeilen.ZeileGewechselt(newRow);
}

void CHKAuswahlVdi3805Grid::OnDoubleClick(int /*column*/, int row)
{
    if (row >= 0 && row < m_zeilen.AnzahlZeilen()) {
        m_pDialog->Bestaetigen();
    }
}

void CHKAuswahlVdi3805Grid::OnHeadingClick(int column, int /*row*/, bool down)
{
    if (!down) {
        m_zeilen.UeberschriftGeklickt(column);
    }
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

void CHKAuswahlVdi3805Grid::SetzeZeichnen(bool an)
{
    SetRedraw(an);
}

void CHKAuswahlVdi3805Grid::ZeichneAlles()
{
    RedrawAll();
}

void CHKAuswahlVdi3805Grid::FuegeZeileHinzu(const ErgebnisTexte& texte)
{
    AppendRow();
    const int zeile = GetRowCount() - 1;
    for (int spalte = 0; spalte < kErgebnisSpalten; ++spalte) {
        m_zelle.SetText(texte[static_cast<std::size_t>(spalte)]);
        m_zelle.SetDataType(spalte > 0 ? GridDataType::number : GridDataType::text);
        m_zelle.SetAlignment(spalte > 0 ? GridAlign::right : GridAlign::left);
        SetCell(spalte, zeile, m_zelle);
    }
}

bool CHKAuswahlVdi3805Grid::LoescheZeile(int zeile)
{
    return DeleteRow(zeile);
}

CString CHKAuswahlVdi3805Grid::Text(int spalte, int zeile) const
{
    return GetCellText(spalte, zeile);
}

void CHKAuswahlVdi3805Grid::GeheZuZeile(int zeile)
{
    ClearSelection();
    GotoCell(0, zeile);
}

void CHKAuswahlVdi3805Grid::PasseBreiteAn(int erste, int anzahl, int zeilen, int mindestens)
{
    BestFit(erste, anzahl, zeilen, mindestens);
}

void CHKAuswahlVdi3805Grid::Sortiere(int spalte, bool aufsteigend)
{
    SortBy(spalte, aufsteigend ? kSortAscending : kSortDescending);
    ZeigeRichtung(spalte, aufsteigend);
}
