#pragma once

#include "selection/ergebnis_texte.h"
#include "uikit/grid.h"

#include <array>

class CHKAuswahlVdi3805Dlg;

class CAuswahlKriterien;

/// The result grid of the selection dialog: fills its rows from the result list, which stays the
/// source, and takes the user's choice back to it.
class CHKAuswahlVdi3805Grid : public CUGCtrl
{
public:
    /// The dialog must outlive the object.
    explicit CHKAuswahlVdi3805Grid(CHKAuswahlVdi3805Dlg& dialog);
    ~CHKAuswahlVdi3805Grid() override;

    /// Rebuilds all rows, after a filter pass if asked for, and selects the best one. Rows stand in
    /// the order of the result list, whatever the user sorted by.
    ///
    /// Without a best row, and if the criteria have m_bWarnen set, the user is told once and the
    /// pass is repeated with every length up to the largest one and every depth of the product.
    void ZeilenAufbauen(bool bFiltern);

    /// Removes all rows.
    void ZeilenLeeren();

    /// Removes all rows from the screen, when the user has selected a manufacturer or a kind in the
    /// catalogue instead of a product. Criteria and outputs stay shown as they are.
    void ErgebnisEntfernen();

    /// Makes a row current and shows its output. A row that does not exist shows an empty output,
    /// row -1 the heading of the outputs.
    void ZeileWaehlen(int row);

    /// Makes the best row of the result list current: -1 if there is none.
    void BesteZeileWaehlen();

    /// Fits the columns `first` to `count` minus 1 to their headings and `rows` rows; none gets
    /// narrower than 60 pixels.
    void SpaltenAnpassen(int first, int count, int rows);

protected:
    void OnSetup() override;
    /// The user has picked a row, another one or, after a sort, any: its radiator goes to the
    /// hand-over, found by the numbers that the grid shows. A radiator whose measures are no whole
    /// millimetres is not found, and the hand-over keeps the earlier choice.
    void OnRowChange(int oldRow, int newRow) override;
    /// On a row, confirms the dialog as its OK button does.
    void OnDoubleClick(int column, int row) override;
    /// Sorts by the column, against the direction of its last sort. The current row keeps its
    /// number, and may then show another radiator than the one in the hand-over.
    void OnHeadingClick(int column, int row, bool down) override;
    /// Esc closes the dialog as its close box does.
    void OnCharTyped(wchar_t* character, bool& processed) override;
    bool OnToolTip(int column, int row, GridSection section, CString& html) override;
    int OnSortEvaluate(const CUGCell& first, const CUGCell& second, int flags) override;
    COLORREF OnDefaultBackColor(GridSection section) override;
    void OnDrawFocusRect(CDC& dc, const CRect& rect) override;

private:
    CAuswahlKriterien& Kriterien() const;
    int BesteOderErweiterte();
    void Erweitern();
    void ZeilenEinfuegen();
    void FuegeZeileHinzu(const HK_VDI3805_TYP& zeile);
    void SetzeKopf();
    void SetzeSortPfeile();
    void ZeigeRichtung(int spalte, bool aufsteigend);

    CHKAuswahlVdi3805Dlg* m_pDialog;
    int m_nAktuelleZeile = 0;
    /// Direction of each column's last sort, true for ascending. A column that was never sorted
    /// counts as ascending, so that the first click sorts descending.
    std::array<bool, kErgebnisSpalten> m_Sortierung;
    int m_nZeilen = 0;
    int m_nSpalten = kErgebnisSpalten;
    /// Caption of the message.
    CString m_strTitel;
    /// Cell type of headings that show a direction.
    int m_nSortPfeil = kGridSortArrowType;
    /// The cells of one row for all rows of a rebuild, so that writing them allocates no memory.
    std::array<CUGCell, kErgebnisSpalten> m_zeile;
    /// Beside the grid's own font, for cells of figures in columns and of signs.
    CFont m_festeSchrift;
    CFont m_symbolSchrift;
};
