#pragma once

#include "platform/array.h"
#include "platform/text.h"

/// A list of texts of which one may be selected, as a combo box shows it. What works on such a list
/// works through this view and needs no window.
class CAuswahlListe
{
public:
    virtual ~CAuswahlListe() = default;

    virtual int Anzahl() const = 0;

    /// Text of an entry, empty for an index outside the list.
    virtual CString Text(int index) const = 0;

    /// Adds an entry, at the end or, in a list that sorts itself, in its place; returns its index.
    virtual int Hinzufuegen(const CString& text) = 0;

    /// Adds entries to an empty list, which as a window takes thousands at once far faster than one
    /// by one; leaves none selected.
    virtual void Fuellen(const CStringArray& texte);

    /// Deletes an entry; false, with nothing deleted, for an index outside the list.
    virtual bool Loeschen(int index) = 0;

    /// Selects an entry; an index outside the list leaves none selected.
    virtual void Waehlen(int index) = 0;

    /// Index of the selected entry, -1 if none is.
    virtual int Gewaehlt() const = 0;
};

/// Deletes all entries.
void ListeLeeren(CAuswahlListe& liste);

/// Index of the first entry that is equal to the text, case counting; -1 if there is none.
int SucheGleichen(const CAuswahlListe& liste, const CString& text);

/// Index of the first entry that begins with the text, case left aside; -1 if there is none. 30
/// finds "300" when no shorter entry stands above it.
int SucheAnfang(const CAuswahlListe& liste, const CString& text);

/// Sorts the entries by the number that they begin with (a comma ends it) and gives all of them as
/// many decimals as the first one had before. Entries of one value stay as
/// duplicates; nothing is selected afterwards. True.
bool SortComboNumeric(CAuswahlListe& liste, bool aufsteigend);
