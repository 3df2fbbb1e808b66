#pragma once

#include "selection/ergebnis_zeilen.h"
#include "uikit/grid.h"

class CHKAuswahlVdi3805Dlg;

/// The result grid of the selection dialog: a grid control that shows the rows of CErgebnisZeilen
/// and tells them and the dialog what the user does.
class CHKAuswahlVdi3805Grid : public CUGCtrl, private CErgebnisGitter
{
public:
    /// The dialog must outlive the object.
    explicit CHKAuswahlVdi3805Grid(CHKAuswahlVdi3805Dlg& dialog);
    ~CHKAuswahlVdi3805Grid() override;

    CErgebnisZeilen& Zeilen() { return m_zeilen; }

protected:
    void OnSetup() override;
    void OnRowChange(int oldRow, int newRow) override;
    /// On a row, confirms the dialog as its OK button does.
    void OnDoubleClick(int column, int row) override;
    void OnHeadingClick(int column, int row, bool down) override;
    /// Esc closes the dialog as its close box does.
    void OnCharTyped(wchar_t* character, bool& processed) override;
    bool OnToolTip(int column, int row, GridSection section, CString& html) override;
    int OnSortEvaluate(const CUGCell& first, const CUGCell& second, int flags) override;
    COLORREF OnDefaultBackColor(GridSection section) override;
    void OnDrawFocusRect(CDC& dc, const CRect& rect) override;

private:
    void SetzeZeichnen(bool an) override;
    void ZeichneAlles() override;
    void FuegeZeileHinzu(const ErgebnisTexte& texte) override;
    bool LoescheZeile(int zeile) override;
    CString Text(int spalte, int zeile) const override;
    void GeheZuZeile(int zeile) override;
    void PasseBreiteAn(int erste, int anzahl, int zeilen, int mindestens) override;
    void Sortiere(int spalte, bool aufsteigend) override;

    void SetzeKopf();
    void SetzeSortPfeile();
    void ZeigeRichtung(int spalte, bool aufsteigend);

    CHKAuswahlVdi3805Dlg* m_pDialog;
    CErgebnisZeilen m_zeilen;
    /// Cell type of headings that show a direction.
    int m_nSortPfeil = kGridSortArrowType;
    /// One cell for all writes of a rebuild, so that writing a cell allocates no memory.
    CUGCell m_zelle;
    /// Beside the grid's own font, for cells of figures in columns and of signs.
    CFont m_festeSchrift;
    CFont m_symbolSchrift;
};
