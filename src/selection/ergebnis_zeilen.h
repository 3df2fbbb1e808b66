#pragma once

#include "frame/handover.h"
#include "platform/text.h"
#include "selection/auswahl_kriterien.h"

#include <array>

/// Columns of the result grid. Column 0 is text, all others are numbers.
inline constexpr int kErgebnisSpalten = 8;

/// No column is narrower, in pixels.
inline constexpr int kSchmalsteSpalte = 60;

/// Column with the output at design temperatures.
inline constexpr int kSpalteLeistung = 5;

/// Row that addresses the headings.
inline constexpr int kErgebnisKopf = -1;

using ErgebnisTexte = std::array<CString, kErgebnisSpalten>;

/// Texts of the grid by number: 1 the caption of its message, 2 to 8 and 17 the headings, 9 to 15
/// and 18 the tooltips, 16 the message. A number outside 1 to 18 gives an empty text.
CString ErgebnisText(int nummer);

/// Heading and tooltip of a column, empty for a column that does not exist.
CString SpaltenTitel(int spalte);
CString SpaltenTooltip(int spalte);

/// Cell texts of a result row: whole numbers, but for the water content, which has one decimal. The
/// grid keeps nothing else, so that what is sorted and selected by is what the user sees.
void ZellTexte(const HK_VDI3805_TYP& zeile, ErgebnisTexte& texte);

enum class ZellArt
{
    text,
    zahl,
    andere
};

struct CErgebnisZelle
{
    ZellArt art = ZellArt::text;
    CString text;
};

/// Order of two cells, -1, 0 or 1, as the art of the first one says: numbers by value, texts with
/// case counting and cells without text behind all others. `absteigend` exchanges the cells. Of two
/// cells of another art that both have no text, the one that stands first counts as the greater.
int VergleicheZellen(const CErgebnisZelle& erste, const CErgebnisZelle& zweite, bool absteigend);

/// What the rows ask of the grid control. None of it raises a row change: that is the user's
/// choice of a row.
class CErgebnisGitter
{
public:
    virtual ~CErgebnisGitter() = default;

    /// Stops painting, or allows it again without painting anything yet.
    virtual void SetzeZeichnen(bool an) = 0;
    virtual void ZeichneAlles() = 0;

    /// Appends a row with these cell texts.
    virtual void FuegeZeileHinzu(const ErgebnisTexte& texte) = 0;
    /// Deletes a row; false if there is none.
    virtual bool LoescheZeile(int zeile) = 0;

    /// Text of a cell, of the heading in row kErgebnisKopf; empty where there is no cell.
    virtual CString Text(int spalte, int zeile) const = 0;

    /// Clears any selection and makes column 0 of the row the current cell.
    virtual void GeheZuZeile(int zeile) = 0;

    /// Fits the width of columns to their widest cell, headings included; none gets narrower than
    /// `mindestens` pixels.
    virtual void PasseBreiteAn(int erste, int anzahl, int zeilen, int mindestens) = 0;

    /// Sorts the rows with VergleicheZellen(), equal ones staying in their order, and shows the
    /// direction in the heading.
    virtual void Sortiere(int spalte, bool aufsteigend) = 0;
};

/// The rows of the result grid: fills them from the result list, which stays the source, and
/// reports the user's choice back. Grid and criteria must outlive the object.
class CErgebnisZeilen
{
public:
    CErgebnisZeilen(CErgebnisGitter& gitter, CAuswahlKriterien& kriterien);

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
    void ZeileWaehlen(int zeile);

    /// Makes the best row of the result list current: -1 if there is none.
    void BesteZeileWaehlen();

    /// The user has picked a row, another one or, after a sort, any: its radiator goes to the
    /// hand-over, found by the numbers that the grid shows. A radiator whose measures are no whole
    /// millimetres is not found, and the hand-over keeps the earlier choice.
    void ZeileGewechselt(int zeile);

    /// The user has clicked a heading: sorts by the column, against the direction of its last sort.
    /// A column that was never sorted counts as ascending, so that the first click sorts
    /// descending. The current row keeps its number, and may then show another radiator than the
    /// one in the hand-over.
    void UeberschriftGeklickt(int spalte);

    /// Fits the columns to all rows; none gets narrower than 60 pixels.
    void SpaltenAnpassen(int erste, int anzahl, int zeilen);

    int AnzahlZeilen() const { return m_nZeilen; }
    int AktuelleZeile() const { return m_nAktuelleZeile; }

private:
    int BesteOderErweiterte();
    void Erweitern();
    void ZeilenEinfuegen();

    CErgebnisGitter& m_gitter;
    CAuswahlKriterien& m_kriterien;
    int m_nAktuelleZeile = 0;
    /// Direction of each column's last sort, true for ascending.
    std::array<bool, kErgebnisSpalten> m_Sortierung;
    int m_nZeilen = 0;
    int m_nSpalten = kErgebnisSpalten;
    /// Caption of the message.
    CString m_strTitel;
};
