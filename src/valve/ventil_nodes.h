#pragma once

#include "platform/text.h"

#include <array>
#include <string_view>

/// The tree of one valve file: doubly linked lists in file order, the first Prev and the last Next
/// null. Nodes belong to the CVentVdiKatalog that read them and die with it or when it reads the
/// next file.

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
    CString Zeile;
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
    /// Record type as it stands in the file: a view into Zeile, so that nodes are not to be copied.
    std::wstring_view Satzart;
    /// The whole line; its other fields are split out when a valve is evaluated.
    CString Zeile;
    int ZeilenNr = 0;
    /// For a "700": the first additional record that followed it.
    VENT_VDI3805_ZUSATZ* Zusatz = nullptr;
    VENT_VDI3805_DATEN* Prev = nullptr;
    VENT_VDI3805_DATEN* Next = nullptr;

    VENT_VDI3805_DATEN() = default;
    VENT_VDI3805_DATEN(const VENT_VDI3805_DATEN&) = delete;
    VENT_VDI3805_DATEN& operator=(const VENT_VDI3805_DATEN&) = delete;
};

/// A numbered text: actuation ("160"), body form ("200") or material ("400").
struct VENT_VDI3805_TEXT
{
    int Nummer = 0;
    CString Zeile;
    int ZeilenNr = 0;
    VENT_VDI3805_TEXT* Prev = nullptr;
    VENT_VDI3805_TEXT* Next = nullptr;
};

/// One orderable valve ("800"). Keeps no copy of its line.
struct VENT_VDI3805_ARTIKEL
{
    /// Ident text of 36 digits: the valve's key.
    CString TgaNr;
    CString BestellNr;
    CString Datanorm;
    CString Text4;
    /// The name that is shown.
    CString Bezeichnung;
    int ZeilenNr = 0;
    VentIdent Ident = {};
    VENT_VDI3805_ARTIKEL* Prev = nullptr;
    VENT_VDI3805_ARTIKEL* Next = nullptr;
};

/// A group of valves ("110").
struct VENT_VDI3805_GRUPPE
{
    int Nummer = 0;
    CString Name;
    CString Zeile;
    int ZeilenNr = 0;
    VENT_VDI3805_ARTIKEL* Artikel = nullptr;
    VENT_VDI3805_DATEN* Daten = nullptr;
    VENT_VDI3805_ZUSATZ* Zusaetze = nullptr;
    VENT_VDI3805_TEXT* Antriebe = nullptr;
    VENT_VDI3805_TEXT* Bauformen = nullptr;
    VENT_VDI3805_TEXT* Werkstoffe = nullptr;
    VENT_VDI3805_GRUPPE* Prev = nullptr;
    VENT_VDI3805_GRUPPE* Next = nullptr;
};

/// A main group ("100").
struct VENT_VDI3805_HAUPTGRUPPE
{
    int Nummer = 0;
    CString Name;
    CString Zeile;
    int ZeilenNr = 0;
    VENT_VDI3805_GRUPPE* Gruppen = nullptr;
    VENT_VDI3805_HAUPTGRUPPE* Prev = nullptr;
    VENT_VDI3805_HAUPTGRUPPE* Next = nullptr;
};
