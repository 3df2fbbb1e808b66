#pragma once

#include "valve/ventil_liste.h"
#include "valve/ventil_satz.h"
#include "valve/ventil_text.h"

#include <array>
#include <string_view>

/// The tree of one valve file: doubly linked lists in file order, the first Prev and the last Next
/// null. Nodes belong to the CVentVdiKatalog that read them and die with it or when it reads the
/// next file. What they tell stands in the bytes of the file, which the tree keeps: texts are views
/// of them, and the lists of a group are made when somebody asks for them. As looking makes them,
/// a tree is for one thread at a time.

/// The 17 groups of an article's ident text.
using VentIdent = std::array<short, 17>;

/// Groups with a known use.
enum VentIdentGruppe
{
    identVentilTyp = 0,
    identAntrieb = 2,
    identBauform = 3,
    identWerkstoff = 9,
    identDatensatz = 15
};

/// An additional record ("720.01" to "720.03").
struct VENT_VDI3805_ZUSATZ
{
    CVentilText Zeile;
    int ZeilenNr = 0;
    VENT_VDI3805_ZUSATZ* Prev = nullptr;
    VENT_VDI3805_ZUSATZ* Next = nullptr;
};

/// A data set ("700") or a row of one ("710.01" to "710.05"). One list holds all data sets of a
/// group one behind the other; the rows of a data set are the nodes behind its "700" up to the
/// first one of another type.
struct VENT_VDI3805_DATEN
{
    /// Number of the data set or of the row; 0 if the line has no such field.
    int Nummer = 0;
    int ZeilenNr = 0;
    /// Record type as it stands in the file.
    std::wstring_view Satzart;
    /// The whole line; its other fields are split out when a valve is evaluated.
    CVentilText Zeile;
    /// For a "700": the first additional record that followed it.
    VENT_VDI3805_ZUSATZ* Zusatz = nullptr;
    VENT_VDI3805_DATEN* Prev = nullptr;
    VENT_VDI3805_DATEN* Next = nullptr;
};

/// A numbered text: actuation ("160"), body form ("200") or material ("400").
struct VENT_VDI3805_TEXT
{
    int Nummer = 0;
    int ZeilenNr = 0;
    CVentilText Zeile;
    VENT_VDI3805_TEXT* Prev = nullptr;
    VENT_VDI3805_TEXT* Next = nullptr;
};

/// One orderable valve ("800"). Keeps no copy of its line.
struct VENT_VDI3805_ARTIKEL
{
    /// Ident text of 36 digits: the valve's key.
    CVentilText TgaNr;
    CVentilText BestellNr;
    CVentilText Datanorm;
    CVentilText Text4;
    /// The name that is shown.
    CVentilText Bezeichnung;
    int ZeilenNr = 0;
    VentIdent Ident = {};
    VENT_VDI3805_ARTIKEL* Prev = nullptr;
    VENT_VDI3805_ARTIKEL* Next = nullptr;
};

/// Where the records of a group stand in the file: from a line on, counted from 0. Each list knows
/// how many of them are its own.
struct VentilBereich
{
    const CVentilZeilen* zeilen = nullptr;
    int von = 0;
    /// The later group that has the first additional record behind this group's last data set, if
    /// that is none of this group's own.
    const VENT_VDI3805_GRUPPE* zusatzDanach = nullptr;
};

/// A group of valves ("110").
struct VENT_VDI3805_GRUPPE
{
    int Nummer = 0;
    CVentilText Name;
    CVentilText Zeile;
    int ZeilenNr = 0;
    VentilBereich Bereich;
    CVentilListe<VENT_VDI3805_ARTIKEL> Artikel{*this, VentilSatz::artikel};
    CVentilListe<VENT_VDI3805_DATEN> Daten{*this, VentilSatz::daten};
    CVentilListe<VENT_VDI3805_ZUSATZ> Zusaetze{*this, VentilSatz::zusatz};
    CVentilListe<VENT_VDI3805_TEXT> Antriebe{*this, VentilSatz::antrieb};
    CVentilListe<VENT_VDI3805_TEXT> Bauformen{*this, VentilSatz::bauform};
    CVentilListe<VENT_VDI3805_TEXT> Werkstoffe{*this, VentilSatz::werkstoff};
    VENT_VDI3805_GRUPPE* Prev = nullptr;
    VENT_VDI3805_GRUPPE* Next = nullptr;
};

/// A main group ("100").
struct VENT_VDI3805_HAUPTGRUPPE
{
    int Nummer = 0;
    CVentilText Name;
    CVentilText Zeile;
    int ZeilenNr = 0;
    VENT_VDI3805_GRUPPE* Gruppen = nullptr;
    VENT_VDI3805_HAUPTGRUPPE* Prev = nullptr;
    VENT_VDI3805_HAUPTGRUPPE* Next = nullptr;
};
