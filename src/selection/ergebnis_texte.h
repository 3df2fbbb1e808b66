#pragma once

#include "frame/handover.h"
#include "platform/text.h"

/// Columns of the result grid. Column 0 is text, all others are numbers.
inline constexpr int kErgebnisSpalten = 8;

/// No column is narrower, in pixels.
inline constexpr int kSchmalsteSpalte = 60;

/// Column with the output at design temperatures.
inline constexpr int kSpalteLeistung = 5;

/// Row that addresses the headings.
inline constexpr int kErgebnisKopf = -1;

/// Texts of the grid by number: 1 the caption of its message, 2 to 8 and 17 the headings, 9 to 15
/// and 18 the tooltips, 16 the message. A number outside 1 to 18 gives an empty text.
CString ErgebnisText(int nummer);

/// Heading and tooltip of a column, empty for a column that does not exist.
CString SpaltenTitel(int spalte);
CString SpaltenTooltip(int spalte);

/// Makes `text` what a column of the grid (0 to 7) shows of a result row: whole numbers, but for
/// the water content, which has one decimal. The grid keeps nothing else, so that what is sorted
/// and selected by is what the user sees.
void ZellText(const HK_VDI3805_TYP& zeile, int spalte, CString& text);

/// True if that column shows two rows by the same value, and hence by the same text.
bool HabenDenselbenWert(const HK_VDI3805_TYP& eine, const HK_VDI3805_TYP& andere, int spalte);

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
