#pragma once

#include "common/auswahl_liste.h"
#include "platform/array.h"
#include "platform/text.h"

/// Lists that an office keeps for its dialogs in the file "CmbData.txt", above all the heating
/// systems. A list is two lines of the file: its name in square brackets, and its entries, each
/// followed by "|". The entry that was selected last has a "*" directly behind its text.
///
/// An entry of the heating systems is a name, a blank, and supply and return temperature in whole
/// degrees: "Standard (75/65)".

/// The list of heating systems.
inline constexpr wchar_t kListeHeizsysteme[] = L"VDI6030_HS";

/// The trade whose folder holds the file: the heating folder of the data root. Of other trades no
/// list is kept.
inline constexpr int kGewerkHeizung = 2;

/// Adds the entries of a list of the file to `liste` and selects the current one, else the first.
/// A position counts empty entries too, which are not added, so that a list that has any may show
/// another entry or none as selected.
///
/// Where the file does not hold the list, or there is no file, the heating systems are the one
/// entry "Standard (75/65)", and the result is true; any other list is then left alone with the
/// result false. False too if the file cannot be opened or read for another reason, or the trade
/// has no lists.
bool ListeLesen(const CString& name, CAuswahlListe& liste, int gewerk);

/// Puts the entries into the file, in place of the list of that name or behind all others, with the
/// mark at every entry that is equal to the selected one. All other lines of the file stay, also a
/// last one without a line end, which reading drops, and what another process writes meanwhile.
/// False, with the file as it was, if it cannot be read or written.
bool ListeSchreiben(const CString& name, const CAuswahlListe& liste, int gewerk);

/// ListeLesen() and ListeSchreiben() on the lines of a file; false if the lines have no such list
/// and it has no default.
bool ListeAusZeilen(const CStringArray& zeilen, const CString& name, CAuswahlListe& liste);
void ListeInZeilen(CStringArray& zeilen, const CString& name, const CAuswahlListe& liste);

/// Looks in the file for the first heating system with these temperatures, in whole degrees.
/// Returns its position among the entries, empty ones counted, and puts its name into `name`; -1,
/// with `name` left alone, if there is none. A name ends before its first "(".
int SystemSuchen(CString& name, double vorlauf, double ruecklauf);

/// Takes an entry apart: the name before the first "(", the supply between that and the last "/",
/// the return behind it but for the last character. What is missing reads as an empty name and 0.0;
/// a text without "/" gives the number that it begins with as the return. True.
bool SystemZerlegen(const CString& text, CString& name, double& vorlauf, double& ruecklauf);

/// The entry of a heating system; empty if it has no name or one of the temperatures is 0.0.
CString SystemText(const CString& name, double vorlauf, double ruecklauf);

/// Index of the first entry equal to the text, which is added if there is none; 0 for an empty
/// text, which is never added.
int EintragSuchen(CAuswahlListe& liste, const CString& text);

/// Deletes the first entry equal to the text and selects the first one that is left. False, with
/// nothing changed, if there is none.
bool EintragLoeschen(CAuswahlListe& liste, const CString& text);
